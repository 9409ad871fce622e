#include "platform/sdk/FileMark.h"

#include <QTextCodec>

static constexpr const char* layout = "1"; // of the lines; one more with every change of them in FileWriter

QByteArray FileMark::behind(const ContentHash& content) {
    const QByteArray encoding = QTextCodec::codecForLocale()->name();
    if (encoding == "System")
        return {};
    return QByteArray("<?") + target + " layout=\"" + layout + "\" local-encoding=\"" + encoding + "\" xxh128=\"" +
           content.toHex() + "\"?>\n";
}

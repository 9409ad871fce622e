#include "import/WktFile.h"

#include "import/WktToCoordParam.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <algorithm>

namespace {

/// GDAL takes no WKT of more than 100,000 bytes, so no more is read, however large the file. The rest are blanks around
/// it.
constexpr qint64 longestText = qint64{1024} * 1024;

QByteArray readText(QFile& file) {
    QByteArray text = file.read(std::min(file.size(), longestText));
    const int nul = text.indexOf('\0');
    if (nul >= 0)
        text.truncate(nul);
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    return text.trimmed();
}

QByteArray toUtf8(const QByteArray& text) {
    constexpr int utf8Mib = 106;
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(utf8Mib)->toUnicode(text.constData(), text.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    const QTextCodec* const local = QTextCodec::codecForLocale();
    const QTextCodec* const codec = local->mibEnum() == utf8Mib ? QTextCodec::codecForName("Windows-1252") : local;
    return codec->toUnicode(text).toUtf8();
}

} // namespace

WktSystem WktFile::read(const QString& path) {
    QFile file(path);
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {WktSystem::Content::NotOpened, {}, {}};
    return WktToCoordParam::read(toUtf8(readText(file)));
}

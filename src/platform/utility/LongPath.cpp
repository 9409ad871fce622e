#include "platform/utility/LongPath.h"

#include <QDir>
#include <QFileInfo>

std::wstring longPath(const QString& path) {
    constexpr int longest = 260 - 13; // a folder's, which has room for a short name
    QString native = QDir::toNativeSeparators(path);
    if (native.size() > longest && !native.startsWith(QLatin1String(R"(\\?\)"))) {
        native = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
        native = native.startsWith(QLatin1String(R"(\\)")) ? QLatin1String(R"(\\?\UNC)") + native.mid(1)
                                                           : QLatin1String(R"(\\?\)") + native;
    }
    return native.toStdWString();
}

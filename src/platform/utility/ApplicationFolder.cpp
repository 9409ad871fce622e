#include "platform/utility/ApplicationFolder.h"

#include <QCoreApplication>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

/// QCoreApplication knows the executable only while an application object lives.
static QString executablePath() {
    if (QCoreApplication::instance())
        return QCoreApplication::applicationFilePath();
#ifdef Q_OS_WIN
    wchar_t path[32768]; // the longest path that Windows knows
    const DWORD length = GetModuleFileNameW(nullptr, path, DWORD(std::size(path)));
    return QString::fromWCharArray(path, int(length));
#else
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
#endif
}

QString applicationFolder() {
    QString folder = QFileInfo(executablePath()).absolutePath();
    while (folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    return folder;
}

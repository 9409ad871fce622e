#include "platform/utility/FileHold.h"

#include <QFileInfo>

#ifdef Q_OS_WIN
#include "platform/utility/LongPath.h"

#include <qt_windows.h>
#else
#include <sys/file.h>

#include <cerrno>
#endif

#ifdef Q_OS_WIN

// An open file is held there: nobody gets it for himself alone.
bool FileHold::take(QFile&) {
    return true;
}

FileHold::State FileHold::of(const QString& path) {
    const HANDLE file = CreateFileW(longPath(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION ? State::Held : State::Unknown;
    CloseHandle(file);
    return State::Free;
}

#else

bool FileHold::take(QFile& file) {
    return flock(file.handle(), LOCK_EX | LOCK_NB) == 0;
}

FileHold::State FileHold::of(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return State::Unknown;
    if (take(file))
        return State::Free;
    return errno == EWOULDBLOCK ? State::Held : State::Unknown;
}

#endif

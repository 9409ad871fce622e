#include "platform/utility/FileHold.h"

#include <QFileInfo>

#ifndef Q_OS_WIN
#include <sys/file.h>

#include <cerrno>
#endif

#ifdef Q_OS_WIN

// An open file can't be removed there, so whoever tries to need not ask.
bool FileHold::take(QFile&) {
    return true;
}

FileHold::State FileHold::of(const QString&) {
    return State::Unknown;
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

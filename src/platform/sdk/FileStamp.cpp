#include "platform/sdk/FileStamp.h"

#include "platform/utility/DiskCalls.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

/// How far two times of the file system are apart at least when they differ, in milliseconds. FAT keeps times in steps
/// of two seconds; where there are fractions of a second, the clock that a system stamps files with ticks more often
/// than every 20 ms.
qint64 clockStep(qint64 time) {
    return time % 1000 == 0 ? 2000 : 20;
}

qint64 timeOf(const QString& path) {
    const QFileInfo info(path);
    return info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0;
}

} // namespace

FileStamp::FileStamp(const QString& path, const ContentHash& hash)
    : isOfFile(true)
    , content(hash)
    , time(timeOf(path))
    , isSettled(QDateTime::currentMSecsSinceEpoch() - time > clockStep(time)) {
}

bool FileStamp::holds(const ContentHash& hash) const {
    return isOfFile && content == hash;
}

bool FileStamp::matches(const QString& path) const {
    const QFileInfo info(path);
    if (!isOfFile || !info.isFile() || info.size() != content.size())
        return false;
    if (isSettled && timeOf(path) == time)
        return true;
    QByteArray bytes;
    return DiskCalls::read(path, &bytes) && holds(ContentHash(bytes));
}

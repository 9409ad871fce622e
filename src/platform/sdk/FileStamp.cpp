#include "platform/sdk/FileStamp.h"

#include "platform/utility/DiskCalls.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

constexpr qint64 coarsestClock = 2000; // milliseconds; FAT keeps times in steps of two seconds

qint64 timeOf(const QString& path) {
    const QFileInfo info(path);
    return info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0;
}

} // namespace

FileStamp::FileStamp(const QString& path, const ContentHash& hash)
    : isOfFile(true)
    , content(hash)
    , time(timeOf(path))
    , isSettled(QDateTime::currentMSecsSinceEpoch() - time > coarsestClock) {
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

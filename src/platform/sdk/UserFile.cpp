#include "platform/sdk/UserFile.h"

#include "platform/sdk/Generations.h"
#include "platform/utility/DiskCalls.h"
#include "platform/utility/FileReplacement.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {

const QString damagedSuffix = QStringLiteral(".damaged-");
const QString otherSuffix = QStringLiteral(".other-");

QString folderOf(const QString& path) {
    return QFileInfo(path).absolutePath();
}

bool copyFile(const QString& from, const QString& to) {
    FileReplacement copy(to);
    return copy.prepareCopyOf(from) && copy.commit();
}

bool prepare(FileReplacement& replacement, const std::function<void(FileReplacement&)>& write) {
    if (!replacement.start())
        return false;
    write(replacement);
    return replacement.finish();
}

/// Now, or later where a file's time is ahead: two disks have two clocks.
QDateTime later(qint64 changed) {
    return QDateTime::fromMSecsSinceEpoch(qMax(QDateTime::currentMSecsSinceEpoch(), changed + 1));
}

QDateTime later(const QString& path) {
    const QFileInfo info(path);
    return later(info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0);
}

/// A path beside `path` that is not in use, so that nothing that was set aside is ever replaced.
QString setAsidePath(const QString& path, const QString& suffix) {
    const QString wanted = path + suffix + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString free = wanted;
    for (int i = 2; QFileInfo::exists(free) || QFileInfo(free).isSymLink(); ++i)
        free = wanted + QLatin1Char('-') + QString::number(i);
    return free;
}

/// Keeps the file `place` beside `path`. What can't be read can still be moved.
bool setAside(const QString& place, const QString& path, const QString& suffix) {
    const QString aside = setAsidePath(path, suffix);
    return copyFile(place, aside) || DiskCalls::rename(place, aside);
}

} // namespace

UserFile::UserFile(const QString& folder) : rescueFolder(folder) {
}

void UserFile::setPath(const QString& filePath) {
    path = filePath;
    known = FileStamp();
    ownRescue.clear();
    removeLeftovers();
}

QString UserFile::previousGeneration(const QString& target) {
    return target + QLatin1String(".bak");
}

/// Two data folders of one user have files of the same names.
QString UserFile::rescuePath(const QString& target) const {
    const QByteArray folder = QDir::cleanPath(folderOf(target)).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Sha1).toHex().left(16);
    return rescueFolder + QLatin1Char('/') + QLatin1String(hash) + QLatin1Char('/') + QFileInfo(target).fileName();
}

bool UserFile::exists() const {
    const QFileInfo info(path);
    const auto isThere = [](const QFileInfo& file) { return file.exists() || file.isSymLink(); };
    const QStringList aside = {info.fileName() + damagedSuffix + QLatin1Char('*'),
                               info.fileName() + otherSuffix + QLatin1Char('*')};
    return isThere(info) || isThere(QFileInfo(previousGeneration(path))) || QFileInfo::exists(rescuePath(path)) ||
           !info.dir().entryList(aside, QDir::Files).isEmpty();
}

void UserFile::removeLeftovers() const {
    const QString place = FileReplacement::behindLinks(path);
    const QString rescue = rescuePath(path);
    for (const QString& file : {path, rescue})
        FileReplacement::removeLeftovers(folderOf(file), QFileInfo(file).fileName());
    if (place != path)
        FileReplacement::removeLeftovers(folderOf(place), QFileInfo(place).fileName());
}

bool UserFile::hasNewerRescue() const {
    const QFileInfo rescue(rescuePath(path));
    const QFileInfo file(path);
    return rescue.isFile() && (!file.isFile() || rescue.lastModified() > file.lastModified());
}

void UserFile::bringHome(const Write& write) {
    // What lies in the file's place is older and not what is shown: it is set aside.
    known = FileStamp();
    ownRescue = rescuePath(path);
    if (replace(path, write))
        settleRescue(path);
}

void UserFile::saveWith(const Write& write, const QString& target) {
    if (replace(target, write))
        settleRescue(target);
    else
        writeRescue(target, write);
}

bool UserFile::isKnown(const QString& target) const {
    return QDir::cleanPath(target) == QDir::cleanPath(path);
}

bool UserFile::replace(const QString& target, const Write& write) {
    const QString place = FileReplacement::behindLinks(target);
    DiskCalls::makeFolder(folderOf(target));
    FileReplacement replacement(place);
    // When the save began: of a large file, that is long enough ago for any later change to have another time. Should a
    // rescued save stay, it is no longer the latest.
    const bool isRescued = rescuePath(target) == ownRescue;
    replacement.setTime(isRescued ? later(ownRescue) : QDateTime::currentDateTime());
    // All that can fail for want of room comes first, while nothing has been touched.
    if (!prepare(replacement, write) || !keep(target, place, replacement.content()) || !replacement.commit())
        return false;
    if (isKnown(target)) {
        known = FileStamp(place, replacement.content());
        isKnownWhole = true;
    }
    Generations(target).thin();
    return true;
}

bool UserFile::keep(const QString& target, const QString& place, const ContentHash& next) const {
    if (!QFileInfo::exists(place))
        return true;
    if (isKnown(target) && known.matches(place)) {
        if (!isKnownWhole)
            return setAside(place, target, damagedSuffix);
        if (!known.holds(next))
            keepGeneration(target, place);
        return true;
    }
    QByteArray content;
    const bool isSame = DiskCalls::read(place, &content) && ContentHash(content) == next;
    return isSame || setAside(place, target, otherSuffix);
}

/// Without a previous generation the save is still worth having: the file itself is replaced in one step.
void UserFile::keepGeneration(const QString& target, const QString& place) const {
    const QString previous = previousGeneration(target);
    const QFileInfo older(previous);
    if (!older.isSymLink() && older.isFile()) {
        // A save that failed later than here has kept it already, with its time. Any other of the size need not be
        // read.
        if (older.lastModified().toMSecsSinceEpoch() == known.changed() && known.matches(previous))
            return;
        Generations(target).take(previous);
    }
    copyFile(place, previous);
}

void UserFile::writeRescue(const QString& target, const Write& write) {
    const QString rescue = rescuePath(target);
    if (rescue != ownRescue && QFileInfo::exists(rescue) && !setAside(rescue, rescue, otherSuffix))
        return;
    DiskCalls::makeFolder(folderOf(rescue));
    FileReplacement replacement(rescue);
    replacement.setTime(qMax(later(target), later(isKnown(target) ? known.changed() : 0)));
    if (prepare(replacement, write) && replacement.commit())
        ownRescue = rescue;
}

/// The file is on disk: what was rescued is in it, or is older and stands beside it from now on.
void UserFile::settleRescue(const QString& target) {
    const QString rescue = rescuePath(target);
    if (!QFileInfo(rescue).isFile())
        return;
    if (rescue == ownRescue || setAside(rescue, target, otherSuffix))
        DiskCalls::remove(rescue);
    ownRescue.clear();
}

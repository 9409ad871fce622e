#include "platform/sdk/UserFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

static const QString damagedSuffix = QStringLiteral(".damaged-");

UserFile::UserFile(const FileKind& fileKind) : kind(fileKind) {
}

void UserFile::setPath(const QString& filePath) {
    path = filePath;
    openFor.clear();
}

QString UserFile::previousGeneration(const QString& path) {
    return path + QLatin1String(".bak");
}

bool UserFile::exists() const {
    const QFileInfo info(path);
    return info.exists() || QFileInfo::exists(previousGeneration(path)) ||
           !info.dir().entryList({info.fileName() + damagedSuffix + QLatin1Char('*')}, QDir::Files).isEmpty();
}

/// A copy that is on disk when the function returns; a file at `to` is replaced in one step or not at all.
static bool copyFile(const QString& from, const QString& to) {
    QFile source(from);
    QSaveFile copy(to);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    while (!source.atEnd()) {
        const QByteArray block = source.read(1 << 20);
        if (block.isEmpty() || copy.write(block) != block.size())
            return false;
    }
    return copy.commit();
}

/// A path beside `path` that is not in use, so that nothing that was set aside is ever replaced.
static QString setAsidePath(const QString& path) {
    const QString wanted =
        path + damagedSuffix + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString free = wanted;
    for (int i = 2; QFileInfo::exists(free); ++i)
        free = wanted + QLatin1Char('-') + QString::number(i);
    return free;
}

void UserFile::openSave() {
    openFor = !path.isEmpty() && open(path) ? path : QString();
}

bool UserFile::open(const QString& target) const {
    QDir().mkpath(QFileInfo(target).absolutePath());
    switch (CatalogueFile::condition(target, kind)) {
    case FileCondition::Missing:
        return true;
    case FileCondition::Damaged:
        return copyFile(target, setAsidePath(target));
    case FileCondition::Whole:
        // Without a previous generation the save is still worth having: the file itself is replaced in one step.
        copyFile(target, previousGeneration(target));
        return true;
    }
    return false;
}

bool UserFile::dropPreviousGeneration(const QString& target) {
    QFile file(target);
    QFile previous(previousGeneration(target));
    if (!file.open(QIODevice::ReadOnly) || !previous.open(QIODevice::ReadOnly) || file.size() != previous.size())
        return false;
    while (!file.atEnd()) {
        const QByteArray block = file.read(1 << 20);
        if (block.isEmpty() || block != previous.read(block.size()))
            return false;
    }
    previous.close();
    return previous.remove();
}

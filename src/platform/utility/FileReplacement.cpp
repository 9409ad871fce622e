#include "platform/utility/FileReplacement.h"

#include "platform/utility/DiskCalls.h"
#include "platform/utility/FileHold.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>

namespace {

// Nobody would call a copy of his own like this.
const QString mark = QStringLiteral(".unfinished-");
constexpr int letterCount = 6;

QString randomLetters() {
    QString letters;
    for (int i = 0; i < letterCount; ++i)
        letters += QChar(QLatin1Char(char('a' + QRandomGenerator::global()->bounded(26))));
    return letters;
}

} // namespace

FileReplacement::FileReplacement(const QString& place) : path(place), model(place) {
}

FileReplacement::~FileReplacement() {
    if (file.fileName().isEmpty())
        return;
    file.close();
    DiskCalls::remove(file.fileName());
}

QString FileReplacement::behindLinks(const QString& path) {
    QString target = path;
    for (int i = 0; i < 40 && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

bool FileReplacement::fail(const QString& reason) {
    error = reason;
    return false;
}

bool FileReplacement::isAllowed() {
    const QFileInfo there(path);
    return there.isSymLink() || !there.exists() || there.isFile() || fail(QFile::tr("Filename refers to a directory"));
}

template <class Make> bool FileReplacement::make(Make makeFile) {
    constexpr int attempts = 100; // for a name that is free
    for (int i = 0; i < attempts; ++i) {
        file.setFileName(path + mark + randomLetters());
        if (makeFile())
            return true;
        if (!QFileInfo::exists(file.fileName()))
            break;
    }
    const QString reason = file.errorString();
    file.setFileName({});
    return fail(reason);
}

bool FileReplacement::start() {
    if (!isAllowed() || !make([this] { return DiskCalls::create(file); }))
        return false;
    FileHold::take(file);
    return true;
}

void FileReplacement::write(const QByteArray& piece) {
    written.add(piece);
    isWritten = isWritten && (DiskCalls::write(file, piece) || fail(file.errorString()));
}

bool FileReplacement::finish() {
    if (!isWritten)
        return false;
    // Not every file system keeps them, and the content matters more.
    const QFileInfo like(model);
    if (like.isFile() && like.isReadable())
        file.setPermissions(like.permissions());
    if (time.isValid())
        file.setFileTime(time, QFileDevice::FileModificationTime);
    if (!DiskCalls::sync(file))
        return fail(qt_error_string());
    if (file.size() != content().size())
        return fail(QFile::tr("Unknown error"));
    file.close();
    isPrepared = true;
    return true;
}

bool FileReplacement::prepare(const QByteArray& content) {
    if (!start())
        return false;
    write(content);
    return finish();
}

bool FileReplacement::prepareCopyOf(const QString& original) {
    isSecondName = isAllowed() && make([&] { return DiskCalls::link(original, file.fileName()); });
    isPrepared = isSecondName;
    if (isPrepared)
        return true;
    QByteArray content;
    if (!DiskCalls::read(original, &content))
        return false;
    takePermissionsOf(original);
    setTime(QFileInfo(original).lastModified());
    return prepare(content);
}

bool FileReplacement::commit() {
    if (!isPrepared)
        return false;
    if (!DiskCalls::rename(file.fileName(), path))
        return fail(qt_error_string());
    // A second name is made for a file whose own replacement follows.
    if (!isSecondName)
        DiskCalls::syncFolder(QFileInfo(path).absolutePath());
    file.setFileName({});
    return true;
}

// Without QDir's patterns: a start would spend more on them than on the catalogue.
void FileReplacement::removeLeftovers(const QString& folder, const QString& nameStart) {
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString name = files.fileName();
        if (!name.startsWith(nameStart) || name.lastIndexOf(mark) != name.size() - mark.size() - letterCount)
            continue;
        const FileHold::State state = FileHold::of(path);
        const bool isOld = files.fileInfo().lastModified() < QDateTime::currentDateTime().addDays(-1);
        if (state == FileHold::State::Free || (state == FileHold::State::Unknown && isOld))
            DiskCalls::remove(path);
    }
}

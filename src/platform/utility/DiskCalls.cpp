#include "platform/utility/DiskCalls.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include "platform/utility/LongPath.h"

#include <qt_windows.h>

#include <io.h>

#include <string>
#else
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#endif

namespace {

DiskCalls::Fault& currentFault() {
    static DiskCalls::Fault fault;
    return fault;
}

bool fails(const char* call, const QString& path) {
    return currentFault() && currentFault()(call, path);
}

// The calls that Qt lacks, or that do something else there: its rename() replaces nothing.
#ifdef Q_OS_WIN

bool moveOver(const std::wstring& from, const std::wstring& to) {
    constexpr int attempts = 6; // an indexer or a virus scanner holds a new file for some milliseconds
    for (int i = 0;; ++i) {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return true;
        const DWORD error = GetLastError();
        if (i == attempts || (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED))
            return false;
        Sleep(10);
        SetLastError(error);
    }
}

/// Lets `change` do what the file's being read-only forbids here; elsewhere the folder's rights decide. Where it fails,
/// the file stays read-only.
template <class Change> bool unlocked(const std::wstring& path, Change change) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isLocked = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
                          (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    if (!isLocked)
        return change();
    SetFileAttributesW(path.c_str(), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY));
    if (change())
        return true;
    const DWORD error = GetLastError();
    SetFileAttributesW(path.c_str(), attributes);
    SetLastError(error);
    return false;
}

bool syncHandle(int handle) {
    return _commit(handle) == 0;
}

// Moving writes the names through already.
void syncNames(const QString&) {
}

bool replace(const QString& from, const QString& to) {
    return unlocked(longPath(to), [&] { return moveOver(longPath(from), longPath(to)); });
}

bool removeFile(const QString& path) {
    return unlocked(longPath(path), [&] { return DeleteFileW(longPath(path).c_str()) != 0; });
}

bool makeLink(const QString& from, const QString& to) {
    return CreateHardLinkW(longPath(to).c_str(), longPath(from).c_str(), nullptr) != 0;
}

#else

bool syncHandle(int handle) {
    return fsync(handle) == 0;
}

void syncNames(const QString& path) {
    const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

bool replace(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool removeFile(const QString& path) {
    return QFile::remove(path);
}

bool makeLink(const QString& from, const QString& to) {
    return ::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

#endif

} // namespace

void DiskCalls::setFault(const Fault& fault) {
    currentFault() = fault;
}

bool DiskCalls::read(const QString& path, QByteArray* content) {
    content->clear();
    QFile file(path);
    if (fails("read", path) || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    const qint64 size = file.size();
    *content = file.readAll();
    return file.error() == QFile::NoError && content->size() >= size;
}

bool DiskCalls::create(QFile& file) {
    return !fails("create", file.fileName()) &&
           file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
}

bool DiskCalls::write(QFile& file, const QByteArray& content) {
    if (fails("write", file.fileName())) {
        file.write(content.left(content.size() / 2)); // as a full disk does
        return false;
    }
    return file.write(content) == content.size();
}

bool DiskCalls::sync(QFile& file) {
    return !fails("sync", file.fileName()) && file.flush() && syncHandle(file.handle());
}

void DiskCalls::syncFolder(const QString& path) {
    syncNames(path);
}

bool DiskCalls::rename(const QString& from, const QString& to) {
    return !fails("rename", to) && replace(from, to);
}

bool DiskCalls::link(const QString& from, const QString& to) {
    return !fails("link", to) && makeLink(from, to);
}

bool DiskCalls::remove(const QString& path) {
    return !fails("remove", path) && removeFile(path);
}

bool DiskCalls::makeFolder(const QString& path) {
    return !fails("folder", path) && QDir().mkpath(path);
}

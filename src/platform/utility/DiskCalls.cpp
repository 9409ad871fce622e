#include "platform/utility/DiskCalls.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <io.h>
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

const wchar_t* wide(const QString& path) {
    return reinterpret_cast<const wchar_t*>(path.utf16());
}

bool syncHandle(int handle) {
    return _commit(handle) == 0;
}

// Moving writes the names through already.
void syncNames(const QString&) {
}

bool replace(const QString& from, const QString& to) {
    return MoveFileExW(wide(QDir::toNativeSeparators(from)), wide(QDir::toNativeSeparators(to)),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

bool makeLink(const QString& from, const QString& to) {
    return CreateHardLinkW(wide(QDir::toNativeSeparators(to)), wide(QDir::toNativeSeparators(from)), nullptr) != 0;
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
    return !fails("remove", path) && QFile::remove(path);
}

bool DiskCalls::makeFolder(const QString& path) {
    return !fails("folder", path) && QDir().mkpath(path);
}

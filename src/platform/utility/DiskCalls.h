#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <functional>

/// The calls by which a file is written or moved. Everything that must not be lost goes through them, so that a test
/// can let any of them fail, and no two places differ in what they check.
///
/// All but read() return whether it is done; a call that failed has changed nothing that was there before. None follows
/// a symbolic link in a path's last place but read().
namespace DiskCalls {

/// Whether the call of this name on this path is to fail. Called before each of them.
using Fault = std::function<bool(const char* call, const QString& path)>;

/// For tests; an empty function ends it.
void setFault(const Fault& fault);

/// The bytes of a regular file into `content`; false when any of them can't be read, with those before it in `content`.
/// Anything but a regular file is never opened: a pipe would wait for its writer.
bool read(const QString& path, QByteArray* content);

/// Makes the file, which must not exist, and opens it for writing without a buffer between.
bool create(QFile& file);

/// All of `content`, at the file's current place.
bool write(QFile& file, const QByteArray& content);

/// Waits until the file is on the disk itself.
bool sync(QFile& file);

/// Waits until the names in the folder are on the disk itself. Not every file system can do that, and the files are in
/// place either way, so nothing hangs on it.
void syncFolder(const QString& path);

/// Puts `from` in the place of `to` in one step; what was there is gone. Both lie on the same volume.
bool rename(const QString& from, const QString& to);

/// A second name for a file; false where `to` exists or the volume knows no second names.
bool link(const QString& from, const QString& to);

bool remove(const QString& path);

/// With all the folders above it; true when it is there.
bool makeFolder(const QString& path);

} // namespace DiskCalls

#pragma once

class QByteArray;
class QString;

/// Replaces the file `path`, or the file that a symbolic link there leads to, by `content` in one step. True when all
/// of it is on the disk. Otherwise the file is what it was before, and `*error` says in the system's words what failed.
bool process_replace_file(const QString& path, const QByteArray& content, QString* error);

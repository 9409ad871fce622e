#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// The bytes of a file, "(missing)" when it can't be read.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

/// Whether the file now holds these bytes and no others.
inline bool setContent(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

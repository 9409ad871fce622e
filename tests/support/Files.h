#pragma once

#include <QByteArray>

class QString;

/// The bytes of a file, "(missing)" when it can't be read.
QByteArray contentOf(const QString& path);

/// Whether the file now holds these bytes and no others.
bool setContent(const QString& path, const QByteArray& content);

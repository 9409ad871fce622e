#pragma once

#include "platform/utility/ContentHash.h"

#include <QString>

/// What a file held when it was last read or written: enough to tell later whether it is still the same.
class FileStamp {
public:
    /// Of no file; it matches none.
    FileStamp() = default;

    /// Of the file `path` that was just read or written and has that content.
    FileStamp(const QString& path, const ContentHash& hash);

    bool holds(const ContentHash& hash) const;

    /// Whether the file still holds the same. It is read only when its size and time don't tell.
    bool matches(const QString& path) const;

    /// When the file was changed, in milliseconds since 1970; 0 for no file.
    qint64 changed() const { return time; }

private:
    bool isOfFile = false;
    ContentHash content;
    qint64 time = 0;
    bool isSettled = false; ///< the time is so old that a later change has another
};

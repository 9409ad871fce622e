#pragma once

#include "platform/utility/ContentHasher.h"

#include <QDateTime>
#include <QFile>
#include <QString>

/// Replaces a file whole, or not at all: the new one is written beside it, checked, and only then renamed over it.
///
///     FileReplacement replacement(path);
///     if (!replacement.prepare(content) || !replacement.commit())
///         complain(replacement.errorString());
///
/// Qt's QSaveFile does not do: it puts a file in place whose last block could not be written.
class FileReplacement {
public:
    /// What lies at `place` is a regular file, a symbolic link (which is itself replaced), or nothing. A folder,
    /// device, pipe or socket is left alone.
    explicit FileReplacement(const QString& place);
    /// Takes back what was not committed.
    ~FileReplacement();

    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// The path at the end of a chain of symbolic links, whether there is something or not.
    static QString behindLinks(const QString& path);

    /// The new file gets the permissions of this one, by default of the replaced file; those of any new file where
    /// there is none, or none that can be read.
    void takePermissionsOf(const QString& file) { model = file; }

    /// The new file's time of change, instead of now.
    void setTime(const QDateTime& changed) { time = changed; }

    /// Makes the new file beside the old one, to be written piece by piece.
    bool start();

    /// Writes the next piece. What fails here is found out by finish().
    void write(const QByteArray& piece);

    /// True when the new file is on the disk, with the size that it should have. False when anything failed; the old
    /// file is untouched either way.
    bool finish();

    /// start(), write() and finish() for a file in one piece.
    bool prepare(const QByteArray& content);

    /// As prepare(), with another file's content, permissions and time: a second name of that file where the volume
    /// knows such, which takes neither room nor time, else a copy.
    bool prepareCopyOf(const QString& original);

    /// Puts the prepared file in place. False, with the old one in place, when that failed.
    bool commit();

    /// Removes what replacements left behind that were killed, of files whose names begin with `nameStart`. What
    /// somebody works on is left alone; where that can't be told, it goes after a day.
    static void removeLeftovers(const QString& folder, const QString& nameStart);

    /// Of what was written so far.
    ContentHash content() const { return written.hash(); }

    const QString& errorString() const { return error; }

private:
    bool isAllowed();
    /// Gives the new file a name that is free and makes it with `makeFile`.
    template <class Make> bool make(Make makeFile);
    bool fail(const QString& reason);

    QString path;
    QString model;
    QDateTime time;
    QFile file; ///< the new one, beside the old
    ContentHasher written;
    bool isWritten = true; ///< every piece so far
    bool isSecondName = false;
    bool isPrepared = false;
    QString error;
};

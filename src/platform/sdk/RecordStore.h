#pragma once

#include "platform/sdk/UserFile.h"

/// The ellipsoids or the geoids of the catalogue: first those that are shipped, then those of the user's file, each in
/// its file's order and new ones last.
///
/// A record of the user's file with a shipped one's name stands in its place; when it is deleted, the shipped one
/// returns with the next load. Records whose flag is 0 belong to the user's file.
class RecordStore {
public:
    /// `flagKey` marks the user's own records; the texts must outlive the store. `rescueFolder` is UserFile's.
    RecordStore(const FileKind& kind, const char* flagKey, const QString& rescueFolder);

    void load(const QString& shippedPath, const QString& userPath);

    /// The names, joined by ","; the text is valid until the next call.
    const char* names() const;

    /// Null when there is no record of that name.
    IDictionary* find(const QByteArray& name) const;

    /// Adds a copy of `record`. One of its name is replaced and, where both belong to the same file, keeps its place.
    void put(const IDictionary* record);

    void remove(const QByteArray& name);

    /// Writes the user's file.
    void save(const QString& path);

private:
    const FileKind& kind;
    const char* flagKey;
    UserFile userFile;
    RecordFile shipped;
    RecordFile own;
    mutable QByteArray allNames;
};

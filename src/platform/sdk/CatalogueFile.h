#pragma once

#include "platform/sdk/CoordSysGroup.h"
#include "platform/sdk/RecordList.h"

#include <QString>

/// What a file's elements are called, and the key that names a record of it.
struct FileKind {
    const char* root;
    const char* record;
    const char* nameKey;
};

extern const FileKind systemFile; ///< groups of coordinate systems
extern const FileKind ellipsoidFile;
extern const FileKind geoidFile;

enum class FileCondition {
    Missing,
    Whole,
    Damaged, ///< can't be opened, is no file of this kind, breaks off, or has a newer format
};

/// The content of an ellipsoid or geoid file.
struct RecordFile {
    explicit RecordFile(const FileKind& fileKind) : kind(fileKind), records(fileKind.nameKey) {}

    bool isEmpty() const { return records.isEmpty(); }

    FileKind kind;
    FileCondition condition = FileCondition::Missing;
    RecordList records;
    UnknownXml unknown;
};

/// The content of a catalogue file.
struct SystemFile {
    bool isEmpty() const { return groups.isEmpty(); }

    FileCondition condition = FileCondition::Missing;
    NamedList<CoordSysGroup> groups;
    UnknownXml unknown;
};

/// Reads and writes the catalogue's files; docs/file-formats.md describes them. To make one:
///
///     RecordFile file(ellipsoidFile);
///     file.records.append(record); // an IDictionary with "ellipsoid_name"; null comes back when the name is refused
///     CatalogueFile::write("Ellipsoid.xml", file);
///
///     SystemFile file;
///     CoordSysGroup* group = file.groups.append("UTM"); // null when the name is refused
///     group->systems.append(record); // an IDictionary with "name"
///     CatalogueFile::write("CoordinateSystem.vcs", file);
///
/// An element that this version can't make a group or record of (it has no name, a name with "," or one that is taken
/// already, a value without a key or a text, or a text that the local encoding can't express) is kept as unknown
/// content.
namespace CatalogueFile {

/// Reads what the file holds. Of a damaged one that is every record up to the damage; never half a record.
RecordFile readRecords(const QString& path, const FileKind& kind);
SystemFile readSystems(const QString& path);

/// The condition alone, which costs a fraction of reading.
FileCondition condition(const QString& path, const FileKind& kind);

/// Replaces the file by the content in one step, on disk when the function returns: whatever happens meanwhile, the
/// file is the old or the new one. False when it could not be written and so is the old one.
bool write(const QString& path, const RecordFile& content);
bool write(const QString& path, const SystemFile& content);

} // namespace CatalogueFile

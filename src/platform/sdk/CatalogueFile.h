#pragma once

#include "platform/sdk/CoordSysGroup.h"
#include "platform/sdk/FileStamp.h"
#include "platform/sdk/RecordList.h"
#include "platform/utility/FileReplacement.h"

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
    Damaged, ///< can't be read, is no file of this kind, breaks off, or has a newer format
};

/// What every file of the catalogue has.
struct FileContent {
    FileCondition condition = FileCondition::Missing;
    FileStamp stamp;           ///< of no file when it could not be read to its end
    QByteArrayList beforeRoot; ///< comments and the like, as XML
    QByteArrayList behindRoot;
    UnknownXml unknown; ///< of the root element
};

/// The content of an ellipsoid or geoid file.
struct RecordFile : FileContent {
    explicit RecordFile(const FileKind& fileKind) : kind(fileKind), records(fileKind.nameKey) {}

    bool isEmpty() const { return records.isEmpty(); }

    FileKind kind;
    RecordList records;
};

/// The content of a catalogue file.
struct SystemFile : FileContent {
    bool isEmpty() const { return groups.isEmpty(); }

    NamedList<CoordSysGroup> groups;
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

/// Writes the content to a file that was started.
void writeTo(FileReplacement& file, const RecordFile& content);
void writeTo(FileReplacement& file, const SystemFile& content);

/// Replaces the file by the content in one step, on disk when the function returns. False when it could not be written
/// and so is the old one.
template <class Content> bool write(const QString& path, const Content& content) {
    FileReplacement file(path);
    if (!file.start())
        return false;
    writeTo(file, content);
    return file.finish() && file.commit();
}

} // namespace CatalogueFile

#pragma once

#include "platform/sdk/FileContent.h"
#include "platform/sdk/FileWriter.h"

#include <QString>

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

/// Replaces the file by the content in one step, on disk when the function returns. False when it could not be written
/// and so is the old one.
template <class Content> bool write(const QString& path, const Content& content) {
    FileReplacement file(path);
    if (!file.start())
        return false;
    FileWriter(file).write(content);
    return file.finish() && file.commit();
}

} // namespace CatalogueFile

#pragma once

#include "platform/sdk/CoordSysGroup.h"
#include "platform/sdk/FileKind.h"
#include "platform/sdk/FileStamp.h"
#include "platform/sdk/RecordList.h"

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

#pragma once

#include "platform/sdk/FileContent.h"

/// Takes the text of a file that this program wrote (FileBytes::isAsWritten) by its lines, as FileWriter makes them:
/// it finds the names of groups and records and leaves the records as they are until somebody asks for one.
///
/// No text is trusted to be what it should: where a line is another, the answer is false, and the file is to be read as
/// XML.
class FileScan {
public:
    explicit FileScan(const QByteArray& fileText);

    bool readSystems(SystemFile& content);
    bool readRecords(RecordFile& content);

private:
    bool skip(const char* expected);
    bool skipLine();
    bool readRoot(const FileKind& kind);
    bool readEnd(const FileKind& kind);
    bool readList(RecordList& records, const FileKind& kind, const QByteArray& indent);
    bool readText(const char* attribute, QByteArray& read);
    bool isAt(const char* expected) const;

    const QByteArray text;
    const char* next; ///< what comes next in the text
    const char* const end;
};

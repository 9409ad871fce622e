#pragma once

#include "platform/sdk/FileContent.h"
#include "platform/utility/FileReplacement.h"

/// Writes a file's XML, piece by piece. FileScan knows how the lines look: when they change, so does FileMark's layout.
class FileWriter {
public:
    /// Writes to a file that was started.
    explicit FileWriter(FileReplacement& replacement);

    void write(const RecordFile& content);
    void write(const SystemFile& content);

private:
    void startRoot(const char* root, const FileContent& content);
    void writeRecords(const RecordList& records, const char* element, const QByteArray& indent);
    /// Writes what is unknown in an element and ends it.
    void end(const char* element, const UnknownXml& unknown, const QByteArray& indent);
    void endRoot(const char* root, const FileContent& content);
    void appendAttributes(const UnknownXml& unknown);
    void appendText(const char* attribute, const QByteArray& text);
    void appendNumber(const IDictionary& values, const char* key, const QByteArray& text);
    void appendValue(const RecordContent& record, const char* key, const QByteArray& indent);
    void appendNodes(const QByteArrayList& nodes, const QByteArray& indent);
    void flush();

    FileReplacement& file;
    QByteArray xml;           ///< what is still to be written
    bool isUnderstood = true; ///< nothing unknown so far
};

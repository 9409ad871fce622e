#pragma once

#include "platform/sdk/RecordContent.h"

#include <optional>

/// One coordinate system, ellipsoid or geoid of the catalogue.
///
/// A record of a file that this program wrote is its bytes in that file until somebody asks for its content: most
/// records of a large catalogue are only listed by their names and saved again.
class CatalogueRecord {
public:
    /// Without values.
    CatalogueRecord() = default;
    explicit CatalogueRecord(RecordContent&& content) : read(std::move(content)) {}
    /// The lines of a record in the text of a file. It shares the text, which lives as long as such a record of it.
    CatalogueRecord(const QByteArray& fileText, int start, int size)
        : text(fileText), lineStart(start), lineSize(size) {}

    /// Reads it when it is first asked for.
    RecordContent& content() const;
    IDictionary* values() const { return content().values.get(); }

    /// The record's lines as they stood in its file; empty once somebody has asked for the content, which may be
    /// another by now. Valid while the record is.
    QByteArray unreadLines() const { return QByteArray::fromRawData(text.constData() + lineStart, lineSize); }

    QByteArray name;

private:
    // Whether it was read makes no difference to who looks at the record.
    mutable std::optional<RecordContent> read;
    mutable QByteArray text;
    mutable int lineStart = 0;
    mutable int lineSize = 0;
};

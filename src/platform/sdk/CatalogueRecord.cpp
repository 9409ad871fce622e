#include "platform/sdk/CatalogueRecord.h"

#include "platform/sdk/FileDocument.h"

RecordContent& CatalogueRecord::content() const {
    if (read)
        return *read;
    read.emplace();
    if (lineSize > 0) {
        pugi::xml_document document;
        document.load_buffer(text.constData() + lineStart, size_t(lineSize), FileDocument::parseOptions,
                             pugi::encoding_utf8);
        read->read(document.first_child());
    }
    text.clear();
    lineStart = lineSize = 0;
    return *read;
}

#include "platform/sdk/FileScan.h"

#include "platform/sdk/FileFormat.h"
#include "platform/sdk/FileMark.h"
#include "platform/sdk/FileText.h"

#include <pugixml.hpp>

#include <cstring>

/// What stands in an attribute, with its references replaced.
static QByteArray unescaped(const QByteArray& xml) {
    if (!xml.contains('&'))
        return xml;
    pugi::xml_document document;
    document.load_string(("<x y=\"" + xml + "\"/>").constData(), pugi::parse_escapes);
    return document.first_child().first_attribute().value();
}

FileScan::FileScan(const QByteArray& fileText)
    : text(fileText), next(text.constData()), end(text.constData() + text.size()) {
}

bool FileScan::isAt(const char* expected) const {
    const size_t size = std::strlen(expected);
    return size_t(end - next) >= size && std::memcmp(next, expected, size) == 0;
}

bool FileScan::skip(const char* expected) {
    const bool isThere = isAt(expected);
    if (isThere)
        next += std::strlen(expected);
    return isThere;
}

bool FileScan::skipLine() {
    const void* const lineEnd = std::memchr(next, '\n', size_t(end - next));
    next = lineEnd ? static_cast<const char*>(lineEnd) + 1 : end;
    return lineEnd != nullptr;
}

/// The attribute that stands here, or the same percent-encoded, up to its second quote.
bool FileScan::readText(const char* attribute, QByteArray& read) {
    if (!skip(attribute))
        return false;
    const bool isEncoded = skip(FileFormat::encodedSuffix);
    if (!skip("=\""))
        return false;
    const void* const quote = std::memchr(next, '"', size_t(end - next));
    if (!quote)
        return false;
    const char* const start = next;
    const auto* const behind = static_cast<const char*>(quote);
    next = behind + 1;
    read = QByteArray(start, int(behind - start));
    if (isEncoded)
        read = QByteArray::fromPercentEncoding(read);
    if (isEncoded || FileText::isPlain(start, behind))
        return true;
    const std::optional<QByteArray> local = FileText::fromUtf8(unescaped(read));
    read = local.value_or(QByteArray());
    return local.has_value();
}

bool FileScan::readRoot(const FileKind& kind) {
    const QByteArray version = QByteArray::number(FileFormat::version);
    return skip(FileFormat::declaration) &&
           skip(QByteArray("<") + kind.root + ' ' + FileFormat::versionAttribute + "=\"" + version + "\">\n");
}

bool FileScan::readEnd(const FileKind& kind) {
    return skip(FileFormat::endOf(kind.root)) && skip(QByteArray("<?") + FileMark::target) && skipLine() && next == end;
}

bool FileScan::readList(RecordList& records, const FileKind& kind, const QByteArray& indent) {
    const QByteArray recordStart = indent + FileFormat::startOf(kind.record);
    const QByteArray recordEnd = indent + FileFormat::endOf(kind.record);
    const QByteArray nameValue = indent + FileFormat::indent + '<' + FileFormat::valueElement + ' ' +
                                 FileFormat::keyAttribute + "=\"" + kind.nameKey + "\" ";
    const int deep = indent.size(), keyPlace = nameValue.indexOf('"') + 1;
    const char first = nameValue[keyPlace];
    while (isAt(recordStart)) {
        const char* const start = next;
        QByteArray name;
        next += recordStart.size();
        // Nearly all of a file are these lines, which is why a character tells them.
        while (end - next > keyPlace && next[deep] == ' ') {
            if (next[keyPlace] == first && skip(nameValue) && !readText(FileFormat::textAttribute, name))
                return false;
            if (!skipLine())
                return false;
        }
        if (!skip(recordEnd) ||
            !records.append(name, CatalogueRecord(text, int(start - text.constData()), int(next - start))))
            return false;
    }
    return true;
}

bool FileScan::readRecords(RecordFile& content) {
    return readRoot(content.kind) && readList(content.records, content.kind, FileFormat::indent) &&
           readEnd(content.kind);
}

bool FileScan::readSystems(SystemFile& content) {
    const QByteArray indent = FileFormat::indent;
    const QByteArray groupStart = indent + '<' + FileFormat::groupElement + ' ';
    const QByteArray groupEnd = indent + FileFormat::endOf(FileFormat::groupElement);
    if (!readRoot(systemFile))
        return false;
    while (skip(groupStart)) {
        QByteArray name;
        CoordSysGroup* const group =
            readText(FileFormat::nameAttribute, name) && skip(">\n") ? content.groups.append(name) : nullptr;
        if (!group || !readList(group->systems, systemFile, indent + indent) || !skip(groupEnd))
            return false;
    }
    return readEnd(systemFile);
}

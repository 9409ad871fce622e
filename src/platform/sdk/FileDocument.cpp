#include "platform/sdk/FileDocument.h"

#include "platform/sdk/FileFormat.h"
#include "platform/sdk/FileMark.h"
#include "platform/utility/DiskCalls.h"

#include <cstring>

/// XML has no such byte, and the parser ends there without a word. In UTF-16, which it reads too, half of them are
/// zero.
static bool holdsZero(const QByteArray& bytes) {
    const bool isWide =
        bytes.size() >= 2 && (!bytes[0] || !bytes[1] || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"));
    return !isWide && bytes.contains('\0');
}

bool FileDocument::isElement(const pugi::xml_node& node, const char* name) {
    return node.type() == pugi::node_element && std::strcmp(node.name(), name) == 0;
}

FileDocument::FileDocument(const QString& path, FileBytes&& file, const FileKind& kind, FileContent& content)
    : bytes(std::move(file.bytes)) {
    if (!file.exists)
        return;
    content.condition = FileCondition::Damaged;
    content.stamp = file.stamp;
    const bool isText = file.isRead && !holdsZero(bytes);
    const pugi::xml_parse_result result = parse();
    if (!result && DiskCalls::read(path, &bytes)) // parsing has changed them
        parseBefore(result.offset, kind);
    // An instruction can bear the root's name.
    root = document.find_child([&kind](const pugi::xml_node& node) { return isElement(node, kind.root); });
    const bool hasOneRoot = keepSurroundings(content);
    const int version = root.attribute(FileFormat::versionAttribute).as_int();
    if (isText && result && hasOneRoot && version >= 1 && version <= FileFormat::version)
        content.condition = FileCondition::Whole;
    for (const pugi::xml_attribute& attribute : root.attributes()) {
        if (std::strcmp(attribute.name(), FileFormat::versionAttribute) != 0)
            content.unknown.keep(attribute);
    }
}

pugi::xml_parse_result FileDocument::parse() {
    // With the zero that a byte array has behind its end: the parser takes the last character for one.
    return document.load_buffer_inplace(bytes.data(), size_t(bytes.size()) + 1, parseOptions);
}

/// What is open behind the last complete record stays open: the parser keeps it.
void FileDocument::parseBefore(ptrdiff_t damage, const FileKind& kind) {
    const QByteArray recordEnd = QByteArray("</") + kind.record + '>';
    // Where a file breaks off the parser names the character before the end.
    if (damage < bytes.size() - 1)
        bytes.truncate(int(damage));
    const int end = bytes.lastIndexOf(recordEnd);
    bytes.truncate(end < 0 ? 0 : end + recordEnd.size());
    const pugi::xml_parse_status status = parse().status;
    if (status == pugi::status_ok || status == pugi::status_end_element_mismatch)
        return;
    // That end stood in a comment, an instruction or a text that does not end itself: the parser's last node is a part.
    pugi::xml_node part = document.root();
    while (part.last_child())
        part = part.last_child();
    part.parent().remove_child(part);
}

/// False when there is more than one element, or text beside it.
bool FileDocument::keepSurroundings(FileContent& content) const {
    int elements = 0;
    bool hasText = false;
    for (const pugi::xml_node& node : document.children()) {
        // A mark says of a file what it was; the next save makes its own.
        if (node.type() == pugi::node_pi && std::strcmp(node.name(), FileMark::target) == 0)
            continue;
        if (node.type() == pugi::node_element)
            ++elements;
        else if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            hasText = true;
        else
            (elements == 0 ? content.beforeRoot : content.behindRoot) += UnknownXml::xmlOf(node);
    }
    return elements == 1 && !hasText;
}

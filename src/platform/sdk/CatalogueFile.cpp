#include "platform/sdk/CatalogueFile.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "platform/sdk/FileText.h"
#include "platform/utility/DiskCalls.h"

#include <QFileInfo>
#include <QLocale>

#include <pugixml.hpp>

#include <cstring>
#include <vector>

const FileKind systemFile{"coordinate_systems", "system", CoordParamKey::name};
const FileKind ellipsoidFile{"ellipsoids", "ellipsoid", EllipsoidKey::name};
const FileKind geoidFile{"geoids", "geoid", GeoidKey::name};

static constexpr int formatVersion = 1;
static constexpr int pieceSize = 1 << 16; // bytes of a file that are written at a time
static constexpr const char* groupElement = "group";
static constexpr const char* valueElement = "value";
static constexpr const char* versionAttribute = "version";
static constexpr const char* nameAttribute = "name";
static constexpr const char* keyAttribute = "key";
static constexpr const char* textAttribute = "text";
static constexpr const char* numberAttribute = "number";
static constexpr const char* encodedSuffix = "_encoded";

/// Between the elements that this version knows, blank text only sets them apart.
static bool isBlank(const pugi::xml_node& node) {
    return node.type() == pugi::node_pcdata && node.value()[std::strspn(node.value(), " \t\r\n")] == '\0';
}

static bool isElement(const pugi::xml_node& node, const char* name) {
    return node.type() == pugi::node_element && std::strcmp(node.name(), name) == 0;
}

struct ByteArrayWriter : pugi::xml_writer {
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), int(size)); }
    QByteArray text;
};

static void keepAttribute(UnknownXml& unknown, const pugi::xml_attribute& attribute) {
    unknown.attributes += QByteArray(" ") + attribute.name() + "=\"" + FileText::escaped(attribute.value()) + '"';
}

/// The blank texts between nodes, which the parser drops unless they are written as references.
struct BlankTexts : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
        if (isBlank(node) && (node.previous_sibling() || node.next_sibling()))
            found.push_back(node);
        return true;
    }
    std::vector<pugi::xml_node> found;
};

/// The node as XML that reads the same again.
static QByteArray xmlOf(pugi::xml_node node) {
    BlankTexts blanks;
    node.traverse(blanks);
    for (const pugi::xml_node& blank : blanks.found)
        blank.parent().remove_child(blank);
    ByteArrayWriter writer;
    node.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
    writer.text.replace("\r", "&#13;"); // it was a reference: any other is a line feed by now
    // A text gets a line of its own when it is written, and must not get another one at every save.
    return node.type() == pugi::node_pcdata ? writer.text.trimmed() : writer.text;
}

static void keepChild(UnknownXml& unknown, const pugi::xml_node& child) {
    if (!isBlank(child))
        unknown.children += xmlOf(child);
}

/// A file's XML. Of a damaged file it is what stands before the damage, up to the last complete record.
class FileDocument {
public:
    /// Reads the file, and into `content` what every kind of file has.
    FileDocument(const QString& path, const FileKind& kind, FileContent& content);

    pugi::xml_node root; ///< null when there is none of this kind

private:
    pugi::xml_parse_result parse();
    void parseBefore(ptrdiff_t damage, const FileKind& kind);
    bool keepSurroundings(FileContent& content) const;

    QByteArray bytes; // the document points into it
    pugi::xml_document document;
};

/// XML has no such byte, and the parser ends there without a word. In UTF-16, which it reads too, half of them are
/// zero.
static bool holdsZero(const QByteArray& bytes) {
    const bool isWide =
        bytes.size() >= 2 && (!bytes[0] || !bytes[1] || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"));
    return !isWide && bytes.contains('\0');
}

FileDocument::FileDocument(const QString& path, const FileKind& kind, FileContent& content) {
    if (!QFileInfo::exists(path))
        return;
    content.condition = FileCondition::Damaged;
    const bool isRead = DiskCalls::read(path, &bytes);
    if (isRead)
        content.stamp = FileStamp(path, ContentHash(bytes));
    const bool isText = isRead && !holdsZero(bytes);
    const pugi::xml_parse_result result = parse();
    if (!result && DiskCalls::read(path, &bytes)) // parsing has changed them
        parseBefore(result.offset, kind);
    // An instruction can bear the root's name.
    root = document.find_child([&kind](const pugi::xml_node& node) { return isElement(node, kind.root); });
    const bool hasOneRoot = keepSurroundings(content);
    const int version = root.attribute(versionAttribute).as_int();
    if (isText && result && hasOneRoot && version >= 1 && version <= formatVersion)
        content.condition = FileCondition::Whole;
    for (const pugi::xml_attribute& attribute : root.attributes()) {
        if (std::strcmp(attribute.name(), versionAttribute) != 0)
            keepAttribute(content.unknown, attribute);
    }
}

pugi::xml_parse_result FileDocument::parse() {
    // Attributes keep their line breaks and tabs; what a person wrote beside the elements is kept for him.
    constexpr unsigned int options = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_comments |
                                     pugi::parse_pi | pugi::parse_doctype | pugi::parse_ws_pcdata_single |
                                     pugi::parse_fragment;
    // With the zero that a byte array has behind its end: the parser takes the last character for one.
    return document.load_buffer_inplace(bytes.data(), size_t(bytes.size()) + 1, options);
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
        if (node.type() == pugi::node_element)
            ++elements;
        else if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            hasText = true;
        else
            (elements == 0 ? content.beforeRoot : content.behindRoot) += xmlOf(node);
    }
    return elements == 1 && !hasText;
}

/// A text as it comes from an attribute.
class ReadText {
public:
    /// Whether the attribute holds the text `name`: as it is, or percent-encoded in the attribute `name` + "_encoded".
    bool read(const pugi::xml_attribute& attribute, const char* name);

    /// Null when there was none, or none that the local encoding can express. It lives as long as this and the
    /// document.
    const char* get() const { return text; }

private:
    const char* text = nullptr;
    QByteArray converted;
};

bool ReadText::read(const pugi::xml_attribute& attribute, const char* name) {
    const size_t length = std::strlen(name);
    if (std::strncmp(attribute.name(), name, length) != 0)
        return false;
    const char* suffix = attribute.name() + length;
    if (!*suffix && FileText::isPlain(attribute.value())) {
        text = attribute.value();
        return true;
    }
    std::optional<QByteArray> read;
    if (!*suffix)
        read = FileText::fromUtf8(attribute.value());
    else if (std::strcmp(suffix, encodedSuffix) == 0)
        read = QByteArray::fromPercentEncoding(attribute.value());
    else
        return false;
    converted = read.value_or(QByteArray());
    text = read ? converted.constData() : nullptr;
    return true;
}

/// False when the element is no value that this version understands.
static bool readValue(const pugi::xml_node& element, CatalogueRecord& record) {
    ReadText key, text;
    const char* number = nullptr;
    UnknownXml unknown;
    // pugixml's own loops cost far less here than its ranges do.
    for (pugi::xml_attribute attribute = element.first_attribute(); attribute; attribute = attribute.next_attribute()) {
        if (key.read(attribute, keyAttribute) || text.read(attribute, textAttribute))
            continue;
        if (std::strcmp(attribute.name(), numberAttribute) == 0)
            number = attribute.value();
        else
            keepAttribute(unknown, attribute);
    }
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling())
        keepChild(unknown, child);
    if (!key.get() || !text.get())
        return false;

    const int before = record.values->count();
    bool isNumber = true;
    if (number)
        record.values->setNumber(key.get(), text.get(), QByteArray(number).toDouble(&isNumber));
    else
        record.values->setText(key.get(), text.get());
    if (!unknown.isEmpty())
        record.unknownOfValues.insert(key.get(), unknown);
    return isNumber && record.values->count() > before;
}

/// False when a value can't be understood, or there is text between the values: a value that lost its "<". The record
/// is then not to be shown without it, as if it were complete.
static bool readValues(const pugi::xml_node& element, CatalogueRecord& record) {
    for (const pugi::xml_attribute& attribute : element.attributes())
        keepAttribute(record.unknown, attribute);
    for (const pugi::xml_node& child : element.children()) {
        if (isElement(child, valueElement)) {
            if (!readValue(child, record))
                return false;
        } else {
            if (child.type() == pugi::node_pcdata && !isBlank(child))
                return false;
            keepChild(record.unknown, child);
        }
    }
    return true;
}

static void readRecord(const pugi::xml_node& element, RecordList& records, UnknownXml& unknownOfParent) {
    CatalogueRecord record;
    if (!readValues(element, record) || !records.append(std::move(record)))
        keepChild(unknownOfParent, element);
}

static void readGroup(const pugi::xml_node& element, SystemFile& content) {
    ReadText name;
    UnknownXml unknown;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        if (!name.read(attribute, nameAttribute))
            keepAttribute(unknown, attribute);
    }
    CoordSysGroup* group = content.groups.append(name.get());
    if (!group) {
        keepChild(content.unknown, element);
        return;
    }
    group->unknown = unknown;
    for (const pugi::xml_node& child : element.children()) {
        if (isElement(child, systemFile.record))
            readRecord(child, group->systems, group->unknown);
        else
            keepChild(group->unknown, child);
    }
}

RecordFile CatalogueFile::readRecords(const QString& path, const FileKind& kind) {
    RecordFile content(kind);
    const FileDocument document(path, kind, content);
    for (const pugi::xml_node& child : document.root.children()) {
        if (isElement(child, kind.record))
            readRecord(child, content.records, content.unknown);
        else
            keepChild(content.unknown, child);
    }
    return content;
}

SystemFile CatalogueFile::readSystems(const QString& path) {
    SystemFile content;
    const FileDocument document(path, systemFile, content);
    for (const pugi::xml_node& child : document.root.children()) {
        if (isElement(child, groupElement))
            readGroup(child, content);
        else
            keepChild(content.unknown, child);
    }
    return content;
}

/// A file's XML, made piece by piece.
class FileWriter {
public:
    // What is reserved stays when the text is emptied.
    explicit FileWriter(FileReplacement& replacement) : file(replacement) { xml.reserve(2 * pieceSize); }

    void startRoot(const char* root, const FileContent& content);
    void startGroup(const CoordSysGroup& group);
    void writeRecords(const RecordList& records, const char* element, const char* indent);
    /// Writes what is unknown in an element and ends it.
    void end(const char* element, const UnknownXml& unknown, const QByteArray& indent);
    /// Nothing comes behind.
    void endRoot(const char* root, const FileContent& content);

private:
    void appendText(const char* attribute, const QByteArray& text);
    void appendNumber(const IDictionary& values, const char* key, const QByteArray& text);
    void appendValue(const CatalogueRecord& record, const char* key, const QByteArray& indent);
    void flush();

    FileReplacement& file;
    QByteArray xml; ///< what is still to be written
};

void FileWriter::appendText(const char* attribute, const QByteArray& text) {
    xml.append(' ').append(attribute);
    if (FileText::isPlain(text.constData()))
        xml.append("=\"").append(text).append('"');
    else if (const std::optional<QByteArray> utf8 = FileText::toUtf8(text))
        xml.append("=\"").append(FileText::escaped(*utf8)).append('"');
    else
        xml.append(encodedSuffix).append("=\"").append(text.toPercentEncoding(" ")).append('"');
}

/// The number behind a text, with as many digits as give it back bit for bit; nothing when the text says as much.
void FileWriter::appendNumber(const IDictionary& values, const char* key, const QByteArray& text) {
    double number;
    if (!values.getNumber(key, &number))
        return;
    bool isNumber = false;
    const double textsOwn = text.toDouble(&isNumber);
    if (isNumber && std::memcmp(&textsOwn, &number, sizeof number) == 0)
        return;
    xml.append(' ').append(numberAttribute).append("=\"");
    xml.append(QByteArray::number(number, 'g', QLocale::FloatingPointShortest)).append('"');
}

void FileWriter::appendValue(const CatalogueRecord& record, const char* key, const QByteArray& indent) {
    const QByteArray text = record.values->getValue(key);
    const UnknownXml unknown = record.unknownOfValues.value(key);
    xml.append(indent).append('<').append(valueElement);
    appendText(keyAttribute, key);
    appendText(textAttribute, text);
    appendNumber(*record.values, key, text);
    xml.append(unknown.attributes);
    if (unknown.children.isEmpty()) {
        xml.append("/>\n");
        return;
    }
    xml.append(">\n");
    end(valueElement, unknown, indent);
}

void FileWriter::writeRecords(const RecordList& records, const char* element, const char* indent) {
    const QByteArray valueIndent = QByteArray(indent) + "  ";
    for (const CatalogueRecord& record : records) {
        xml.append(indent).append('<').append(element).append(record.unknown.attributes).append(">\n");
        for (int i = 0; i < record.values->count(); ++i)
            appendValue(record, record.values->getKey(i), valueIndent);
        end(element, record.unknown, indent);
        if (xml.size() > pieceSize)
            flush();
    }
}

void FileWriter::startRoot(const char* root, const FileContent& content) {
    xml.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    for (const QByteArray& node : content.beforeRoot)
        xml.append(node).append('\n');
    xml.append('<').append(root);
    appendText(versionAttribute, QByteArray::number(formatVersion));
    xml.append(content.unknown.attributes).append(">\n");
}

void FileWriter::endRoot(const char* root, const FileContent& content) {
    end(root, content.unknown, {});
    for (const QByteArray& node : content.behindRoot)
        xml.append(node).append('\n');
    flush();
}

void FileWriter::startGroup(const CoordSysGroup& group) {
    xml.append("  <").append(groupElement);
    appendText(nameAttribute, group.name);
    xml.append(group.unknown.attributes).append(">\n");
}

void FileWriter::end(const char* element, const UnknownXml& unknown, const QByteArray& indent) {
    for (const QByteArray& child : unknown.children)
        xml.append(indent).append("  ").append(child).append('\n');
    xml.append(indent).append("</").append(element).append(">\n");
}

void FileWriter::flush() {
    file.write(xml);
    xml.resize(0);
}

void CatalogueFile::writeTo(FileReplacement& file, const RecordFile& content) {
    FileWriter writer(file);
    writer.startRoot(content.kind.root, content);
    writer.writeRecords(content.records, content.kind.record, "  ");
    writer.endRoot(content.kind.root, content);
}

void CatalogueFile::writeTo(FileReplacement& file, const SystemFile& content) {
    FileWriter writer(file);
    writer.startRoot(systemFile.root, content);
    for (const CoordSysGroup& group : content.groups) {
        writer.startGroup(group);
        writer.writeRecords(group.systems, systemFile.record, "    ");
        writer.end(groupElement, group.unknown, "  ");
    }
    writer.endRoot(systemFile.root, content);
}

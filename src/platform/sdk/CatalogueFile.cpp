#include "platform/sdk/CatalogueFile.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "platform/sdk/FileText.h"

#include <QFile>
#include <QLocale>
#include <QSaveFile>

#include <pugixml.hpp>

#include <algorithm>
#include <cstring>

const FileKind systemFile{"coordinate_systems", "system", CoordParamKey::name};
const FileKind ellipsoidFile{"ellipsoids", "ellipsoid", EllipsoidKey::name};
const FileKind geoidFile{"geoids", "geoid", GeoidKey::name};

static constexpr int formatVersion = 1;
static constexpr const char* groupElement = "group";
static constexpr const char* valueElement = "value";
static constexpr const char* versionAttribute = "version";
static constexpr const char* nameAttribute = "name";
static constexpr const char* keyAttribute = "key";
static constexpr const char* textAttribute = "text";
static constexpr const char* numberAttribute = "number";
static constexpr const char* encodedSuffix = "_encoded";

/// A file's XML. Of a damaged file it is what stands before the damage, up to the last complete record.
class FileDocument {
public:
    FileDocument(const QString& path, const FileKind& kind);

    FileCondition condition = FileCondition::Damaged;
    pugi::xml_node root; ///< null when there is none of this kind
    UnknownXml unknown;  ///< of the root

private:
    pugi::xml_parse_result parse();
    bool hasOneRoot() const;

    QByteArray content; // the document points into it
    pugi::xml_document document;
};

FileDocument::FileDocument(const QString& path, const FileKind& kind) {
    QFile file(path);
    if (!file.exists()) {
        condition = FileCondition::Missing;
        return;
    }
    if (!file.open(QIODevice::ReadOnly))
        return;
    content = file.readAll();
    const pugi::xml_parse_result result = parse();
    if (!result) {
        // What is open behind the last complete record stays open: the parser keeps it. Parsing has changed the
        // content, and where a file breaks off the parser names the character before the end.
        const QByteArray recordEnd = QByteArray("</") + kind.record + '>';
        file.seek(0);
        content = file.readAll();
        if (int(result.offset) < content.size() - 1)
            content.truncate(int(result.offset));
        const int end = content.lastIndexOf(recordEnd);
        content.truncate(end < 0 ? 0 : end + recordEnd.size());
        parse();
    }
    root = document.child(kind.root);
    const int version = root.attribute("version").as_int();
    if (result && hasOneRoot() && version >= 1 && version <= formatVersion)
        condition = FileCondition::Whole;
}

pugi::xml_parse_result FileDocument::parse() {
    // Attributes keep their line breaks and tabs; comments are kept for the person who wrote them.
    constexpr unsigned int options =
        pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_comments | pugi::parse_ws_pcdata_single;
    return document.load_buffer_inplace(content.data(), size_t(content.size()), options);
}

bool FileDocument::hasOneRoot() const {
    const auto isElement = [](const pugi::xml_node& node) { return node.type() == pugi::node_element; };
    return std::count_if(document.begin(), document.end(), isElement) == 1;
}

struct ByteArrayWriter : pugi::xml_writer {
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), int(size)); }
    QByteArray text;
};

static void keepAttribute(UnknownXml& unknown, const pugi::xml_attribute& attribute) {
    unknown.attributes += QByteArray(" ") + attribute.name() + "=\"" + FileText::escaped(attribute.value()) + '"';
}

static void keepChild(UnknownXml& unknown, const pugi::xml_node& child) {
    ByteArrayWriter writer;
    child.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
    unknown.children += writer.text;
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
        if (child.type() == pugi::node_pcdata)
            return false;
        if (std::strcmp(child.name(), valueElement) != 0)
            keepChild(record.unknown, child);
        else if (!readValue(child, record))
            return false;
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
        if (std::strcmp(child.name(), systemFile.record) == 0)
            readRecord(child, group->systems, group->unknown);
        else
            keepChild(group->unknown, child);
    }
}

static void keepRootAttributes(UnknownXml& unknown, const pugi::xml_node& root) {
    for (const pugi::xml_attribute& attribute : root.attributes()) {
        if (std::strcmp(attribute.name(), versionAttribute) != 0)
            keepAttribute(unknown, attribute);
    }
}

RecordFile CatalogueFile::readRecords(const QString& path, const FileKind& kind) {
    const FileDocument document(path, kind);
    RecordFile content(kind);
    content.condition = document.condition;
    keepRootAttributes(content.unknown, document.root);
    for (const pugi::xml_node& child : document.root.children()) {
        if (std::strcmp(child.name(), kind.record) == 0)
            readRecord(child, content.records, content.unknown);
        else
            keepChild(content.unknown, child);
    }
    return content;
}

SystemFile CatalogueFile::readSystems(const QString& path) {
    const FileDocument document(path, systemFile);
    SystemFile content;
    content.condition = document.condition;
    keepRootAttributes(content.unknown, document.root);
    for (const pugi::xml_node& child : document.root.children()) {
        if (std::strcmp(child.name(), groupElement) == 0)
            readGroup(child, content);
        else
            keepChild(content.unknown, child);
    }
    return content;
}

FileCondition CatalogueFile::condition(const QString& path, const FileKind& kind) {
    return FileDocument(path, kind).condition;
}

/// Writes a file's XML piece by piece.
class FileWriter {
public:
    explicit FileWriter(const QString& path) : file(path) { isOpen = file.open(QIODevice::WriteOnly); }

    void startRoot(const char* root, const UnknownXml& unknown);
    void startGroup(const CoordSysGroup& group);
    void writeRecords(const RecordList& records, const char* element, const char* indent);
    /// Writes what is unknown in an element and ends it.
    void end(const char* element, const UnknownXml& unknown, const QByteArray& indent);
    /// False when anything could not be written; the file is then the old one.
    bool commit();

private:
    void appendText(const char* attribute, const QByteArray& text);
    void appendNumber(const IDictionary& values, const char* key, const QByteArray& text);
    void appendValue(const CatalogueRecord& record, const char* key, const QByteArray& indent);
    void flush();

    QSaveFile file;
    bool isOpen;
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
        flush();
    }
}

void FileWriter::startRoot(const char* root, const UnknownXml& unknown) {
    xml.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<").append(root);
    appendText(versionAttribute, QByteArray::number(formatVersion));
    xml.append(unknown.attributes).append(">\n");
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
    if (isOpen)
        file.write(xml);
    xml.resize(0);
}

bool FileWriter::commit() {
    flush();
    return isOpen && file.commit();
}

bool CatalogueFile::write(const QString& path, const RecordFile& content) {
    FileWriter writer(path);
    writer.startRoot(content.kind.root, content.unknown);
    writer.writeRecords(content.records, content.kind.record, "  ");
    writer.end(content.kind.root, content.unknown, {});
    return writer.commit();
}

bool CatalogueFile::write(const QString& path, const SystemFile& content) {
    FileWriter writer(path);
    writer.startRoot(systemFile.root, content.unknown);
    for (const CoordSysGroup& group : content.groups) {
        writer.startGroup(group);
        writer.writeRecords(group.systems, systemFile.record, "    ");
        writer.end(groupElement, group.unknown, "  ");
    }
    writer.end(systemFile.root, content.unknown, {});
    return writer.commit();
}

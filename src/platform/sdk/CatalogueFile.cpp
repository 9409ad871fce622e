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

/// A text stands in the attribute `name` or, percent-encoded, in the attribute `name` + "_encoded". False when this is
/// another attribute; `text` is left without a value when the local encoding can't express it.
static bool readText(const pugi::xml_attribute& attribute, const char* name, std::optional<QByteArray>& text) {
    const size_t length = std::strlen(name);
    if (std::strncmp(attribute.name(), name, length) != 0)
        return false;
    const char* suffix = attribute.name() + length;
    if (!*suffix)
        text = FileText::fromUtf8(attribute.value());
    else if (std::strcmp(suffix, encodedSuffix) == 0)
        text = QByteArray::fromPercentEncoding(attribute.value());
    else
        return false;
    return true;
}

/// False when the element is no value that this version understands.
static bool readValue(const pugi::xml_node& element, CatalogueRecord& record) {
    std::optional<QByteArray> key, text;
    double number = 0.0;
    bool hasNumber = false;
    UnknownXml unknown;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        if (std::strcmp(attribute.name(), numberAttribute) == 0) {
            number = QByteArray(attribute.value()).toDouble(&hasNumber);
            if (!hasNumber)
                return false;
        } else if (!readText(attribute, keyAttribute, key) && !readText(attribute, textAttribute, text)) {
            keepAttribute(unknown, attribute);
        }
    }
    if (!key || !text || record.values->getValue(key->constData()))
        return false;
    for (const pugi::xml_node& child : element.children())
        keepChild(unknown, child);

    if (hasNumber)
        record.values->setNumber(key->constData(), text->constData(), number);
    else
        record.values->setText(key->constData(), text->constData());
    if (!unknown.isEmpty())
        record.unknownOfValues.insert(*key, unknown);
    return true;
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
    CatalogueRecord read;
    CatalogueRecord* added = readValues(element, read) ? records.append(read.values.get()) : nullptr;
    if (!added) {
        keepChild(unknownOfParent, element);
        return;
    }
    added->unknown = read.unknown;
    added->unknownOfValues = read.unknownOfValues;
}

static void readGroup(const pugi::xml_node& element, SystemFile& content) {
    std::optional<QByteArray> name;
    UnknownXml unknown;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        if (!readText(attribute, nameAttribute, name))
            keepAttribute(unknown, attribute);
    }
    CoordSysGroup* group = content.groups.append(name.value_or(QByteArray()));
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

static QByteArray textXml(const char* attribute, const QByteArray& text) {
    if (const std::optional<QByteArray> utf8 = FileText::toUtf8(text))
        return QByteArray(" ") + attribute + "=\"" + FileText::escaped(*utf8) + '"';
    return QByteArray(" ") + attribute + encodedSuffix + "=\"" + text.toPercentEncoding(" ") + '"';
}

/// The number behind a text, with as many digits as give it back bit for bit; empty when the text says as much.
static QByteArray numberXml(const IDictionary& values, const char* key, const QByteArray& text) {
    double number;
    if (!values.getNumber(key, &number))
        return {};
    bool isNumber = false;
    const double textsOwn = text.toDouble(&isNumber);
    if (isNumber && std::memcmp(&textsOwn, &number, sizeof number) == 0)
        return {};
    return QByteArray(" ") + numberAttribute + "=\"" + QByteArray::number(number, 'g', QLocale::FloatingPointShortest) +
           '"';
}

static void writeChildren(QIODevice& file, const UnknownXml& unknown, const QByteArray& indent) {
    for (const QByteArray& child : unknown.children)
        file.write(indent + child + '\n');
}

static void writeValue(QIODevice& file, const CatalogueRecord& record, const char* key, const QByteArray& indent) {
    const QByteArray text = record.values->getValue(key);
    const UnknownXml unknown = record.unknownOfValues.value(key);
    file.write(indent + '<' + valueElement + textXml(keyAttribute, key) + textXml(textAttribute, text) +
               numberXml(*record.values, key, text) + unknown.attributes);
    if (unknown.children.isEmpty()) {
        file.write("/>\n");
        return;
    }
    file.write(">\n");
    writeChildren(file, unknown, indent + "  ");
    file.write(indent + "</" + valueElement + ">\n");
}

static void writeRecords(QIODevice& file, const RecordList& records, const char* element, const QByteArray& indent) {
    for (const CatalogueRecord& record : records) {
        file.write(indent + '<' + element + record.unknown.attributes + ">\n");
        for (int i = 0; i < record.values->count(); ++i)
            writeValue(file, record, record.values->getKey(i), indent + "  ");
        writeChildren(file, record.unknown, indent + "  ");
        file.write(indent + "</" + element + ">\n");
    }
}

/// Writes the root element with what `writeContent` puts into it.
template <class WriteContent>
static bool writeFile(const QString& path, const char* root, const UnknownXml& unknown, WriteContent writeContent) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<") + root + ' ' + versionAttribute + "=\"" +
               QByteArray::number(formatVersion) + '"' + unknown.attributes + ">\n");
    writeContent(file);
    writeChildren(file, unknown, "  ");
    file.write(QByteArray("</") + root + ">\n");
    return file.commit();
}

bool CatalogueFile::write(const QString& path, const RecordFile& content) {
    return writeFile(path, content.kind.root, content.unknown,
                     [&](QIODevice& file) { writeRecords(file, content.records, content.kind.record, "  "); });
}

bool CatalogueFile::write(const QString& path, const SystemFile& content) {
    return writeFile(path, systemFile.root, content.unknown, [&](QIODevice& file) {
        for (const CoordSysGroup& group : content.groups) {
            file.write(QByteArray("  <") + groupElement + textXml(nameAttribute, group.name) +
                       group.unknown.attributes + ">\n");
            writeRecords(file, group.systems, systemFile.record, "    ");
            writeChildren(file, group.unknown, "    ");
            file.write(QByteArray("  </") + groupElement + ">\n");
        }
    });
}

#include "platform/sdk/FileWriter.h"

#include "platform/sdk/FileFormat.h"
#include "platform/sdk/FileMark.h"
#include "platform/sdk/FileText.h"

#include <QLocale>

#include <cstring>

// Bytes of a file that are written at a time. A disk takes twice as long for a tenth, and no less time for ten times
// as many.
static constexpr int pieceSize = 1 << 18;

// What is reserved stays when the text is emptied.
FileWriter::FileWriter(FileReplacement& replacement) : file(replacement) {
    xml.reserve(pieceSize + pieceSize / 4);
}

void FileWriter::write(const RecordFile& content) {
    startRoot(content.kind.root, content);
    writeRecords(content.records, content.kind.record, FileFormat::indent);
    endRoot(content.kind.root, content);
}

void FileWriter::write(const SystemFile& content) {
    const QByteArray indent = FileFormat::indent;
    startRoot(systemFile.root, content);
    for (const CoordSysGroup& group : content.groups) {
        xml.append(indent).append('<').append(FileFormat::groupElement);
        appendText(FileFormat::nameAttribute, group.name);
        appendAttributes(group.unknown);
        xml.append(">\n");
        writeRecords(group.systems, systemFile.record, indent + indent);
        end(FileFormat::groupElement, group.unknown, indent);
    }
    endRoot(systemFile.root, content);
}

void FileWriter::startRoot(const char* root, const FileContent& content) {
    xml.append(FileFormat::declaration);
    appendNodes(content.beforeRoot, {});
    xml.append('<').append(root);
    appendText(FileFormat::versionAttribute, QByteArray::number(FileFormat::version));
    appendAttributes(content.unknown);
    xml.append(">\n");
}

/// Nothing comes behind.
void FileWriter::endRoot(const char* root, const FileContent& content) {
    end(root, content.unknown, {});
    appendNodes(content.behindRoot, {});
    flush();
    if (isUnderstood)
        file.write(FileMark::behind(file.content()));
}

void FileWriter::writeRecords(const RecordList& records, const char* element, const QByteArray& indent) {
    const QByteArray valueIndent = indent + FileFormat::indent;
    for (const CatalogueRecord& record : records) {
        if (xml.size() > pieceSize)
            flush();
        const QByteArray unread = record.unreadLines();
        if (!unread.isEmpty()) {
            xml.append(unread);
            continue;
        }
        const RecordContent& content = record.content();
        xml.append(indent).append('<').append(element);
        appendAttributes(content.unknown);
        xml.append(">\n");
        for (int i = 0; i < content.values->count(); ++i)
            appendValue(content, content.values->getKey(i), valueIndent);
        end(element, content.unknown, indent);
    }
}

void FileWriter::appendValue(const RecordContent& record, const char* key, const QByteArray& indent) {
    const QByteArray text = record.values->getValue(key);
    const UnknownXml unknown = record.unknownOfValues.value(key);
    xml.append(indent).append('<').append(FileFormat::valueElement);
    appendText(FileFormat::keyAttribute, key);
    appendText(FileFormat::textAttribute, text);
    appendNumber(*record.values, key, text);
    appendAttributes(unknown);
    if (unknown.children.isEmpty()) {
        xml.append("/>\n");
        return;
    }
    xml.append(">\n");
    end(FileFormat::valueElement, unknown, indent);
}

void FileWriter::end(const char* element, const UnknownXml& unknown, const QByteArray& indent) {
    appendNodes(unknown.children, indent + FileFormat::indent);
    xml.append(indent).append(FileFormat::endOf(element));
}

void FileWriter::appendAttributes(const UnknownXml& unknown) {
    xml.append(unknown.attributes);
    isUnderstood = isUnderstood && unknown.attributes.isEmpty();
}

void FileWriter::appendNodes(const QByteArrayList& nodes, const QByteArray& indent) {
    for (const QByteArray& node : nodes)
        xml.append(indent).append(node).append('\n');
    isUnderstood = isUnderstood && nodes.isEmpty();
}

void FileWriter::appendText(const char* attribute, const QByteArray& text) {
    xml.append(' ').append(attribute);
    if (FileText::isPlain(text.constData()))
        xml.append("=\"").append(text).append('"');
    else if (const std::optional<QByteArray> utf8 = FileText::toUtf8(text))
        xml.append("=\"").append(FileText::escaped(*utf8)).append('"');
    else
        xml.append(FileFormat::encodedSuffix).append("=\"").append(text.toPercentEncoding(" ")).append('"');
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
    xml.append(' ').append(FileFormat::numberAttribute).append("=\"");
    xml.append(QByteArray::number(number, 'g', QLocale::FloatingPointShortest)).append('"');
}

void FileWriter::flush() {
    file.write(xml);
    xml.resize(0);
}

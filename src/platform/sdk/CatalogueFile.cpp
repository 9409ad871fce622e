#include "platform/sdk/CatalogueFile.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "platform/sdk/AttributeText.h"
#include "platform/sdk/FileDocument.h"
#include "platform/sdk/FileFormat.h"
#include "platform/sdk/FileScan.h"

const FileKind systemFile{"coordinate_systems", "system", CoordParamKey::name};
const FileKind ellipsoidFile{"ellipsoids", "ellipsoid", EllipsoidKey::name};
const FileKind geoidFile{"geoids", "geoid", GeoidKey::name};

static void readRecord(const pugi::xml_node& element, RecordList& records, UnknownXml& unknownOfParent) {
    RecordContent content;
    const bool isUnderstood = content.read(element);
    const QByteArray name = records.nameOf(content.values.get());
    if (!isUnderstood || !records.append(name, CatalogueRecord(std::move(content))))
        unknownOfParent.keep(element);
}

static void readGroup(const pugi::xml_node& element, SystemFile& content) {
    AttributeText name;
    UnknownXml unknown;
    for (const pugi::xml_attribute& attribute : element.attributes()) {
        if (!name.read(attribute, FileFormat::nameAttribute))
            unknown.keep(attribute);
    }
    CoordSysGroup* group = content.groups.append(name.get());
    if (!group) {
        content.unknown.keep(element);
        return;
    }
    group->unknown = unknown;
    for (const pugi::xml_node& child : element.children()) {
        if (FileDocument::isElement(child, systemFile.record))
            readRecord(child, group->systems, group->unknown);
        else
            group->unknown.keep(child);
    }
}

RecordFile CatalogueFile::readRecords(const QString& path, const FileKind& kind) {
    FileBytes file(path);
    if (file.isAsWritten) {
        RecordFile scanned(kind);
        if (FileScan(file.bytes).readRecords(scanned)) {
            scanned.condition = FileCondition::Whole;
            scanned.stamp = file.stamp;
            return scanned;
        }
    }
    RecordFile content(kind);
    const FileDocument document(path, std::move(file), kind, content);
    for (const pugi::xml_node& child : document.root.children()) {
        if (FileDocument::isElement(child, kind.record))
            readRecord(child, content.records, content.unknown);
        else
            content.unknown.keep(child);
    }
    return content;
}

SystemFile CatalogueFile::readSystems(const QString& path) {
    FileBytes file(path);
    if (file.isAsWritten) {
        SystemFile scanned;
        if (FileScan(file.bytes).readSystems(scanned)) {
            scanned.condition = FileCondition::Whole;
            scanned.stamp = file.stamp;
            return scanned;
        }
    }
    SystemFile content;
    const FileDocument document(path, std::move(file), systemFile, content);
    for (const pugi::xml_node& child : document.root.children()) {
        if (FileDocument::isElement(child, FileFormat::groupElement))
            readGroup(child, content);
        else
            content.unknown.keep(child);
    }
    return content;
}

#include "platform/sdk/RecordStore.h"

#include "platform/sdk/CatalogueFile.h"

#include <cstdlib>

RecordStore::RecordStore(const FileKind& fileKind, const char* key, const QString& rescueFolder)
    : kind(fileKind), flagKey(key), userFile(rescueFolder), shipped(fileKind), own(fileKind) {
}

void RecordStore::load(const QString& shippedPath, const QString& userPath) {
    const auto read = [this](const QString& path) { return CatalogueFile::readRecords(path, kind); };
    userFile.setPath(userPath);
    own = userFile.load(read);
    shipped = read(shippedPath);
    for (const CatalogueRecord& record : own.records)
        shipped.records.remove(record.name);
}

const char* RecordStore::names() const {
    allNames = shipped.records.names();
    if (!shipped.isEmpty() && !own.isEmpty())
        allNames += ',';
    allNames += own.records.names();
    return allNames.constData();
}

IDictionary* RecordStore::find(const QByteArray& name) const {
    const CatalogueRecord* found = own.records.find(name);
    if (!found)
        found = shipped.records.find(name);
    return found ? found->values() : nullptr;
}

void RecordStore::put(const IDictionary* record) {
    if (!record)
        return;
    const QByteArray name = own.records.nameOf(record);
    const char* flag = record->getValue(flagKey);
    const bool isOwn = flag && std::atoi(flag) == 0;
    RecordList& target = isOwn ? own.records : shipped.records;
    RecordList& other = isOwn ? shipped.records : own.records;
    if (target.find(name))
        target.set(name, record);
    else if (target.append(record))
        other.remove(name);
}

void RecordStore::remove(const QByteArray& name) {
    shipped.records.remove(name);
    own.records.remove(name);
}

void RecordStore::save(const QString& path) {
    userFile.save(path, own);
}

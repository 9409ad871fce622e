#include "platform/sdk/RecordList.h"

RecordList::RecordList(const char* key) : nameKey(key) {
}

CatalogueRecord* RecordList::find(const QByteArray& name) const {
    return records.find(name);
}

CatalogueRecord* RecordList::prepend(const IDictionary* record) {
    return fill(records.prepend(nameOf(record)), record);
}

CatalogueRecord* RecordList::append(const IDictionary* record) {
    return fill(records.append(nameOf(record)), record);
}

CatalogueRecord* RecordList::append(const QByteArray& name, CatalogueRecord&& record) {
    return records.append(name, std::move(record));
}

CatalogueRecord* RecordList::fill(CatalogueRecord* added, const IDictionary* record) const {
    if (added)
        dictionary_assign(added->values(), record);
    return added;
}

void RecordList::set(const QByteArray& name, const IDictionary* record) {
    CatalogueRecord* found = records.find(name);
    if (!found || !record)
        return;
    dictionary_assign(found->values(), record);
    found->values()->setText(nameKey, found->name.constData());
}

bool RecordList::rename(const QByteArray& oldName, const QByteArray& newName) {
    if (!records.rename(oldName, newName))
        return false;
    records.find(newName)->values()->setText(nameKey, newName.constData());
    return true;
}

bool RecordList::remove(const QByteArray& name) {
    return records.remove(name);
}

bool RecordList::isEmpty() const {
    return records.isEmpty();
}

const QByteArray& RecordList::names() const {
    return records.names();
}

QByteArray RecordList::nameOf(const IDictionary* record) const {
    return record ? QByteArray(record->getValue(nameKey)) : QByteArray();
}

#pragma once

#include "platform/sdk/CatalogueRecord.h"
#include "platform/sdk/NamedList.h"

/// Records in an order. Each bears its own name, unique in the list, under the key that all of them keep it in.
class RecordList {
public:
    /// `nameKey` is the key of the records' names; the text must outlive the list.
    explicit RecordList(const char* nameKey);

    /// Null when there is no record of that name.
    CatalogueRecord* find(const QByteArray& name) const;

    /// Adds a copy of `record` first or last in the list. Null when it is null, or its name is missing, empty, taken or
    /// holds ",".
    CatalogueRecord* prepend(const IDictionary* record);
    CatalogueRecord* append(const IDictionary* record);

    /// Moves `record`, whose values bear `name`, to the end of the list. Null, with `record` untouched, when the name
    /// is empty, taken or holds ",".
    CatalogueRecord* append(const QByteArray& name, CatalogueRecord&& record);

    /// Replaces the values of the record `name` by those of `record`, but for its name. Nothing happens when there is
    /// no record of that name or `record` is null.
    void set(const QByteArray& name, const IDictionary* record);

    /// Keeps the record's place. False, with nothing changed, when there is no `oldName`, or `newName` can't be a name.
    bool rename(const QByteArray& oldName, const QByteArray& newName);

    /// False when there is no record of that name.
    bool remove(const QByteArray& name);

    bool isEmpty() const;

    /// The names in order, joined by ",".
    const QByteArray& names() const;

    /// The text under the name key; empty when there is none.
    QByteArray nameOf(const IDictionary* record) const;

    auto begin() const { return records.begin(); }
    auto end() const { return records.end(); }

private:
    CatalogueRecord* fill(CatalogueRecord* added, const IDictionary* record) const;

    const char* nameKey;
    NamedList<CatalogueRecord> records;
};

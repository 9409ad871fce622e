#include "support/RecordingList.h"

#include "catalogue/CoordParamKey.h"

IDictionary* RecordingList::find(const QString& name) const {
    const auto& record = entries.value(names().indexOf(name)).second;
    return record ? record->get() : nullptr;
}

QStringList RecordingList::names() const {
    QStringList result;
    for (const auto& entry : entries)
        result << entry.first;
    return result;
}

int RecordingList::count() const {
    return entries.count();
}

IDictionary* RecordingList::put(const QString& name, const IDictionary* record, int index) {
    if (!find(name))
        entries.insert(index, {name, std::make_shared<DictionaryGuard>()});
    dictionary_assign(find(name), record);
    return find(name);
}

IDictionary* RecordingList::append(const QString& name, const IDictionary* record) {
    return put(name, record, count());
}

IDictionary* RecordingList::append(const QString& name, const QStringList& values) {
    const DictionaryGuard record;
    for (int i = 0; i + 1 < values.count(); i += 2) {
        if (!values[i + 1].isNull())
            record->setText(values[i].toLocal8Bit(), values[i + 1].toLocal8Bit());
    }
    return append(name, record.get());
}

void RecordingList::remove(const QString& name) {
    if (find(name))
        entries.remove(names().indexOf(name));
}

bool RecordingList::rename(const QString& oldName, const QString& newName) {
    IDictionary* record = find(oldName);
    if (!record || newName.isEmpty() || find(newName))
        return false;
    entries[names().indexOf(oldName)].first = newName;
    record->setText(CoordParamKey::name, newName.toLocal8Bit());
    return true;
}

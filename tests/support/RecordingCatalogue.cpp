#include "support/RecordingCatalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"

#include <algorithm>

namespace {

QString text(const char* local) {
    return QString::fromLocal8Bit(local);
}

QString value(const IDictionary* record, const char* key) {
    return text(record->getValue(key));
}

void fill(IDictionary* record, const QStringList& values) {
    for (int i = 0; i + 1 < values.count(); i += 2)
        record->setText(values[i].toLocal8Bit().constData(), values[i + 1].toLocal8Bit().constData());
}

} // namespace

RecordingList::~RecordingList() {
    for (auto& entry : entries)
        dictionary_release_instance(&entry.second);
}

int RecordingList::indexOf(const QString& name) const {
    for (int i = 0; i < entries.count(); ++i) {
        if (entries[i].first == name)
            return i;
    }
    return -1;
}

IDictionary* RecordingList::find(const QString& name) const {
    const int index = indexOf(name);
    return index < 0 ? nullptr : entries[index].second;
}

QStringList RecordingList::names() const {
    QStringList result;
    for (const auto& entry : entries)
        result << entry.first;
    return result;
}

IDictionary* RecordingList::put(const QString& name, const IDictionary* record, int index) {
    IDictionary* copy = find(name);
    if (!copy) {
        copy = dictionary_get_instance(0);
        entries.insert(index, qMakePair(name, copy));
    }
    dictionary_assign(copy, record);
    return copy;
}

void RecordingList::remove(const QString& name) {
    const int index = indexOf(name);
    if (index < 0)
        return;
    IDictionary* record = entries[index].second;
    dictionary_release_instance(&record);
    entries.removeAt(index);
}

bool RecordingList::rename(const QString& oldName, const QString& newName) {
    const int index = indexOf(oldName);
    if (index < 0 || newName.isEmpty() || indexOf(newName) >= 0)
        return false;
    entries[index].first = newName;
    entries[index].second->setText(CoordParamKey::name, newName.toLocal8Bit().constData());
    return true;
}

RecordingGroup::RecordingGroup(RecordingCatalogue& owner, const QString& groupName)
    : name(groupName), catalogue(owner) {
}

void RecordingGroup::log(const QString& call) {
    catalogue.calls << name + "." + call;
}

const char* RecordingGroup::getCoordSystemNames() {
    log("getCoordSystemNames()");
    return catalogue.list(answer, systems.names());
}

IDictionary* RecordingGroup::getCoordSystem(const char* systemName) {
    log("getCoordSystem(" + text(systemName) + ")");
    return systems.find(text(systemName));
}

int RecordingGroup::addCoordSystem(IDictionary* record) {
    const QString systemName = value(record, CoordParamKey::name);
    log("addCoordSystem(" + systemName + ")");
    if (catalogue.refuseAdd || systemName.isEmpty() || systems.find(systemName))
        return 0;
    systems.put(systemName, record, 0);
    return 1;
}

void RecordingGroup::setCoordSystem(const char* systemName, const IDictionary* record) {
    log("setCoordSystem(" + text(systemName) + ")");
    if (systems.find(text(systemName)))
        systems.put(text(systemName), record, 0)->setText(CoordParamKey::name, systemName);
}

int RecordingGroup::renameCoordSystem(const char* oldName, const char* newName) {
    log("renameCoordSystem(" + text(oldName) + "," + text(newName) + ")");
    return !catalogue.refuseRename && systems.rename(text(oldName), text(newName)) ? 1 : 0;
}

void RecordingGroup::deleteCoordSystem(const char* systemName) {
    log("deleteCoordSystem(" + text(systemName) + ")");
    systems.remove(text(systemName));
}

bool RecordingGroup::hasCoordSystem(const char* systemName) {
    log("hasCoordSystem(" + text(systemName) + ")");
    return systems.find(text(systemName)) != nullptr;
}

RecordingCatalogue::RecordingCatalogue() = default;
RecordingCatalogue::~RecordingCatalogue() = default;

const char* RecordingCatalogue::list(QByteArray& storage, const QStringList& names) const {
    storage = names.join(",").toLocal8Bit();
    return nullLists ? nullptr : storage.constData();
}

RecordingGroup* RecordingCatalogue::group(const QString& name) const {
    const auto found = std::find_if(groups.begin(), groups.end(), [&](const auto& each) { return each->name == name; });
    return found == groups.end() ? nullptr : found->get();
}

QStringList RecordingCatalogue::takeCalls() {
    QStringList result;
    result.swap(calls);
    return result;
}

int RecordingCatalogue::recordCount() const {
    int count = ellipsoids.count() + geoids.count();
    for (const auto& each : groups)
        count += each->systems.count();
    return count;
}

void RecordingCatalogue::load(const char* dataFolder) {
    calls << "load(" + text(dataFolder) + ")";
}

void RecordingCatalogue::saveCoordSystems(const char* path) {
    calls << "saveCoordSystems(" + text(path) + ")";
}

const char* RecordingCatalogue::getGroupNames() {
    calls << "getGroupNames()";
    QStringList names;
    for (const auto& each : groups)
        names << each->name;
    return list(groupAnswer, rawGroupNames.isEmpty() ? names : QStringList(rawGroupNames));
}

ICoordSysGroup* RecordingCatalogue::getGroup(const char* name) {
    calls << "getGroup(" + text(name) + ")";
    return group(text(name));
}

void RecordingCatalogue::addGroup(const char* name) {
    calls << "addGroup(" + text(name) + ")";
    if (!group(text(name)))
        groups.insert(groups.begin(), std::make_unique<RecordingGroup>(*this, text(name)));
}

void RecordingCatalogue::deleteGroup(const char* name) {
    calls << "deleteGroup(" + text(name) + ")";
    groups.erase(
        std::remove_if(groups.begin(), groups.end(), [&](const auto& each) { return each->name == text(name); }),
        groups.end());
}

int RecordingCatalogue::renameGroup(const char* oldName, const char* newName) {
    calls << "renameGroup(" + text(oldName) + "," + text(newName) + ")";
    RecordingGroup* renamed = group(text(oldName));
    if (refuseRename || !renamed || group(text(newName)))
        return 0;
    renamed->name = text(newName);
    return 1;
}

bool RecordingCatalogue::hasGroup(const char* name) {
    calls << "hasGroup(" + text(name) + ")";
    return group(text(name)) != nullptr;
}

const char* RecordingCatalogue::getEllipsoidNames() {
    calls << "getEllipsoidNames()";
    return list(ellipsoidAnswer, ellipsoids.names());
}

void RecordingCatalogue::addEllipsoid(IDictionary* record) {
    const QString name = value(record, EllipsoidKey::name);
    calls << "addEllipsoid(" + name + ")";
    ellipsoids.put(name, record, ellipsoids.count());
}

void RecordingCatalogue::deleteEllipsoid(const char* name) {
    calls << "deleteEllipsoid(" + text(name) + ")";
    ellipsoids.remove(text(name));
}

IDictionary* RecordingCatalogue::getEllipsoid(const char* name) {
    calls << "getEllipsoid(" + text(name) + ")";
    return ellipsoids.find(text(name));
}

void RecordingCatalogue::saveEllipsoids(const char* path) {
    calls << "saveEllipsoids(" + text(path) + ")";
}

const char* RecordingCatalogue::getGeoidNames() {
    calls << "getGeoidNames()";
    return list(geoidAnswer, geoids.names());
}

void RecordingCatalogue::addGeoid(IDictionary* record) {
    const QString name = value(record, GeoidKey::name);
    calls << "addGeoid(" + name + ")";
    geoids.put(name, record, geoids.count());
}

void RecordingCatalogue::deleteGeoid(const char* name) {
    calls << "deleteGeoid(" + text(name) + ")";
    geoids.remove(text(name));
}

IDictionary* RecordingCatalogue::getGeoid(const char* name) {
    calls << "getGeoid(" + text(name) + ")";
    return geoids.find(text(name));
}

void RecordingCatalogue::saveGeoids(const char* path) {
    calls << "saveGeoids(" + text(path) + ")";
}

RecordingGroup* RecordingCatalogue::addTestGroup(const QString& name, const QStringList& systems) {
    groups.push_back(std::make_unique<RecordingGroup>(*this, name));
    for (const QString& system : systems)
        addTestSystem(name, system);
    return groups.back().get();
}

IDictionary* RecordingCatalogue::addTestSystem(const QString& groupName, const QString& name,
                                               const QStringList& values) {
    DictionaryGuard record;
    fill(record.get(), QStringList{CoordParamKey::name, name} + values);
    RecordingList& systems = group(groupName)->systems;
    return systems.put(name, record.get(), systems.count());
}

IDictionary* RecordingCatalogue::addTestEllipsoid(const QString& name, const QString& a, const QString& f,
                                                  const QString& flag) {
    DictionaryGuard record;
    fill(record.get(), {EllipsoidKey::name, name, EllipsoidKey::a, a, EllipsoidKey::f, f});
    if (!flag.isNull())
        record->setText(EllipsoidKey::flag, flag.toLocal8Bit().constData());
    return ellipsoids.put(name, record.get(), ellipsoids.count());
}

IDictionary* RecordingCatalogue::addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid,
                                              const QString& flag) {
    DictionaryGuard record;
    fill(record.get(), {GeoidKey::name, name, GeoidKey::file, file, GeoidKey::ellipsoid, ellipsoid});
    if (!flag.isNull())
        record->setText(GeoidKey::flag, flag.toLocal8Bit().constData());
    return geoids.put(name, record.get(), geoids.count());
}

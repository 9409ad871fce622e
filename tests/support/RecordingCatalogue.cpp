#include "support/RecordingCatalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"

#include <algorithm>

namespace {

QString text(const char* local) {
    return QString::fromLocal8Bit(local);
}

/// A record of key, text, key, text ...; a key with a null text is left out.
DictionaryGuard recordOf(const QStringList& values) {
    DictionaryGuard record;
    for (int i = 0; i + 1 < values.count(); i += 2) {
        if (!values[i + 1].isNull())
            record->setText(values[i].toLocal8Bit(), values[i + 1].toLocal8Bit());
    }
    return record;
}

} // namespace

RecordingList::~RecordingList() {
    for (auto& entry : entries)
        dictionary_release_instance(&entry.second);
}

QStringList RecordingList::names() const {
    QStringList result;
    for (const auto& entry : entries)
        result << entry.first;
    return result;
}

IDictionary* RecordingList::put(const QString& name, const IDictionary* record, int index) {
    if (!find(name))
        entries.insert(index, qMakePair(name, dictionary_get_instance(0)));
    dictionary_assign(find(name), record);
    return find(name);
}

void RecordingList::remove(const QString& name) {
    if (IDictionary* record = find(name)) {
        entries.removeAt(indexOf(name));
        dictionary_release_instance(&record);
    }
}

bool RecordingList::rename(const QString& oldName, const QString& newName) {
    IDictionary* record = find(oldName);
    if (!record || newName.isEmpty() || find(newName))
        return false;
    entries[indexOf(oldName)].first = newName;
    record->setText(CoordParamKey::name, newName.toLocal8Bit());
    return true;
}

QString RecordingGroup::logged(const char* call, const char* argument) {
    return catalogue.logged(name + "." + call, argument);
}

const char* RecordingGroup::getCoordSystemNames() {
    return catalogue.listed(name + ".getCoordSystemNames", answer, systems.names());
}

int RecordingGroup::addCoordSystem(IDictionary* record) {
    const QString system = logged("addCoordSystem", record->getValue(CoordParamKey::name));
    if (system.isEmpty() || systems.find(system))
        return 0;
    systems.put(system, record, 0);
    return 1;
}

void RecordingGroup::setCoordSystem(const char* system, const IDictionary* record) {
    if (systems.find(logged("setCoordSystem", system)))
        systems.put(text(system), record, 0)->setText(CoordParamKey::name, system);
}

int RecordingGroup::renameCoordSystem(const char* oldName, const char* newName) {
    logged("renameCoordSystem", QByteArray(oldName) + ',' + newName);
    return !catalogue.refuseRename && systems.rename(text(oldName), text(newName)) ? 1 : 0;
}

QString RecordingCatalogue::logged(const QString& call, const char* argument) {
    calls << call + "(" + text(argument) + ")";
    return text(argument);
}

const char* RecordingCatalogue::listed(const QString& call, QByteArray& storage, const QStringList& names) {
    logged(call, "");
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

const char* RecordingCatalogue::getGroupNames() {
    QStringList names;
    for (const auto& each : groups)
        names << each->name;
    return listed("getGroupNames", groupAnswer, rawGroupNames.isEmpty() ? names : QStringList(rawGroupNames));
}

void RecordingCatalogue::addGroup(const char* name) {
    if (!group(logged("addGroup", name)))
        groups.insert(groups.begin(), std::make_unique<RecordingGroup>(*this, text(name)));
}

void RecordingCatalogue::deleteGroup(const char* name) {
    const auto isIt = [named = logged("deleteGroup", name)](const auto& each) { return each->name == named; };
    groups.erase(std::remove_if(groups.begin(), groups.end(), isIt), groups.end());
}

int RecordingCatalogue::renameGroup(const char* oldName, const char* newName) {
    logged("renameGroup", QByteArray(oldName) + ',' + newName);
    RecordingGroup* renamed = group(text(oldName));
    if (refuseRename || !renamed || group(text(newName)))
        return 0;
    renamed->name = text(newName);
    return 1;
}

void RecordingCatalogue::addEllipsoid(IDictionary* record) {
    ellipsoids.append(logged("addEllipsoid", record->getValue(EllipsoidKey::name)), record);
}

void RecordingCatalogue::addGeoid(IDictionary* record) {
    geoids.append(logged("addGeoid", record->getValue(GeoidKey::name)), record);
}

void RecordingCatalogue::addTestGroup(const QString& name, const QStringList& systems) {
    groups.push_back(std::make_unique<RecordingGroup>(*this, name));
    for (const QString& system : systems)
        addTestSystem(name, system);
}

void RecordingCatalogue::addTestSystem(const QString& groupName, const QString& name, const QStringList& values) {
    group(groupName)->systems.append(name, recordOf(QStringList{CoordParamKey::name, name} + values).get());
}

IDictionary* RecordingCatalogue::addTestEllipsoid(const QString& name, const QString& a, const QString& f,
                                                  const QString& flag) {
    const QStringList values{EllipsoidKey::name, name, EllipsoidKey::a,    a,
                             EllipsoidKey::f,    f,    EllipsoidKey::flag, flag};
    return ellipsoids.append(name, recordOf(values).get());
}

IDictionary* RecordingCatalogue::addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid,
                                              const QString& flag) {
    const QStringList values{GeoidKey::name,      name,      GeoidKey::file, file,
                             GeoidKey::ellipsoid, ellipsoid, GeoidKey::flag, flag};
    return geoids.append(name, recordOf(values).get());
}

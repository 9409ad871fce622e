#include "support/RecordingCatalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"

#include <algorithm>
#include <utility>

void RecordingCatalogue::load(const char* dataFolder) {
    logged("load", dataFolder);
}

void RecordingCatalogue::saveCoordSystems(const char* path) {
    logged("saveCoordSystems", path);
}

const char* RecordingCatalogue::getGroupNames() {
    QStringList names;
    for (const auto& each : groups)
        names << each->name;
    return listed("getGroupNames", groupAnswer, rawGroupNames.isEmpty() ? names : QStringList(rawGroupNames));
}

ICoordSysGroup* RecordingCatalogue::getGroup(const char* name) {
    return group(logged("getGroup", name));
}

void RecordingCatalogue::addGroup(const char* name) {
    const QString added = logged("addGroup", name);
    if (!group(added))
        groups.insert(groups.begin(), std::make_unique<RecordingGroup>(*this, added));
}

void RecordingCatalogue::deleteGroup(const char* name) {
    const auto isIt = [named = logged("deleteGroup", name)](const auto& each) { return each->name == named; };
    groups.erase(std::remove_if(groups.begin(), groups.end(), isIt), groups.end());
}

int RecordingCatalogue::renameGroup(const char* oldName, const char* newName) {
    logged("renameGroup", QByteArray(oldName) + ',' + newName);
    RecordingGroup* renamed = group(QString::fromLocal8Bit(oldName));
    if (refuseRename || !renamed || group(QString::fromLocal8Bit(newName)))
        return 0;
    renamed->name = QString::fromLocal8Bit(newName);
    return 1;
}

bool RecordingCatalogue::hasGroup(const char* name) {
    return group(logged("hasGroup", name));
}

const char* RecordingCatalogue::getEllipsoidNames() {
    return listed("getEllipsoidNames", ellipsoidAnswer, ellipsoids.names());
}

void RecordingCatalogue::addEllipsoid(IDictionary* record) {
    ellipsoids.append(logged("addEllipsoid", record->getValue(EllipsoidKey::name)), record);
}

void RecordingCatalogue::deleteEllipsoid(const char* name) {
    ellipsoids.remove(logged("deleteEllipsoid", name));
}

IDictionary* RecordingCatalogue::getEllipsoid(const char* name) {
    return ellipsoids.find(logged("getEllipsoid", name));
}

void RecordingCatalogue::saveEllipsoids(const char* path) {
    logged("saveEllipsoids", path);
}

const char* RecordingCatalogue::getGeoidNames() {
    return listed("getGeoidNames", geoidAnswer, geoids.names());
}

void RecordingCatalogue::addGeoid(IDictionary* record) {
    geoids.append(logged("addGeoid", record->getValue(GeoidKey::name)), record);
}

void RecordingCatalogue::deleteGeoid(const char* name) {
    geoids.remove(logged("deleteGeoid", name));
}

IDictionary* RecordingCatalogue::getGeoid(const char* name) {
    return geoids.find(logged("getGeoid", name));
}

void RecordingCatalogue::saveGeoids(const char* path) {
    logged("saveGeoids", path);
}

void RecordingCatalogue::addTestGroup(const QString& name, const QStringList& systems) {
    groups.push_back(std::make_unique<RecordingGroup>(*this, name));
    for (const QString& system : systems)
        addTestSystem(name, system);
}

void RecordingCatalogue::addTestSystem(const QString& groupName, const QString& name, const QStringList& values) {
    group(groupName)->systems.append(name, QStringList{CoordParamKey::name, name} + values);
}

IDictionary* RecordingCatalogue::addTestEllipsoid(const QString& name, const QString& a, const QString& f,
                                                  const QString& flag) {
    const char* const keys[] = {EllipsoidKey::name, EllipsoidKey::a, EllipsoidKey::f, EllipsoidKey::flag};
    return ellipsoids.append(name, {keys[0], name, keys[1], a, keys[2], f, keys[3], flag});
}

IDictionary* RecordingCatalogue::addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid,
                                              const QString& flag) {
    const char* const keys[] = {GeoidKey::name, GeoidKey::file, GeoidKey::ellipsoid, GeoidKey::flag};
    return geoids.append(name, {keys[0], name, keys[1], file, keys[2], ellipsoid, keys[3], flag});
}

QStringList RecordingCatalogue::takeCalls() {
    return std::exchange(calls, {});
}

int RecordingCatalogue::recordCount() const {
    int count = ellipsoids.count() + geoids.count();
    for (const auto& each : groups)
        count += each->systems.count();
    return count;
}

RecordingGroup* RecordingCatalogue::group(const QString& name) const {
    for (const auto& each : groups) {
        if (each->name == name)
            return each.get();
    }
    return nullptr;
}

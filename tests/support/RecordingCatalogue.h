#pragma once

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"

#include <QByteArray>
#include <QPair>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// What the parts of the double share: the log of the calls, in order and with their arguments, and scripted answers.
struct CallLog {
    /// Records the call and returns its argument.
    QString logged(const QString& call, const char* argument) {
        calls << call + "(" + QString::fromLocal8Bit(argument) + ")";
        return QString::fromLocal8Bit(argument);
    }
    const char* listed(const QString& call, QByteArray& storage, const QStringList& names) {
        logged(call, "");
        storage = names.join(",").toLocal8Bit();
        return nullLists ? nullptr : storage.constData();
    }

    QStringList calls;
    bool refuseRename = false; ///< renameGroup and renameCoordSystem answer 0
    bool nullLists = false;    ///< every list of names is null
};

/// Records in order, each under a name of its own: systems of a group, ellipsoids or geoids.
class RecordingList {
public:
    IDictionary* find(const QString& name) const {
        const auto& record = entries.value(names().indexOf(name)).second;
        return record ? record->get() : nullptr;
    }
    QStringList names() const {
        QStringList result;
        for (const auto& entry : entries)
            result << entry.first;
        return result;
    }
    int count() const { return entries.count(); }

    /// Stores a copy of `record` under `name`, at its old place or else at `index`. Returns the copy.
    IDictionary* put(const QString& name, const IDictionary* record, int index) {
        if (!find(name))
            entries.insert(index, {name, std::make_shared<DictionaryGuard>()});
        dictionary_assign(find(name), record);
        return find(name);
    }
    IDictionary* append(const QString& name, const IDictionary* record) { return put(name, record, count()); }
    /// Appends a record of key, text, key, text ...; a key with a null text is left out.
    IDictionary* append(const QString& name, const QStringList& values) {
        const DictionaryGuard record;
        for (int i = 0; i + 1 < values.count(); i += 2) {
            if (!values[i + 1].isNull())
                record->setText(values[i].toLocal8Bit(), values[i + 1].toLocal8Bit());
        }
        return append(name, record.get());
    }
    void remove(const QString& name) {
        if (find(name))
            entries.remove(names().indexOf(name));
    }
    bool rename(const QString& oldName, const QString& newName) {
        IDictionary* record = find(oldName);
        if (!record || newName.isEmpty() || find(newName))
            return false;
        entries[names().indexOf(oldName)].first = newName;
        record->setText(CoordParamKey::name, newName.toLocal8Bit());
        return true;
    }

private:
    QVector<QPair<QString, std::shared_ptr<DictionaryGuard>>> entries;
};

/// A group of RecordingCatalogue.
class RecordingGroup : public ICoordSysGroup {
public:
    RecordingGroup(CallLog& itsLog, const QString& groupName) : name(groupName), log(itsLog) {}

    const char* getCoordSystemNames() override {
        return log.listed(name + ".getCoordSystemNames", answer, systems.names());
    }
    IDictionary* getCoordSystem(const char* system) override { return systems.find(logged("getCoordSystem", system)); }
    int addCoordSystem(IDictionary* record) override {
        const QString system = logged("addCoordSystem", record->getValue(CoordParamKey::name));
        if (system.isEmpty() || systems.find(system))
            return 0;
        systems.put(system, record, 0);
        return 1;
    }
    void setCoordSystem(const char* system, const IDictionary* record) override {
        if (systems.find(logged("setCoordSystem", system)))
            systems.put(QString::fromLocal8Bit(system), record, 0)->setText(CoordParamKey::name, system);
    }
    int renameCoordSystem(const char* oldName, const char* newName) override {
        logged("renameCoordSystem", QByteArray(oldName) + ',' + newName);
        return !log.refuseRename && systems.rename(QString::fromLocal8Bit(oldName), QString::fromLocal8Bit(newName));
    }
    void deleteCoordSystem(const char* system) override { systems.remove(logged("deleteCoordSystem", system)); }
    bool hasCoordSystem(const char* system) override { return systems.find(logged("hasCoordSystem", system)); }

    QString name;
    RecordingList systems;

private:
    QString logged(const char* call, const char* argument) { return log.logged(name + "." + call, argument); }

    CallLog& log;
    QByteArray answer;
};

/// A catalogue that records every call in order with its arguments ("getGroup(A)", "A.addCoordSystem(x)") and otherwise
/// behaves as an in-memory catalogue, unless a test scripts another answer.
class RecordingCatalogue : public ICoordSystem, public CallLog {
public:
    void load(const char* dataFolder) override { logged("load", dataFolder); }
    void saveCoordSystems(const char* path) override { logged("saveCoordSystems", path); }
    const char* getGroupNames() override {
        QStringList names;
        for (const auto& each : groups)
            names << each->name;
        return listed("getGroupNames", groupAnswer, rawGroupNames.isEmpty() ? names : QStringList(rawGroupNames));
    }
    ICoordSysGroup* getGroup(const char* name) override { return group(logged("getGroup", name)); }
    void addGroup(const char* name) override {
        const QString added = logged("addGroup", name);
        if (!group(added))
            groups.insert(groups.begin(), std::make_unique<RecordingGroup>(*this, added));
    }
    void deleteGroup(const char* name) override {
        const auto isIt = [named = logged("deleteGroup", name)](const auto& each) { return each->name == named; };
        groups.erase(std::remove_if(groups.begin(), groups.end(), isIt), groups.end());
    }
    int renameGroup(const char* oldName, const char* newName) override {
        logged("renameGroup", QByteArray(oldName) + ',' + newName);
        RecordingGroup* renamed = group(QString::fromLocal8Bit(oldName));
        if (refuseRename || !renamed || group(QString::fromLocal8Bit(newName)))
            return 0;
        renamed->name = QString::fromLocal8Bit(newName);
        return 1;
    }
    bool hasGroup(const char* name) override { return group(logged("hasGroup", name)); }
    const char* getEllipsoidNames() override {
        return listed("getEllipsoidNames", ellipsoidAnswer, ellipsoids.names());
    }
    void addEllipsoid(IDictionary* record) override {
        ellipsoids.append(logged("addEllipsoid", record->getValue(EllipsoidKey::name)), record);
    }
    void deleteEllipsoid(const char* name) override { ellipsoids.remove(logged("deleteEllipsoid", name)); }
    IDictionary* getEllipsoid(const char* name) override { return ellipsoids.find(logged("getEllipsoid", name)); }
    void saveEllipsoids(const char* path) override { logged("saveEllipsoids", path); }
    const char* getGeoidNames() override { return listed("getGeoidNames", geoidAnswer, geoids.names()); }
    void addGeoid(IDictionary* record) override {
        geoids.append(logged("addGeoid", record->getValue(GeoidKey::name)), record);
    }
    void deleteGeoid(const char* name) override { geoids.remove(logged("deleteGeoid", name)); }
    IDictionary* getGeoid(const char* name) override { return geoids.find(logged("getGeoid", name)); }
    void saveGeoids(const char* path) override { logged("saveGeoids", path); }

    // Filling, unrecorded. Values come as key, text, key, text ...; a null flag is none.
    void addTestGroup(const QString& name, const QStringList& systems = QStringList()) {
        groups.push_back(std::make_unique<RecordingGroup>(*this, name));
        for (const QString& system : systems)
            addTestSystem(name, system);
    }
    void addTestSystem(const QString& groupName, const QString& name, const QStringList& values = QStringList()) {
        group(groupName)->systems.append(name, QStringList{CoordParamKey::name, name} + values);
    }
    IDictionary* addTestEllipsoid(const QString& name, const QString& a, const QString& f, const QString& flag) {
        const char* const keys[] = {EllipsoidKey::name, EllipsoidKey::a, EllipsoidKey::f, EllipsoidKey::flag};
        return ellipsoids.append(name, {keys[0], name, keys[1], a, keys[2], f, keys[3], flag});
    }
    IDictionary* addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid, const QString& flag) {
        const char* const keys[] = {GeoidKey::name, GeoidKey::file, GeoidKey::ellipsoid, GeoidKey::flag};
        return geoids.append(name, {keys[0], name, keys[1], file, keys[2], ellipsoid, keys[3], flag});
    }

    /// The calls since the last takeCalls().
    QStringList takeCalls() { return std::exchange(calls, {}); }

    /// How many dictionaries the double itself holds: what dictionary_alive_count() may exceed its start by.
    int recordCount() const {
        int count = ellipsoids.count() + geoids.count();
        for (const auto& each : groups)
            count += each->systems.count();
        return count;
    }

    RecordingGroup* group(const QString& name) const {
        for (const auto& each : groups) {
            if (each->name == name)
                return each.get();
        }
        return nullptr;
    }

    QString rawGroupNames; ///< when not empty, what getGroupNames answers
    std::vector<std::unique_ptr<RecordingGroup>> groups;
    RecordingList ellipsoids, geoids;

private:
    QByteArray groupAnswer, ellipsoidAnswer, geoidAnswer;
};

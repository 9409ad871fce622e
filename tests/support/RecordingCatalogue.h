#pragma once

#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QStringList>

#include <memory>
#include <vector>

class IDictionary;

/// Records in order, each under a name of its own: systems of a group, ellipsoids or geoids.
class RecordingList {
public:
    RecordingList() = default;
    ~RecordingList();
    RecordingList(const RecordingList&) = delete;
    RecordingList& operator=(const RecordingList&) = delete;

    IDictionary* find(const QString& name) const { return entries.value(indexOf(name)).second; }
    QStringList names() const;
    int count() const { return entries.count(); }

    /// Stores a copy of `record` under `name`, at its old place or else at `index`. Returns the copy.
    IDictionary* put(const QString& name, const IDictionary* record, int index);
    IDictionary* append(const QString& name, const IDictionary* record) { return put(name, record, count()); }
    void remove(const QString& name);
    bool rename(const QString& oldName, const QString& newName);

private:
    int indexOf(const QString& name) const { return names().indexOf(name); }

    QList<QPair<QString, IDictionary*>> entries;
};

class RecordingCatalogue;

/// A group of RecordingCatalogue.
class RecordingGroup : public ICoordSysGroup {
public:
    RecordingGroup(RecordingCatalogue& owner, const QString& groupName) : name(groupName), catalogue(owner) {}

    const char* getCoordSystemNames() override;
    IDictionary* getCoordSystem(const char* system) override { return systems.find(logged("getCoordSystem", system)); }
    int addCoordSystem(IDictionary* record) override;
    void setCoordSystem(const char* system, const IDictionary* record) override;
    int renameCoordSystem(const char* oldName, const char* newName) override;
    void deleteCoordSystem(const char* system) override { systems.remove(logged("deleteCoordSystem", system)); }
    bool hasCoordSystem(const char* system) override { return systems.find(logged("hasCoordSystem", system)); }

    QString name;
    RecordingList systems;

private:
    /// Records the call and returns its argument.
    QString logged(const char* call, const char* argument);

    RecordingCatalogue& catalogue;
    QByteArray answer;
};

/// A catalogue that records every call in order with its arguments ("getGroup(A)", "A.addCoordSystem(x)") and otherwise
/// behaves as an in-memory catalogue, unless a test scripts another answer.
class RecordingCatalogue : public ICoordSystem {
public:
    void load(const char* dataFolder) override { logged("load", dataFolder); }
    void saveCoordSystems(const char* path) override { logged("saveCoordSystems", path); }
    const char* getGroupNames() override;
    ICoordSysGroup* getGroup(const char* name) override { return group(logged("getGroup", name)); }
    void addGroup(const char* name) override;
    void deleteGroup(const char* name) override;
    int renameGroup(const char* oldName, const char* newName) override;
    bool hasGroup(const char* name) override { return group(logged("hasGroup", name)); }
    const char* getEllipsoidNames() override {
        return listed("getEllipsoidNames", ellipsoidAnswer, ellipsoids.names());
    }
    void addEllipsoid(IDictionary* record) override;
    void deleteEllipsoid(const char* name) override { ellipsoids.remove(logged("deleteEllipsoid", name)); }
    IDictionary* getEllipsoid(const char* name) override { return ellipsoids.find(logged("getEllipsoid", name)); }
    void saveEllipsoids(const char* path) override { logged("saveEllipsoids", path); }
    const char* getGeoidNames() override { return listed("getGeoidNames", geoidAnswer, geoids.names()); }
    void addGeoid(IDictionary* record) override;
    void deleteGeoid(const char* name) override { geoids.remove(logged("deleteGeoid", name)); }
    IDictionary* getGeoid(const char* name) override { return geoids.find(logged("getGeoid", name)); }
    void saveGeoids(const char* path) override { logged("saveGeoids", path); }

    // Filling, unrecorded. Values come as key, text, key, text ...; a null flag is none.
    void addTestGroup(const QString& name, const QStringList& systems = QStringList());
    void addTestSystem(const QString& group, const QString& name, const QStringList& values = QStringList());
    IDictionary* addTestEllipsoid(const QString& name, const QString& a, const QString& f, const QString& flag);
    IDictionary* addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid, const QString& flag);

    /// Every call that a test did not make itself, in order.
    QStringList calls;
    /// The calls since the last takeCalls().
    QStringList takeCalls();

    /// How many dictionaries the double itself holds: what dictionary_alive_count() may exceed its start by.
    int recordCount() const;

    RecordingGroup* group(const QString& name) const;

    // Scripted answers.
    bool refuseRename = false; ///< renameGroup and renameCoordSystem answer 0
    bool nullLists = false;    ///< every list of names is null
    QString rawGroupNames;     ///< when not empty, what getGroupNames answers

    std::vector<std::unique_ptr<RecordingGroup>> groups;
    RecordingList ellipsoids;
    RecordingList geoids;

private:
    friend class RecordingGroup;

    /// Records the call and returns its argument.
    QString logged(const QString& call, const char* argument);
    const char* listed(const QString& call, QByteArray& storage, const QStringList& names);

    QByteArray groupAnswer;
    QByteArray ellipsoidAnswer;
    QByteArray geoidAnswer;
};

#pragma once

#include "catalogue/ICoordSystem.h"
#include "support/CallLog.h"
#include "support/RecordingGroup.h"
#include "support/RecordingList.h"

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <vector>

/// A catalogue that records every call in order with its arguments ("getGroup(A)", "A.addCoordSystem(x)") and otherwise
/// behaves as an in-memory catalogue, unless a test scripts another answer.
class RecordingCatalogue : public ICoordSystem, public CallLog {
public:
    void load(const char* dataFolder) override;
    void saveCoordSystems(const char* path) override;
    const char* getGroupNames() override;
    ICoordSysGroup* getGroup(const char* name) override;
    void addGroup(const char* name) override;
    void deleteGroup(const char* name) override;
    int renameGroup(const char* oldName, const char* newName) override;
    bool hasGroup(const char* name) override;
    const char* getEllipsoidNames() override;
    void addEllipsoid(IDictionary* record) override;
    void deleteEllipsoid(const char* name) override;
    IDictionary* getEllipsoid(const char* name) override;
    void saveEllipsoids(const char* path) override;
    const char* getGeoidNames() override;
    void addGeoid(IDictionary* record) override;
    void deleteGeoid(const char* name) override;
    IDictionary* getGeoid(const char* name) override;
    void saveGeoids(const char* path) override;

    // Filling, unrecorded. Values come as key, text, key, text ...; a null flag is none.
    void addTestGroup(const QString& name, const QStringList& systems = QStringList());
    void addTestSystem(const QString& groupName, const QString& name, const QStringList& values = QStringList());
    IDictionary* addTestEllipsoid(const QString& name, const QString& a, const QString& f, const QString& flag);
    IDictionary* addTestGeoid(const QString& name, const QString& file, const QString& ellipsoid, const QString& flag);

    /// The calls since the last takeCalls().
    QStringList takeCalls();

    /// How many dictionaries the double itself holds: what dictionary_alive_count() may exceed its start by.
    int recordCount() const;

    RecordingGroup* group(const QString& name) const;

    QString rawGroupNames; ///< when not empty, what getGroupNames answers
    std::vector<std::unique_ptr<RecordingGroup>> groups;
    RecordingList ellipsoids, geoids;

private:
    QByteArray groupAnswer, ellipsoidAnswer, geoidAnswer;
};

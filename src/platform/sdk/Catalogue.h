#pragma once

#include "catalogue/ICoordSystem.h"
#include "platform/sdk/RecordStore.h"

/// The catalogue, held in memory and kept in three files of the user's data folder.
///
/// Beside them it reads what the tool ships: ellipsoids, geoids, and a starter catalogue of coordinate systems that is
/// shown while the user has no catalogue of his own.
class Catalogue : public ICoordSystem {
public:
    /// `shippedFolder` is where the shipped files lie, `rescueFolder` where a save goes that can't reach its folder.
    Catalogue(const QString& shippedFolder, const QString& rescueFolder);

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

private:
    QString shippedFolder;
    UserFile userFile;
    SystemFile content;
    RecordStore ellipsoids;
    RecordStore geoids;
};

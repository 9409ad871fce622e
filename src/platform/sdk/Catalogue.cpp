#include "platform/sdk/Catalogue.h"

#include "catalogue/CatalogueRecordKey.h"
#include "platform/sdk/CatalogueFile.h"

#include <QDir>
#include <QFile>

Catalogue::Catalogue(const QString& folder, const QString& rescueFolder)
    : shippedFolder(folder)
    , userFile(rescueFolder)
    , ellipsoids(ellipsoidFile, EllipsoidKey::flag, rescueFolder)
    , geoids(geoidFile, GeoidKey::flag, rescueFolder) {
}

void Catalogue::load(const char* dataFolder) {
    if (!dataFolder || !*dataFolder)
        return;
    const QDir shipped(shippedFolder);
    const QDir user(QFile::decodeName(dataFolder));
    userFile.setPath(user.filePath(QStringLiteral("CoordinateSystem_custom.vcs")));
    if (userFile.exists())
        content = userFile.load(CatalogueFile::readSystems);
    else
        content = CatalogueFile::readSystems(shipped.filePath(QStringLiteral("CoordinateSystem.vcs")));
    ellipsoids.load(shipped.filePath(QStringLiteral("Ellipsoid.xml")),
                    user.filePath(QStringLiteral("Ellipsoid_custom.xml")));
    geoids.load(shipped.filePath(QStringLiteral("Geoid.xml")), user.filePath(QStringLiteral("Geoid_custom.xml")));
}

void Catalogue::saveCoordSystems(const char* path) {
    if (path && *path)
        userFile.save(QFile::decodeName(path), content);
}

const char* Catalogue::getGroupNames() {
    return content.groups.names().constData();
}

ICoordSysGroup* Catalogue::getGroup(const char* name) {
    return content.groups.find(name);
}

void Catalogue::addGroup(const char* name) {
    content.groups.prepend(name);
}

void Catalogue::deleteGroup(const char* name) {
    content.groups.remove(name);
}

int Catalogue::renameGroup(const char* oldName, const char* newName) {
    return content.groups.rename(oldName, newName) ? 1 : 0;
}

bool Catalogue::hasGroup(const char* name) {
    return content.groups.find(name) != nullptr;
}

const char* Catalogue::getEllipsoidNames() {
    return ellipsoids.names();
}

void Catalogue::addEllipsoid(IDictionary* record) {
    ellipsoids.put(record);
}

void Catalogue::deleteEllipsoid(const char* name) {
    ellipsoids.remove(name);
}

IDictionary* Catalogue::getEllipsoid(const char* name) {
    return ellipsoids.find(name);
}

void Catalogue::saveEllipsoids(const char* path) {
    if (path && *path)
        ellipsoids.save(QFile::decodeName(path));
}

const char* Catalogue::getGeoidNames() {
    return geoids.names();
}

void Catalogue::addGeoid(IDictionary* record) {
    geoids.put(record);
}

void Catalogue::deleteGeoid(const char* name) {
    geoids.remove(name);
}

IDictionary* Catalogue::getGeoid(const char* name) {
    return geoids.find(name);
}

void Catalogue::saveGeoids(const char* path) {
    if (path && *path)
        geoids.save(QFile::decodeName(path));
}

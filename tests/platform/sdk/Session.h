#pragma once

#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "platform/sdk/Catalogue.h"
#include "platform/sdk/CatalogueFile.h"
#include "support/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

constexpr const char* systemsName = "CoordinateSystem_custom.vcs";
constexpr const char* ellipsoidsName = "Ellipsoid_custom.xml";
constexpr const char* geoidsName = "Geoid_custom.xml";

/// A template for folders in memory where there are such: on a disk a thousand saves wait a thousand times for it.
inline QString quickFolder() {
    return QFileInfo("/dev/shm").isWritable() ? QString("/dev/shm/test_sdk-XXXXXX")
                                              : QDir::tempPath() + "/test_sdk-XXXXXX";
}

/// A user's data folder and a folder of shipped data; every Session is one start of the tool on them.
struct Folders {
    QTemporaryDir dir{quickFolder()};
    QString user = dir.filePath("user/");
    QString shipped = dir.filePath("shipped/");
    QString rescue = dir.filePath("rescue");

    Folders() {
        QDir().mkpath(user);
        QDir().mkpath(shipped);
    }
    QString systems() const { return user + systemsName; }
    QString previous() const { return systems() + ".bak"; }
    /// The names of the files that were set aside as "damaged" or "other".
    QStringList setAside(const char* as) const {
        return QDir(user).entryList({QString("*.%1-*").arg(as)}, QDir::Files);
    }
    QStringList generations() const { return QDir(user + "generations").entryList(QDir::Files, QDir::Name); }
    /// The rescued saves, one file for each file of the user.
    QStringList rescued() const { return filesBelow(rescue); }
    static QStringList filesBelow(const QString& path, const QString& pattern = "*") {
        QStringList files;
        QDirIterator file(path, {pattern}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (file.hasNext())
            files << file.next();
        return files;
    }
    /// The groups that the next start shows.
    QByteArray shown() const;
};

inline bool setChanged(const QString& path, const QDateTime& time) {
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime);
}

struct Session : Catalogue {
    explicit Session(const Folders& folders) : Catalogue(folders.shipped, folders.rescue), user(folders.user) {
        load(QFile::encodeName(user).constData());
    }
    void saveSystems() {
        saveCoordSystems("");
        saveCoordSystems(QFile::encodeName(user + systemsName).constData());
    }
    /// Saves after the addition of each of these groups.
    void saveWith(const QByteArrayList& groups) {
        for (const QByteArray& group : groups) {
            addGroup(group);
            saveSystems();
        }
    }
    void saveRecords() {
        saveEllipsoids("");
        saveEllipsoids(QFile::encodeName(user + ellipsoidsName).constData());
        saveGeoids("");
        saveGeoids(QFile::encodeName(user + geoidsName).constData());
    }
    int add(const char* group, const char* system) {
        if (!hasGroup(group))
            addGroup(group);
        DictionaryGuard record;
        record->setText("ellipsoid_name", "GRS 1980");
        record->setText("name", system);
        dic_set_value(record.get(), "org_lon", "%f", 100.0 / 3.0);
        return getGroup(group)->addCoordSystem(record.get());
    }
    void addEllipsoidOf(const char* name, const char* a, const char* flag) {
        DictionaryGuard record;
        record->setText("ellipsoid_name", name);
        record->setText("ellipsoid_a", a);
        if (flag)
            record->setText("ellipsoid_flag", flag);
        addEllipsoid(record.get());
    }
    QByteArray systems(const char* group) { return getGroup(group)->getCoordSystemNames(); }

    QString user;
};

inline QByteArray Folders::shown() const {
    return Session(*this).getGroupNames();
}

#include "catalogue/UserFolders.h"

#include <QDir>
#include <QStandardPaths>

static QString folder(const char* ownName, QStandardPaths::StandardLocation location) {
    const QString own = qEnvironmentVariable("COORDSYSTEM_MANAGER_HOME");
    return own.isEmpty() ? QStandardPaths::writableLocation(location) : QDir(own).filePath(QLatin1String(ownName));
}

QString UserFolders::documents() {
    return folder("Documents", QStandardPaths::DocumentsLocation);
}

QString UserFolders::programData() {
    return folder("Data", QStandardPaths::GenericDataLocation);
}

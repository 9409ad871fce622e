#include "platform/sdk/ToolFolder.h"

#include "catalogue/UserFolders.h"

QString toolFolder() {
    return UserFolders::programData() + QLatin1String("/ArvelaGnss/CoordSystemManager");
}

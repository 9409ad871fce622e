#include "platform/sdk/ToolFolder.h"

#include <QStandardPaths>

QString toolFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/ArvelaGnss/CoordSystemManager");
}

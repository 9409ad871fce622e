#include "platform/sdk/SystemConfig.h"

#include <QtGlobal>

SystemConfig::SystemConfig() {
    SystemConfig::reload();
}

void SystemConfig::reload() {
    parameters->clear();
    // The window's title, which the window translates.
    parameters->setText("name", QT_TRANSLATE_NOOP("VornCoordSysMainWindow", "Coordinate System Manager"));
}

IDictionary* SystemConfig::getParameters() {
    return parameters.get();
}

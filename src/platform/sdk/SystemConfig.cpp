#include "platform/sdk/SystemConfig.h"

SystemConfig::SystemConfig() {
    SystemConfig::reload();
}

void SystemConfig::reload() {
    parameters->clear();
    parameters->setText("name", "Coordinate System Manager");
}

IDictionary* SystemConfig::getParameters() {
    return parameters.get();
}

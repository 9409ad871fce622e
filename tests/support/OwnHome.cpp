#include "support/OwnHome.h"

// The user's own is known by the first on any system, by the others on some: Qt keeps what its file dialog remembers
// there.
static const char* const variables[] = {"COORDSYSTEM_MANAGER_HOME", "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"};

OwnHome::OwnHome() {
    for (const char* variable : variables)
        qputenv(variable, folder.path().toLocal8Bit());
}

OwnHome::~OwnHome() {
    qunsetenv(variables[0]);
}

#pragma once

#include "platform/projection/IEpsgRegistry.h"

#include <QString>

#include <vector>

/// One group of the starter catalogue.
struct StarterGroup {
    QString name;
    std::vector<RegistrySystem> systems;
};

/// Sorts systems of the registry into groups by the rules in the file `rulesPath` (see starter_catalogue.txt). A rule
/// that takes no system is named on the error output. Empty when the file can't be read.
std::vector<StarterGroup> selectStarterGroups(const QString& rulesPath, const std::vector<RegistrySystem>& registry);

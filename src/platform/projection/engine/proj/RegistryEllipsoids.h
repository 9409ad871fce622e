#pragma once

#include "platform/projection/IEpsgRegistry.h"

#include <proj.h>

/// See IEpsgRegistry::ellipsoids().
std::vector<RegistryEllipsoid> registryEllipsoids(PJ_CONTEXT* context);

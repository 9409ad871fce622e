#pragma once

#include "platform/projection/IEpsgRegistry.h"

/// One ellipsoid that the tool ships, as texts of an ellipsoid record.
struct ShippedEllipsoid {
    QByteArray name;
    QByteArray a; ///< semi-major axis in metres
    QByteArray f; ///< inverse flattening; "0.0" for a sphere
};

/// The registry's ellipsoids, sorted by name; of a name that a deprecated one shares with a valid one, the valid one.
/// The figures are the shortest texts that stand for the registry's numbers exactly.
std::vector<ShippedEllipsoid> shippedEllipsoids(const std::vector<RegistryEllipsoid>& registry);

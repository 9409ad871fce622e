#pragma once

#include <QByteArray>

#include <vector>

/// One ellipsoid of the registry, as texts of an ellipsoid record.
struct RegistryEllipsoid {
    QByteArray name;
    QByteArray a; ///< semi-major axis in metres
    QByteArray f; ///< inverse flattening; "0.0" for a sphere
};

/// Every ellipsoid of the EPSG registry in PROJ's database, sorted by name; of a name that a deprecated one shares with
/// a valid one, the valid one. The figures are the shortest texts that stand for the registry's numbers exactly; where
/// it states an axis in feet, or the minor axis, that is converted in double precision.
std::vector<RegistryEllipsoid> registryEllipsoids();

#pragma once

#include "platform/projection/IProjectedSystem.h"

/// A place in geocentric coordinates, in metres: X to latitude and longitude 0, Z to the north pole.
struct GeocentricPoint {
    double x;
    double y;
    double z;
};

/// An ellipsoid of revolution by its semi-major axis in metres and its inverse flattening, 0 for a sphere.
struct EllipsoidAxes {
    double a;
    double inverseFlattening;

    static constexpr EllipsoidAxes wgs84() { return {6378137.0, 298.257223563}; }

    /// IOGP Publication 373-7-2, method 9602.
    GeocentricPoint toGeocentric(const GeographicPoint& point) const;
};

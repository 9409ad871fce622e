#pragma once

#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/ProjectionLibrary.h"
#include "platform/projection/engine/plane/Vectors.h"

#include <optional>

/// The shift from an own datum to WGS 84 between geocentric coordinates: EPSG method 9606, the position-vector
/// convention, whose rotations are small angles. The way back is the exact inverse of it (not of a rotation, and not
/// that of the opposite angles), so that there and back closes to a nanometre whatever the rotations.
class ShiftToWgs84 {
public:
    /// `shift` in metres, arc-seconds and ppm; the own ellipsoid's axes in metres.
    ShiftToWgs84(const ProjTowgs84& shift, double a, double b);

    std::optional<GeographicPoint> forward(const GeographicPoint& point) const;
    std::optional<GeographicPoint> inverse(const GeographicPoint& point) const;

private:
    Vectors::Vector translation;
    Vectors::Vector rotation; ///< radians
    double scale;
    double a, b;
};

#pragma once

#include <optional>

class IDictionary;

/// The parallel of true scale of a Mercator or polar stereographic projection. The record keeps it as the radius that
/// the parallel has on a sphere with the semi-major axis, "cutting_radius" = a cos(latitude), so it has no sign there.
class TrueScaleParallel {
public:
    /// The radius in metres for a semi-major axis in metres and a latitude in degrees.
    static double radius(double semiMajorAxis, double latitude);

    /// The latitude in degrees, 0 to 90 (with a stereographic projection from the south pole: -90 to 0), with no more
    /// digits than its radius determines. Nothing without a semi-major
    /// axis, and for a radius that is no parallel's: more than the axis, or zero (no parallel given) or less.
    static std::optional<double> ofRecord(const IDictionary& record);
};

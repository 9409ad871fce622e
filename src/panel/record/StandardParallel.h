#pragma once

#include <optional>

class IDictionary;

/// The standard parallel of a Mercator or polar stereographic projection, which the record keeps as a radius
/// (ParallelRadius.h).
class StandardParallel {
public:
    /// The latitude in degrees, 0 to 90 (with a stereographic projection from the south pole: -90 to 0), with no more
    /// digits than its radius determines. Nothing without a semi-major axis, and for a radius that is no parallel's:
    /// more than the axis, or zero (no parallel given) or less.
    static std::optional<double> ofRecord(const IDictionary& record);
};

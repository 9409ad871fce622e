#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <optional>

class IDictionary;
class IProjectionModule;

/// How far a point moves, in metres on the ground, between a system's own datum and WGS 84 by the shifts that the
/// registry has for that datum there: what leaving a shift out may cost.
struct ShiftEstimate {
    double smallest;
    double largest;

    /// For `own`, a place on the datum that `record` names. Nothing when it names none, or the registry knows no shift
    /// of it at the place.
    static std::optional<ShiftEstimate> at(const IDictionary& record, IProjectionModule& module,
                                           const GeographicPoint& own);
};

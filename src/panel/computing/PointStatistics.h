#pragma once

#include "panel/computing/PointTable.h"

/// How well the points with both pairs agree with the system: figures of computed minus given, in metres.
struct PointStatistics {
    /// Of one component, or of the distances.
    struct Figures {
        double mean = 0.0;
        double rms = 0.0;     ///< root of the mean of the squares
        double largest = 0.0; ///< with the sign that it has
    };

    std::size_t count = 0;    ///< points that the figures are of
    std::size_t leftOut = 0;  ///< points with both pairs that the user left out
    std::size_t beyond = 0;   ///< of `count`, those farther off than the tolerance
    std::size_t problems = 0; ///< rows without a point of use
    std::size_t duplicates = 0;
    Figures easting;
    Figures northing;
    Figures distance;

    /// Of all rows; `tolerance` is a distance in metres.
    static PointStatistics of(const PointTable& table, double tolerance);
};

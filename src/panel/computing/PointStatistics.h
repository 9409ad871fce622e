#pragma once

#include "panel/computing/PointTable.h"

#include <limits>

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

    /// The corners of the area that the points lie in on the grid, in metres; the first is beyond the second where
    /// there are none.
    GridPoint lowest{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    GridPoint highest{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

    /// Of all rows; `tolerance` is a distance in metres.
    static PointStatistics of(const PointTable& table, double tolerance);

    /// The same, piece by piece: the rows from `first` to before `last`. Until finish(), means and RMS are mere sums.
    void add(const PointTable& table, std::size_t first, std::size_t last, double tolerance);
    void finish();
};

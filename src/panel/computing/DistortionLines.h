#pragma once

#include "panel/computing/AreaValues.h"

#include <optional>
#include <vector>

class IDictionary;

/// The lines that a geodesist looks for on a picture of a system: its central meridian and its standard parallels, as
/// far as they run through an area, and its origin.
class DistortionLines {
public:
    using Line = std::vector<GridPoint>;

    /// `record` defines `system`.
    DistortionLines(const IDictionary& record, const IProjectedSystem& system, const GridArea& area);

    /// Empty where the method has none, or outside the area.
    const Line& centralMeridian() const { return meridian; }
    const std::vector<Line>& standardParallels() const { return parallels; }

    /// The point of the false easting and northing.
    static GridPoint origin(const IDictionary& record);

    /// On the central meridian in the middle of the standard parallels (of Mercator's two, on the northern one);
    /// nothing where the method has none.
    static std::optional<GridPoint> middleOfParallels(const IDictionary& record, const IProjectedSystem& system);

private:
    struct Extent {
        double south, north, west, east;
    };

    static std::optional<Extent> extent(const IProjectedSystem& system, const GridArea& area, double meridian);

    Line meridian;
    std::vector<Line> parallels;
};

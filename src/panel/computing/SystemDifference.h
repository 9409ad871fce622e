#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QVector>

#include <cmath>
#include <optional>

/// What one system's coordinates are more than another's, in metres.
struct GridOffset {
    double easting;
    double northing;

    double length() const { return std::hypot(easting, northing); }
    GridOffset apartFrom(const GridOffset& other) const { return {easting - other.easting, northing - other.northing}; }
};

/// The difference between two systems: the grid coordinates of the one minus those of the other at the same place on
/// the ground.
class SystemDifference {
public:
    /// What makes a place the same for both: its latitude and longitude, or, with both systems' datum shifts, where it
    /// is on WGS 84 (a place lies on the first system's ellipsoid). A system without a shift counts as on WGS 84.
    enum class Sameness { LatitudeLongitude, Wgs84 };

    /// Both systems outlive this.
    SystemDifference(const IProjectedSystem& system, const IProjectedSystem& other, Sameness sameness)
        : system(system), other(other), sameness(sameness) {}

    /// At a place on the first system's own datum. Nothing where one of the systems gives no result.
    std::optional<GridOffset> at(const GeographicPoint& place) const;

    /// At a point of the first system's grid. Nothing as above, and where its projection there and back does not come
    /// to the same point.
    std::optional<GridOffset> atGrid(const GridPoint& point) const;

    /// How long the difference, apart from `constant`, is at each of the first system's grid points; NaN where there is
    /// none.
    QVector<double> lengths(const QVector<GridPoint>& points, const GridOffset& constant) const;

    struct Summary {
        GridOffset mean;
        GridOffset largest;   ///< of what is left apart from the mean, in each direction, without sign
        double largestLength; ///< of what is left apart from the mean
    };

    /// Over those of the places that have a difference; nothing when none has.
    std::optional<Summary> over(const QVector<GeographicPoint>& places) const;

private:
    const IProjectedSystem& system;
    const IProjectedSystem& other;
    Sameness sameness;
};

#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <optional>

/// One point computed through a system, with all there is to know of it there.
struct CheckPoint {
    /// The datum of a latitude, longitude and height.
    enum class Datum { Own, Wgs84 };

    GeographicPoint own;
    std::optional<GeographicPoint> wgs84; ///< unknown where the system has no datum shift
    GridPoint grid;
    LocalScale scale;
    double elevationFactor; ///< R / (R + height) with the ellipsoid's mean radius R at the point

    /// Metres between the point and what comes back from the opposite computation: through the projection, and through
    /// the datum shift where there is one.
    double closingError;
    std::optional<double> shiftClosingError;

    /// Scale factor from a distance at the point's height to the grid, of the scale factor `gridScale` there (NOAA
    /// Manual NOS NGS 5, section 4.2).
    double combinedFactor(double gridScale) const { return gridScale * elevationFactor; }

    /// By how much a true azimuth may differ from the grid bearing plus the convergence, which is the meridian's:
    /// degrees; 0 where the projection is conformal. Tissot's indicatrix turns the directions between its axes (Snyder
    /// 1987, page 23): at most by the arc sine of (a - b) / (a + b), and the meridian itself by its own turn.
    double bearingError() const;

    std::optional<GeographicPoint> on(Datum datum) const { return datum == Datum::Own ? own : wgs84; }

    /// From latitude, longitude and height on `datum`. Nothing where the system gives no result, and
    /// nothing from WGS 84 where it has no datum shift.
    static std::optional<CheckPoint> fromGeographic(const IProjectedSystem& system, const GeographicPoint& point,
                                                    Datum datum);

    /// From easting and northing, with the ellipsoidal height (metres) on `datum`. Nothing as above.
    static std::optional<CheckPoint> fromGrid(const IProjectedSystem& system, const GridPoint& point, double height,
                                              Datum datum);
};

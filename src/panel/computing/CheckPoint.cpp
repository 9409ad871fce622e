#include "panel/computing/CheckPoint.h"

#include "catalogue/Angle.h"
#include "panel/computing/GroundDistance.h"

#include <algorithm>
#include <cmath>

namespace {

/// Whether the system can tell where a point of that datum lies.
bool knows(const IProjectedSystem& system, CheckPoint::Datum datum) {
    return datum == CheckPoint::Datum::Own || system.hasDatumShift();
}

/// All but the grid point and the projection's closing error, from `own`.
std::optional<CheckPoint> describe(const IProjectedSystem& system, const GeographicPoint& own) {
    const auto scale = system.localScale(own);
    if (!scale)
        return std::nullopt;
    CheckPoint point{own, {}, {}, *scale, system.elevationFactor(own.latitude, own.height), 0.0, {}};
    if (!system.hasDatumShift())
        return point;
    point.wgs84 = system.toWgs84(own);
    const auto back = point.wgs84 ? system.fromWgs84(*point.wgs84) : std::nullopt;
    if (!back)
        return std::nullopt;
    point.shiftClosingError = groundDistance(*back, own, system.meanRadius(own.latitude));
    return point;
}

} // namespace

double CheckPoint::bearingError() const {
    if (scale.isConformal())
        return 0.0;
    const double a = scale.largest, b = scale.smallest;
    // The meridian's direction from the axis of the largest scale, on the ground and on the grid.
    const double square = (scale.meridian * scale.meridian - b * b) / (a * a - b * b);
    const double ground = std::acos(std::sqrt(std::clamp(square, 0.0, 1.0)));
    const double grid = std::atan2(b * std::sin(ground), a * std::cos(ground));
    return Angle::toDegrees(std::asin((a - b) / (a + b)) + std::abs(ground - grid));
}

std::optional<CheckPoint> CheckPoint::fromGeographic(const IProjectedSystem& system, const GeographicPoint& point,
                                                     Datum datum) {
    if (!knows(system, datum))
        return std::nullopt;
    const auto own = datum == Datum::Own ? point : system.fromWgs84(point);
    const auto grid = own ? system.toGrid(*own) : std::nullopt;
    const auto back = grid ? system.toGeographic(*grid, own->height) : std::nullopt;
    auto result = back ? describe(system, *own) : std::nullopt;
    if (!result)
        return std::nullopt;
    if (datum == Datum::Wgs84)
        result->wgs84 = point;
    result->grid = *grid;
    result->closingError = groundDistance(*back, *own, system.meanRadius(own->latitude));
    return result;
}

std::optional<CheckPoint> CheckPoint::fromGrid(const IProjectedSystem& system, const GridPoint& point, double height,
                                               Datum datum) {
    if (!knows(system, datum))
        return std::nullopt;
    auto own = system.toGeographic(point, height);
    // The shift changes heights by much the same everywhere near: each step leaves a thousandth and less.
    for (int step = 0; own && datum == Datum::Wgs84 && step < 4; ++step) {
        const auto wgs84 = system.toWgs84(*own);
        if (!wgs84)
            return std::nullopt;
        own->height += height - wgs84->height;
    }
    const auto grid = own ? system.toGrid(*own) : std::nullopt;
    auto result = grid ? describe(system, *own) : std::nullopt;
    if (!result)
        return std::nullopt;
    if (datum == Datum::Wgs84)
        result->wgs84->height = height;
    result->grid = point;
    result->closingError = std::hypot(grid->easting - point.easting, grid->northing - point.northing);
    return result;
}

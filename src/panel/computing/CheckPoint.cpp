#include "panel/computing/CheckPoint.h"

#include "panel/computing/GroundDistance.h"

#include <cmath>

namespace {

/// Whether the system can tell where a point of that datum lies.
bool knows(const IProjectedSystem& system, CheckPoint::Datum datum) {
    return datum == CheckPoint::Datum::Own || system.hasDatumShift();
}

/// All but the grid point and the closing error, from `own`.
std::optional<CheckPoint> describe(const IProjectedSystem& system, const GeographicPoint& own) {
    const auto wgs84 = system.hasDatumShift() ? system.toWgs84(own) : std::nullopt;
    const auto scale = system.localScale(own);
    if ((system.hasDatumShift() && !wgs84) || !scale)
        return std::nullopt;
    return CheckPoint{own, wgs84, {}, *scale, system.elevationFactor(own.latitude, own.height), 0.0};
}

} // namespace

std::optional<CheckPoint> CheckPoint::fromGeographic(const IProjectedSystem& system, const GeographicPoint& point,
                                                     Datum datum) {
    if (!knows(system, datum))
        return std::nullopt;
    const auto own = datum == Datum::Own ? point : system.fromWgs84(point);
    const auto grid = own ? system.toGrid(*own) : std::nullopt;
    const auto back = grid ? system.toGeographic(*grid, own->height) : std::nullopt;
    auto result = back ? describe(system, *own) : std::nullopt;
    const auto closing = back && datum == Datum::Wgs84 ? system.toWgs84(*back) : back;
    if (!result || !closing)
        return std::nullopt;
    if (datum == Datum::Wgs84)
        result->wgs84 = point;
    result->grid = *grid;
    result->closingError = groundDistance(*closing, point, system.meanRadius(point.latitude));
    return result;
}

std::optional<CheckPoint> CheckPoint::fromGrid(const IProjectedSystem& system, const GridPoint& point, double height,
                                               Datum datum) {
    if (!knows(system, datum))
        return std::nullopt;
    auto own = system.toGeographic(point, height);
    if (own && datum == Datum::Wgs84) {
        // The shift changes heights by much the same everywhere near: once is enough.
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

#include "platform/projection/engine/plane/OperationOfProj.h"

#include <cmath>
#include <utility>

namespace {

PJ_COORD toRadians(const GeographicPoint& point) {
    return proj_coord(proj_torad(point.longitude), proj_torad(point.latitude), point.height, 0.0);
}

} // namespace

OperationOfProj::OperationOfProj(ProjObject operation, double a, bool refines)
    : operation(std::move(operation)), a(a), refines(refines) {
}

std::optional<GridPoint> OperationOfProj::toGrid(const GeographicPoint& point) const {
    const PJ_COORD grid = proj_trans(operation.get(), PJ_FWD, toRadians(point));
    // PROJ marks what it can't compute with an infinite coordinate.
    if (!std::isfinite(grid.xy.x) || !std::isfinite(grid.xy.y))
        return std::nullopt;
    return GridPoint{grid.xy.x, grid.xy.y};
}

std::optional<GeographicPoint> OperationOfProj::toGeographic(const GridPoint& point, double height) const {
    PJ_COORD place = proj_trans(operation.get(), PJ_INV, proj_coord(point.easting, point.northing, height, 0.0));
    if (!std::isfinite(place.lpz.phi) || !std::isfinite(place.lpz.lam))
        return std::nullopt;
    if (refines)
        place = refined(place, point);
    return GeographicPoint{proj_todeg(place.lpz.phi), proj_todeg(place.lpz.lam), height};
}

/// A place that comes back farther away than what is left of an iteration is left alone: that is for its user to see.
PJ_COORD OperationOfProj::refined(const PJ_COORD& place, const GridPoint& point) const {
    constexpr double least = 1e-8, most = 1e-3; // metres
    const PJ_COORD back = proj_trans(operation.get(), PJ_FWD, place);
    const double east = point.easting - back.xy.x, north = point.northing - back.xy.y;
    const double miss = std::hypot(east, north);
    if (!(miss > least && miss < most))
        return place;
    // Its derivatives are those on an ellipsoid with the semi-major axis 1.
    const PJ_FACTORS factors = proj_factors(operation.get(), place);
    const double determinant = a * (factors.dx_dlam * factors.dy_dphi - factors.dx_dphi * factors.dy_dlam);
    PJ_COORD better = place;
    better.lpz.lam += (east * factors.dy_dphi - north * factors.dx_dphi) / determinant;
    better.lpz.phi += (north * factors.dx_dlam - east * factors.dy_dlam) / determinant;
    const bool isPlace = std::isfinite(better.lpz.lam) && std::abs(better.lpz.phi) <= proj_torad(90.0);
    return isPlace ? better : place;
}

std::optional<LocalScale> OperationOfProj::localScale(const GeographicPoint& point) const {
    // The differentiation steps aside from a point at infinity; the point itself has no scale.
    if (!toGrid(point))
        return std::nullopt;
    proj_errno_reset(operation.get());
    const PJ_FACTORS factors = proj_factors(operation.get(), toRadians(point));
    if (proj_errno(operation.get()) != 0 || !std::isfinite(factors.areal_scale) || !(factors.areal_scale > 0.0) ||
        !std::isfinite(factors.tissot_semimajor) || !std::isfinite(factors.meridian_convergence))
        return std::nullopt;
    return LocalScale{factors.meridional_scale, factors.parallel_scale,   std::sqrt(factors.areal_scale),
                      factors.tissot_semiminor, factors.tissot_semimajor, proj_todeg(factors.meridian_convergence)};
}

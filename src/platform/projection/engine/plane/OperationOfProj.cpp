#include "platform/projection/engine/plane/OperationOfProj.h"

#include <cmath>
#include <utility>

namespace {

PJ_COORD toRadians(const GeographicPoint& point) {
    return proj_coord(proj_torad(point.longitude), proj_torad(point.latitude), point.height, 0.0);
}

} // namespace

OperationOfProj::OperationOfProj(ProjObject operation) : operation(std::move(operation)) {
}

std::optional<GridPoint> OperationOfProj::toGrid(const GeographicPoint& point) const {
    const PJ_COORD grid = proj_trans(operation.get(), PJ_FWD, toRadians(point));
    // PROJ marks what it can't compute with an infinite coordinate.
    if (!std::isfinite(grid.xy.x) || !std::isfinite(grid.xy.y))
        return std::nullopt;
    return GridPoint{grid.xy.x, grid.xy.y};
}

std::optional<GeographicPoint> OperationOfProj::toGeographic(const GridPoint& point, double height) const {
    const PJ_COORD place = proj_trans(operation.get(), PJ_INV, proj_coord(point.easting, point.northing, height, 0.0));
    if (!std::isfinite(place.lpz.phi) || !std::isfinite(place.lpz.lam))
        return std::nullopt;
    return GeographicPoint{proj_todeg(place.lpz.phi), proj_todeg(place.lpz.lam), height};
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

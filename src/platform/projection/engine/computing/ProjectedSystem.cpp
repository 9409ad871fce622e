#include "platform/projection/engine/computing/ProjectedSystem.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double ppmPerUnit = 1e6;

bool isPlace(const GeographicPoint& point) {
    return std::abs(point.latitude) <= 90.0 && std::abs(point.longitude) <= 360.0 && std::isfinite(point.height);
}

PJ_COORD toRadians(const GeographicPoint& point) {
    return proj_coord(proj_torad(point.longitude), proj_torad(point.latitude), point.height, 0.0);
}

std::optional<GeographicPoint> toDegrees(const PJ_COORD& coord) {
    const GeographicPoint point{proj_todeg(coord.lpz.phi), proj_todeg(coord.lpz.lam), coord.lpz.z};
    if (!isPlace(point))
        return std::nullopt;
    return point;
}

double combined(double scale, double elevationFactor) {
    return (scale * elevationFactor - 1.0) * ppmPerUnit;
}

} // namespace

ProjectedSystem::ProjectedSystem(ProjObject projection, ProjObject shift, double a, double b)
    : projection(std::move(projection)), shift(std::move(shift)), a(a), b(b) {
}

std::optional<GridPoint> ProjectedSystem::toGrid(const GeographicPoint& point) const {
    if (!isPlace(point))
        return std::nullopt;
    const PJ_COORD grid = proj_trans(projection.get(), PJ_FWD, toRadians(point));
    // PROJ marks what it can't compute with an infinite coordinate.
    if (!std::isfinite(grid.xy.x) || !std::isfinite(grid.xy.y))
        return std::nullopt;
    return GridPoint{grid.xy.x, grid.xy.y};
}

std::optional<GeographicPoint> ProjectedSystem::toGeographic(const GridPoint& point, double height) const {
    if (!std::isfinite(point.easting) || !std::isfinite(point.northing))
        return std::nullopt;
    return toDegrees(proj_trans(projection.get(), PJ_INV, proj_coord(point.easting, point.northing, height, 0.0)));
}

std::optional<LocalScale> ProjectedSystem::localScale(const GeographicPoint& point) const {
    // The differentiation steps aside from a point at infinity; the point itself has no scale.
    if (!toGrid(point))
        return std::nullopt;
    proj_errno_reset(projection.get());
    const PJ_FACTORS factors = proj_factors(projection.get(), toRadians(point));
    if (proj_errno(projection.get()) != 0 || !std::isfinite(factors.areal_scale) || !(factors.areal_scale > 0.0) ||
        !std::isfinite(factors.tissot_semimajor) || !std::isfinite(factors.meridian_convergence))
        return std::nullopt;
    return LocalScale{factors.meridional_scale, factors.parallel_scale,   std::sqrt(factors.areal_scale),
                      factors.tissot_semiminor, factors.tissot_semimajor, proj_todeg(factors.meridian_convergence)};
}

bool ProjectedSystem::hasDatumShift() const {
    return shift != nullptr;
}

std::optional<GeographicPoint> ProjectedSystem::toWgs84(const GeographicPoint& point) const {
    if (!isPlace(point))
        return std::nullopt;
    if (!shift)
        return point;
    return toDegrees(proj_trans(shift.get(), PJ_FWD, toRadians(point)));
}

std::optional<GeographicPoint> ProjectedSystem::fromWgs84(const GeographicPoint& point) const {
    if (!isPlace(point))
        return std::nullopt;
    if (!shift)
        return point;
    return toDegrees(proj_trans(shift.get(), PJ_INV, toRadians(point)));
}

double ProjectedSystem::meanRadius(double latitude) const {
    // M N = a^2 b^2 / (a^2 cos^2 + b^2 sin^2)^2 (Snyder 1987, (4-18) and (4-20)).
    const double cosine = std::cos(proj_torad(latitude));
    const double sine = std::sin(proj_torad(latitude));
    return a * a * b / (a * a * cosine * cosine + b * b * sine * sine);
}

void ProjectedSystem::linearDistortion(const GridPoint* points, std::size_t count, double height, double* ppm) const {
    for (std::size_t i = 0; i < count; ++i)
        ppm[i] = linearDistortionAt(points[i], height);
}

double ProjectedSystem::linearDistortionAt(const GridPoint& point, double height) const {
    const auto place = toGeographic(point, height);
    const auto scale = place ? localScale(*place) : std::nullopt;
    if (!scale)
        return std::numeric_limits<double>::quiet_NaN();
    const double elevation = elevationFactor(place->latitude, height);
    if (scale->isConformal())
        return combined(scale->mean, elevation);
    const double low = combined(scale->smallest, elevation);
    const double high = combined(scale->largest, elevation);
    return std::abs(low) > std::abs(high) ? low : high;
}

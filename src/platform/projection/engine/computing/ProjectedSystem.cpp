#include "platform/projection/engine/computing/ProjectedSystem.h"

#include "catalogue/Angle.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double ppmPerUnit = 1e6;

bool isPlace(const GeographicPoint& point) {
    return std::abs(point.latitude) <= 90.0 && std::abs(point.longitude) <= 360.0 && std::isfinite(point.height);
}

std::optional<GeographicPoint> withinBounds(const std::optional<GeographicPoint>& point) {
    return point && isPlace(*point) ? point : std::nullopt;
}

double combined(double scale, double elevationFactor) {
    return (scale * elevationFactor - 1.0) * ppmPerUnit;
}

} // namespace

ProjectedSystem::ProjectedSystem(std::unique_ptr<PlaneProjection> projection, const std::optional<ShiftToWgs84>& shift,
                                 double a, double b)
    : projection(std::move(projection)), shift(shift), a(a), b(b) {
}

std::optional<GridPoint> ProjectedSystem::toGrid(const GeographicPoint& point) const {
    return isPlace(point) ? projection->toGrid(point) : std::nullopt;
}

std::optional<GeographicPoint> ProjectedSystem::toGeographic(const GridPoint& point, double height) const {
    if (!std::isfinite(point.easting) || !std::isfinite(point.northing))
        return std::nullopt;
    return withinBounds(projection->toGeographic(point, height));
}

std::optional<LocalScale> ProjectedSystem::localScale(const GeographicPoint& point) const {
    return isPlace(point) ? projection->localScale(point) : std::nullopt;
}

bool ProjectedSystem::hasDatumShift() const {
    return shift.has_value();
}

std::optional<GeographicPoint> ProjectedSystem::toWgs84(const GeographicPoint& point) const {
    if (!isPlace(point))
        return std::nullopt;
    return shift ? withinBounds(shift->forward(point)) : point;
}

std::optional<GeographicPoint> ProjectedSystem::fromWgs84(const GeographicPoint& point) const {
    if (!isPlace(point))
        return std::nullopt;
    return shift ? withinBounds(shift->inverse(point)) : point;
}

double ProjectedSystem::meanRadius(double latitude) const {
    // M N = a^2 b^2 / (a^2 cos^2 + b^2 sin^2)^2 (Snyder 1987, (4-18) and (4-20)).
    const double cosine = std::cos(Angle::toRadians(latitude));
    const double sine = std::sin(Angle::toRadians(latitude));
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

#include "platform/projection/engine/computing/ShiftToWgs84.h"

#include "catalogue/Angle.h"

#include <cmath>

namespace {

using Vectors::cross;
using Vectors::product;
using Vectors::Vector;

constexpr double wgs84A = 6378137.0;
constexpr double wgs84B = wgs84A - wgs84A / 298.257223563;

double arcSeconds(double angle) {
    return Angle::toRadians(angle / 3600);
}

/// Guidance note 7-2, method 9602.
Vector toGeocentric(const GeographicPoint& point, double a, double b) {
    const double e2 = 1 - (b / a) * (b / a);
    const double phi = Angle::toRadians(point.latitude);
    const double lambda = Angle::toRadians(point.longitude);
    const double normal = a / std::sqrt(1 - e2 * std::pow(std::sin(phi), 2));
    const double radius = (normal + point.height) * std::cos(phi);
    return {radius * std::cos(lambda), radius * std::sin(lambda), (normal * (1 - e2) + point.height) * std::sin(phi)};
}

/// Bowring's formula (1976), repeated until it stands: above the ground it gains four digits with each step.
std::optional<GeographicPoint> toGeographic(const Vector& place, double a, double b) {
    const double e2 = 1 - (b / a) * (b / a);
    const double secondE2 = (a / b) * (a / b) - 1;
    const double radius = std::hypot(place[0], place[1]);
    double phi = std::atan2(place[2] * a, radius * b);
    for (int step = 0; step < 4; ++step) {
        const double reduced = std::atan2(b * std::sin(phi), a * std::cos(phi));
        phi = std::atan2(place[2] + secondE2 * b * std::pow(std::sin(reduced), 3),
                         radius - e2 * a * std::pow(std::cos(reduced), 3));
    }
    const double height =
        radius * std::cos(phi) + place[2] * std::sin(phi) - a * std::sqrt(1 - e2 * std::pow(std::sin(phi), 2));
    const GeographicPoint point{Angle::toDegrees(phi), Angle::toDegrees(std::atan2(place[1], place[0])), height};
    if (!std::isfinite(point.latitude) || !std::isfinite(height))
        return std::nullopt;
    return point;
}

} // namespace

ShiftToWgs84::ShiftToWgs84(const ProjTowgs84& shift, double a, double b)
    : translation{shift.dx, shift.dy, shift.dz}
    , rotation{arcSeconds(shift.rx), arcSeconds(shift.ry), arcSeconds(shift.rz)}
    , scale(1 + shift.ppm * 1e-6)
    , a(a)
    , b(b) {
}

std::optional<GeographicPoint> ShiftToWgs84::forward(const GeographicPoint& point) const {
    const Vector own = toGeocentric(point, a, b);
    const Vector turn = cross(rotation, own);
    Vector place;
    for (std::size_t i = 0; i < 3; ++i)
        place[i] = translation[i] + scale * (own[i] + turn[i]);
    return toGeographic(place, wgs84A, wgs84B);
}

/// The inverse of x + r x (cross product with r) is (x - r x + r (r . x)) / (1 + r . r).
std::optional<GeographicPoint> ShiftToWgs84::inverse(const GeographicPoint& point) const {
    Vector place = toGeocentric(point, wgs84A, wgs84B);
    for (std::size_t i = 0; i < 3; ++i)
        place[i] = (place[i] - translation[i]) / scale;
    const Vector turn = cross(rotation, place);
    const double along = product(rotation, place);
    const double square = product(rotation, rotation);
    for (std::size_t i = 0; i < 3; ++i)
        place[i] = (place[i] - turn[i] + rotation[i] * along) / (1 + square);
    return toGeographic(place, a, b);
}

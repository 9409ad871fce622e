#include "platform/projection/engine/plane/LambertConformal.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/plane/IsometricLatitude.h"

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The radius of a parallel, on an ellipsoid with the semi-major axis 1.
double parallelRadius(double latitude, double e2) {
    const double phi = Angle::toRadians(latitude);
    return std::cos(phi) / std::sqrt(1 - e2 * std::pow(std::sin(phi), 2));
}

} // namespace

/// n = (ln m1 - ln m2) / (psi2 - psi1). Where a difference of near numbers would lose digits, it is written as a
/// function of the middle of the parallels and half their distance.
double LambertConformal::coneConstant(double firstParallel, double secondParallel, double e2) {
    const double middle = Angle::toRadians((firstParallel + secondParallel) / 2);
    const double half = Angle::toRadians((secondParallel - firstParallel) / 2);
    if (half == 0)
        return std::sin(middle);
    const double e = std::sqrt(e2);
    const double phi1 = Angle::toRadians(firstParallel), phi2 = Angle::toRadians(secondParallel);
    const double sine1 = std::sin(phi1), sine2 = std::sin(phi2);
    const double tangents = std::tan(middle) * std::tan(half);        // (cos1 - cos2) / (cos1 + cos2)
    const double squares = std::sin(2 * middle) * std::sin(2 * half); // sine2^2 - sine1^2
    const double cosines =
        std::abs(tangents) < 0.5 ? 2 * std::atanh(tangents) : std::log(std::cos(phi1) / std::cos(phi2));
    const double radii = cosines + std::log1p(-e2 * squares / (1 - e2 * sine1 * sine1)) / 2;
    constexpr double closeBy = 0.02; // radians
    if (std::abs(half) > closeBy)
        return radii / (IsometricLatitude::ofLatitude(phi2, e) - IsometricLatitude::ofLatitude(phi1, e));
    const double sines = 2 * std::cos(middle) * std::sin(half); // sine2 - sine1
    return radii / (std::atanh(sines / (std::pow(std::sin(half), 2) + std::pow(std::cos(middle), 2))) -
                    e * std::atanh(e * sines / (1 - e2 * sine1 * sine2)));
}

LambertConformal::LambertConformal(const Parameters& parameters)
    : given(parameters)
    , e(std::sqrt(parameters.e2))
    , n(coneConstant(parameters.firstParallel, parameters.secondParallel, parameters.e2))
    , isometricParallel(isometric(parameters.firstParallel))
    , isometricOrigin(isometric(parameters.latitude))
    , circleOfParallel(parameters.a * parameters.scale * parallelRadius(parameters.firstParallel, parameters.e2))
    , circleOfOrigin(circle(isometricOrigin)) {
}

double LambertConformal::isometric(double latitude) const {
    return std::abs(latitude) == 90 ? std::copysign(infinity, latitude)
                                    : IsometricLatitude::ofLatitude(Angle::toRadians(latitude), e);
}

double LambertConformal::circle(double psi) const {
    return circleOfParallel * std::exp(-n * (psi - isometricParallel));
}

double LambertConformal::lambda(const GeographicPoint& point) const {
    return Angle::toRadians(std::remainder(point.longitude - given.longitude, 360));
}

std::optional<GridPoint> LambertConformal::toGrid(const GeographicPoint& point) const {
    const double psi = isometric(point.latitude);
    const double round = circle(psi);
    const double turn = n * lambda(point);
    // From the origin's parallel to the place's, along the meridian.
    const double between = circleOfOrigin == 0 || round == 0
                               ? (circleOfOrigin - round) / n
                               : -circleOfOrigin * std::expm1(-n * (psi - isometricOrigin)) / n;
    const GridPoint grid{given.falseEasting + round * std::sin(turn) / n,
                         given.falseNorthing + between + round * 2 * std::pow(std::sin(turn / 2), 2) / n};
    // The other pole lies at infinity.
    if (!std::isfinite(grid.easting) || !std::isfinite(grid.northing))
        return std::nullopt;
    return grid;
}

std::optional<GeographicPoint> LambertConformal::toGeographic(const GridPoint& point, double height) const {
    const double x = point.easting - given.falseEasting;
    const double y = point.northing - given.falseNorthing;
    const double round = std::hypot(n * x, circleOfOrigin - n * y);
    if (round == 0)
        return GeographicPoint{std::copysign(90, n), given.longitude, height};
    const double lambda = std::atan2(n * x, circleOfOrigin - n * y) / n;
    constexpr double rounding = 1e-12;
    if (!(std::abs(lambda) <= Angle::pi + rounding))
        return std::nullopt;
    const bool isNear = std::abs(round / circleOfOrigin - 1) < 0.5;
    const double psi = isNear ? isometricOrigin - std::log1p(n * (n * x * x + n * y * y - 2 * circleOfOrigin * y) /
                                                             (circleOfOrigin * circleOfOrigin)) /
                                                      (2 * n)
                              : isometricParallel - std::log(round / circleOfParallel) / n;
    return GeographicPoint{Angle::toDegrees(IsometricLatitude::toLatitude(psi, e)),
                           std::remainder(given.longitude + Angle::toDegrees(lambda), 360), height};
}

std::optional<LocalScale> LambertConformal::localScale(const GeographicPoint& point) const {
    const double scale = circle(isometric(point.latitude)) / (given.a * parallelRadius(point.latitude, given.e2));
    if (!std::isfinite(scale) || !(scale > 0))
        return std::nullopt;
    return LocalScale::conformal(scale, Angle::toDegrees(n * lambda(point)));
}

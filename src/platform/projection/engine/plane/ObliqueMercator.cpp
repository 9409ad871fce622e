#include "platform/projection/engine/plane/ObliqueMercator.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/plane/IsometricLatitude.h"

#include <cmath>

namespace {

using Vector = std::array<double, 3>;

double product(const Vector& left, const Vector& right) {
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

Vector cross(const Vector& left, const Vector& right) {
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
            left[0] * right[1] - left[1] * right[0]};
}

/// a * x + b * y
Vector sum(double a, const Vector& x, double b, const Vector& y) {
    return {a * x[0] + b * y[0], a * x[1] + b * y[1], a * x[2] + b * y[2]};
}

/// Sine and cosine of an angle in degrees, exact at the multiples of a right angle.
struct SineCosine {
    explicit SineCosine(double degrees) {
        const double turns = std::remainder(degrees, 360);
        const bool isSteep = std::abs(turns) > 45 && std::abs(turns) < 135;
        const double fromAxis = isSteep ? Angle::toRadians(std::abs(turns) - 90) : Angle::toRadians(turns);
        sine = isSteep ? std::copysign(std::cos(fromAxis), turns) : std::sin(fromAxis);
        cosine = isSteep ? -std::sin(fromAxis) : std::cos(fromAxis);
        if (std::abs(turns) == 180)
            sine = 0;
    }

    double sine, cosine;
};

double squareOfW(double e2, double phi) {
    return 1 - e2 * std::pow(std::sin(phi), 2);
}

} // namespace

ObliqueMercator::Sphere::Sphere(const Parameters& parameters) : e(std::sqrt(parameters.e2)) {
    const double e2 = parameters.e2;
    const double phi = Angle::toRadians(parameters.latitudeOfCentre);
    const double cosine = std::cos(phi);
    exponent = std::sqrt(1 + e2 / (1 - e2) * std::pow(cosine, 4));
    radius = parameters.a * std::sqrt(1 - e2) / squareOfW(e2, phi);
    // tan = sin(phi) / B / sqrt(1 - (sin(phi) / B)^2), the root multiplied out
    const double tangent = std::tan(phi) * std::sqrt((1 - e2) / squareOfW(e2, phi));
    centre = std::atan(tangent);
    isometricCentre = IsometricLatitude::ofLatitude(phi, e);
    isometricOnSphere = std::asinh(tangent);
}

ObliqueMercator::Vector ObliqueMercator::Sphere::vector(double phi, double lambda) const {
    const double psi = isometricOnSphere + exponent * (IsometricLatitude::ofLatitude(phi, e) - isometricCentre);
    const double cosine = 1 / std::cosh(psi);
    return {cosine * std::cos(exponent * lambda), cosine * std::sin(exponent * lambda), std::tanh(psi)};
}

ObliqueMercator::ObliqueMercator(const Parameters& parameters)
    : given(parameters), sphere(parameters), scaledRadius(sphere.radius * parameters.scale) {
    const SineCosine azimuth(parameters.azimuth);
    const SineCosine grid(parameters.gridAngle);
    sineOfGrid = grid.sine;
    cosineOfGrid = grid.cosine;
    const double sine = std::sin(sphere.centre);
    const double cosine = std::cos(sphere.centre);
    centre = {cosine, 0, sine};
    const Vector north{-sine, 0, cosine};
    const Vector east{0, 1, 0};
    line = sum(azimuth.cosine, north, azimuth.sine, east);
    side = sum(azimuth.cosine, east, -azimuth.sine, north);
}

std::optional<ObliqueMercator::Parameters>
ObliqueMercator::throughPlaces(Parameters parameters, const GeographicPoint& first, const GeographicPoint& second) {
    const Sphere sphere(parameters);
    // Longitudes from the first place.
    const double lambda = Angle::toRadians(std::remainder(second.longitude - first.longitude, 360));
    Vector normal = cross(sphere.vector(Angle::toRadians(first.latitude), 0),
                          sphere.vector(Angle::toRadians(second.latitude), lambda));
    // The line crosses the equator going north in the direction (-y, x) of its normal.
    const double middle = sphere.exponent * lambda / 2;
    const bool isBehind = normal[0] * std::sin(middle) - normal[1] * std::cos(middle) < 0;
    const double length = (isBehind ? -1 : 1) * std::sqrt(product(normal, normal));
    normal = {normal[0] / length, normal[1] / length, normal[2] / length};
    // Clairaut: cos(latitude) sin(azimuth) is the same all along the line.
    const double inclination = std::hypot(normal[0], normal[1]);
    const double height = std::abs(std::sin(sphere.centre));
    if (!(inclination >= height))
        return std::nullopt;
    const double sine = normal[2];
    const double cosine = std::sqrt((inclination - height) * (inclination + height));
    parameters.azimuth = Angle::toDegrees(std::atan2(sine, cosine));
    parameters.gridAngle = parameters.azimuth;
    const double fromNode = std::atan2(std::sin(sphere.centre) * sine, cosine);
    const double node = std::atan2(normal[0], -normal[1]);
    parameters.longitudeOfCentre =
        first.longitude + Angle::toDegrees(std::remainder(node + fromNode, 2 * Angle::pi) / sphere.exponent);
    return parameters;
}

double ObliqueMercator::distanceFromNaturalOrigin(const Parameters& parameters) {
    const Sphere sphere(parameters);
    const SineCosine azimuth(parameters.azimuth);
    return sphere.radius * parameters.scale * std::atan2(std::tan(sphere.centre), azimuth.cosine);
}

double ObliqueMercator::lambda(const GeographicPoint& point) const {
    return Angle::toRadians(std::remainder(point.longitude - given.longitudeOfCentre, 360));
}

ObliqueMercator::Turned ObliqueMercator::turned(const Vector& vector) const {
    return {product(vector, centre), product(vector, line), product(vector, side)};
}

std::optional<GridPoint> ObliqueMercator::toGrid(const GeographicPoint& point) const {
    const Turned place = turned(sphere.vector(Angle::toRadians(point.latitude), lambda(point)));
    const double u = scaledRadius * std::atan2(place.along, place.towards);
    const double v = scaledRadius * std::asinh(place.right / std::hypot(place.along, place.towards));
    if (!std::isfinite(v))
        return std::nullopt;
    return GridPoint{given.eastingAtCentre + v * cosineOfGrid + u * sineOfGrid,
                     given.northingAtCentre + u * cosineOfGrid - v * sineOfGrid};
}

std::optional<GeographicPoint> ObliqueMercator::toGeographic(const GridPoint& point, double height) const {
    const double east = point.easting - given.eastingAtCentre;
    const double north = point.northing - given.northingAtCentre;
    const double u = (east * sineOfGrid + north * cosineOfGrid) / scaledRadius;
    const double v = (east * cosineOfGrid - north * sineOfGrid) / scaledRadius;
    if (std::abs(u) > Angle::pi)
        return std::nullopt;
    const double cosine = 1 / std::cosh(v);
    const Vector place = sum(1, sum(cosine * std::cos(u), centre, cosine * std::sin(u), line), std::tanh(v), side);
    const double psi = std::asinh(place[2] / std::hypot(place[0], place[1]));
    const double phi = IsometricLatitude::toLatitude(
        sphere.isometricCentre + (psi - sphere.isometricOnSphere) / sphere.exponent, sphere.e);
    const double longitude =
        given.longitudeOfCentre + Angle::toDegrees(std::atan2(place[1], place[0]) / sphere.exponent);
    return GeographicPoint{Angle::toDegrees(phi), std::remainder(longitude, 360), height};
}

/// The scale is that of the sphere's parallels, times Mercator's on the sphere.
std::optional<LocalScale> ObliqueMercator::localScale(const GeographicPoint& point) const {
    const double phi = Angle::toRadians(point.latitude);
    const double lam = lambda(point);
    const Vector vector = sphere.vector(phi, lam);
    const Turned place = turned(vector);
    const double cosine = std::hypot(place.along, place.towards);
    const double parallelOfSphere = scaledRadius * sphere.exponent * std::hypot(vector[0], vector[1]);
    const double parallel = given.a * std::cos(phi) / std::sqrt(squareOfW(given.e2, phi));
    const double scale = parallelOfSphere / cosine / parallel;
    if (!std::isfinite(scale) || !(scale > 0))
        return std::nullopt;
    // The direction due east on the plane, along the line and to its right.
    const Turned east = turned({-std::sin(sphere.exponent * lam), std::cos(sphere.exponent * lam), 0});
    const double u = (east.along * place.towards - east.towards * place.along) / cosine;
    const double v = east.right / cosine;
    const double convergence = std::atan2(u * cosineOfGrid - v * sineOfGrid, v * cosineOfGrid + u * sineOfGrid);
    return LocalScale{scale, scale, scale, scale, scale, Angle::toDegrees(convergence)};
}

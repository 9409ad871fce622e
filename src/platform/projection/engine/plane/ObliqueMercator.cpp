#include "platform/projection/engine/plane/ObliqueMercator.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/plane/SineCosine.h"

#include <cmath>

namespace {

using Vectors::product;

ConformalSphere sphereOf(const ObliqueMercator::Parameters& parameters) {
    return ConformalSphere::fitting(parameters.a, parameters.e2, parameters.latitudeOfCentre);
}

} // namespace

ObliqueMercator::ObliqueMercator(const Parameters& parameters)
    : given(parameters), sphere(sphereOf(parameters)), radius(sphere.radius() * parameters.scale) {
    const SineCosine azimuth(parameters.azimuth);
    const SineCosine grid(parameters.gridAngle);
    sineOfGrid = grid.sine;
    cosineOfGrid = grid.cosine;
    const Vector north{-sphere.sine(), 0, sphere.cosine()};
    const Vector east{0, 1, 0};
    centre = {sphere.cosine(), 0, sphere.sine()};
    line = Vectors::sum(azimuth.cosine, north, azimuth.sine, east);
    side = Vectors::sum(azimuth.cosine, east, -azimuth.sine, north);
}

std::optional<ObliqueMercator::Parameters>
ObliqueMercator::throughPlaces(Parameters parameters, const GeographicPoint& first, const GeographicPoint& second) {
    const ConformalSphere sphere = sphereOf(parameters);
    // Longitudes from the first place.
    const double lambda = Angle::toRadians(std::remainder(second.longitude - first.longitude, 360));
    Vector normal = Vectors::cross(sphere.vector(Angle::toRadians(first.latitude), 0),
                                   sphere.vector(Angle::toRadians(second.latitude), lambda));
    // The line crosses the equator going north at (-y, x) of its normal.
    const double middle = sphere.exponent() * lambda / 2;
    const bool isBehind = normal[0] * std::sin(middle) - normal[1] * std::cos(middle) < 0;
    const double length = std::copysign(std::sqrt(product(normal, normal)), isBehind ? -1 : 1);
    normal = {normal[0] / length, normal[1] / length, normal[2] / length};
    // Clairaut: cos(latitude) sin(azimuth) is the same all along the line.
    const double highest = std::hypot(normal[0], normal[1]); // sine of the northernmost latitude
    const double height = std::abs(sphere.sine());
    if (!(highest >= height))
        return std::nullopt;
    const double sine = normal[2];
    const double cosine = std::sqrt((highest - height) * (highest + height));
    const double node = std::atan2(normal[0], -normal[1]);
    const double fromNode = std::atan2(sphere.sine() * sine, cosine);
    parameters.azimuth = parameters.gridAngle = Angle::toDegrees(std::atan2(sine, cosine));
    parameters.longitudeOfCentre =
        first.longitude + Angle::toDegrees(std::remainder(node + fromNode, 2 * Angle::pi) / sphere.exponent());
    return parameters;
}

double ObliqueMercator::distanceFromNaturalOrigin(const Parameters& parameters) {
    const ConformalSphere sphere = sphereOf(parameters);
    return sphere.radius() * parameters.scale * std::atan2(sphere.tangent(), SineCosine(parameters.azimuth).cosine);
}

double ObliqueMercator::lambda(const GeographicPoint& point) const {
    return Angle::toRadians(std::remainder(point.longitude - given.longitudeOfCentre, 360));
}

ObliqueMercator::Turned ObliqueMercator::turned(const Vector& vector) const {
    return {product(vector, centre), product(vector, line), product(vector, side)};
}

std::optional<GridPoint> ObliqueMercator::toGrid(const GeographicPoint& point) const {
    const Turned place = turned(sphere.vector(Angle::toRadians(point.latitude), lambda(point)));
    const double u = radius * std::atan2(place.along, place.towards);
    const double v = radius * std::asinh(place.right / std::hypot(place.along, place.towards));
    if (!std::isfinite(v))
        return std::nullopt;
    return GridPoint{given.eastingAtCentre + v * cosineOfGrid + u * sineOfGrid,
                     given.northingAtCentre + u * cosineOfGrid - v * sineOfGrid};
}

std::optional<GeographicPoint> ObliqueMercator::toGeographic(const GridPoint& point, double height) const {
    const double east = point.easting - given.eastingAtCentre;
    const double north = point.northing - given.northingAtCentre;
    const double u = (east * sineOfGrid + north * cosineOfGrid) / radius;
    const double v = (east * cosineOfGrid - north * sineOfGrid) / radius;
    if (std::abs(u) > Angle::pi)
        return std::nullopt;
    const double cosine = 1 / std::cosh(v);
    const Vector onLine = Vectors::sum(std::cos(u), centre, std::sin(u), line);
    const auto place = sphere.place(Vectors::sum(cosine, onLine, std::tanh(v), side));
    return GeographicPoint{place.latitude, std::remainder(given.longitudeOfCentre + place.longitude, 360), height};
}

/// That of the sphere, times Mercator's on it.
std::optional<LocalScale> ObliqueMercator::localScale(const GeographicPoint& point) const {
    const double phi = Angle::toRadians(point.latitude);
    const double turn = sphere.exponent() * lambda(point);
    const Vector vector = sphere.vector(phi, lambda(point));
    const Turned place = turned(vector);
    const double cosine = std::hypot(place.along, place.towards);
    const double scale = given.scale * sphere.scale(phi, vector) / cosine;
    if (!std::isfinite(scale) || !(scale > 0))
        return std::nullopt;
    // The direction due east on the plane, along the line and to its right.
    const Turned east = turned({-std::sin(turn), std::cos(turn), 0});
    const double u = (east.along * place.towards - east.towards * place.along) / cosine;
    const double v = east.right / cosine;
    return LocalScale::conformal(
        scale, Angle::toDegrees(std::atan2(u * cosineOfGrid - v * sineOfGrid, v * cosineOfGrid + u * sineOfGrid)));
}

#include "platform/projection/engine/plane/Stereographic.h"

#include "catalogue/Angle.h"

#include <cmath>

using Vectors::product;

Stereographic::Stereographic(const ConformalSphere& sphere, double longitude, double scale, double falseEasting,
                             double falseNorthing)
    : sphere(sphere)
    , longitude(longitude)
    , scale(scale)
    , falseEasting(falseEasting)
    , falseNorthing(falseNorthing)
    , diameter(2 * sphere.radius() * scale)
    , centre{sphere.cosine(), 0, sphere.sine()}
    , north{-sphere.sine(), 0, sphere.cosine()} {
}

double Stereographic::lambda(const GeographicPoint& point) const {
    return Angle::toRadians(std::remainder(point.longitude - longitude, 360));
}

std::optional<GridPoint> Stereographic::toGrid(const GeographicPoint& point) const {
    const Vector place = sphere.vector(Angle::toRadians(point.latitude), lambda(point));
    const double factor = diameter / (1 + product(place, centre));
    const GridPoint grid{falseEasting + factor * place[1], falseNorthing + factor * product(place, north)};
    // The opposite of the centre lies at infinity.
    if (!std::isfinite(grid.easting) || !std::isfinite(grid.northing))
        return std::nullopt;
    return grid;
}

std::optional<GeographicPoint> Stereographic::toGeographic(const GridPoint& point, double height) const {
    const double x = (point.easting - falseEasting) / diameter;
    const double y = (point.northing - falseNorthing) / diameter;
    const double square = x * x + y * y;
    const Vector onPlane = Vectors::sum(2 * x, {0, 1, 0}, 2 * y, north);
    const auto place = sphere.place(Vectors::sum(1 / (1 + square), onPlane, (1 - square) / (1 + square), centre));
    if (std::isnan(place.latitude))
        return std::nullopt;
    return GeographicPoint{place.latitude, std::remainder(longitude + place.longitude, 360), height};
}

std::optional<LocalScale> Stereographic::localScale(const GeographicPoint& point) const {
    const double phi = Angle::toRadians(point.latitude);
    const double turn = sphere.exponent() * lambda(point);
    const Vector place = sphere.vector(phi, lambda(point));
    const double depth = 1 + product(place, centre);
    const double result = scale * sphere.scale(phi, place) * 2 / depth;
    if (!std::isfinite(result) || !(result > 0))
        return std::nullopt;
    // The direction due east on the plane.
    const Vector east{-std::sin(turn), std::cos(turn), 0};
    const double away = product(east, centre) / depth;
    return LocalScale::conformal(
        result,
        Angle::toDegrees(std::atan2(product(east, north) - away * product(place, north), east[1] - away * place[1])));
}

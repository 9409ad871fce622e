#include "panel/computing/DesignArea.h"

#include "catalogue/Angle.h"

#include <cmath>

namespace {

constexpr double earthRadius = 6371008.8; ///< metres, the mean radius (2 a + b) / 3 of GRS 1980 (Moritz 2000)
constexpr int pointsPerSide = 20;

} // namespace

/// Azimuthal equidistant on a sphere (Snyder 1987, USGS Professional Paper 1395, equations 20-14 and 20-15): the
/// ellipsoid's figure would change the square by some thousandths of its side.
GeographicPoint DesignArea::place(double east, double north) const {
    const double x = east * side, y = north * side;
    const double distance = std::hypot(x, y);
    if (distance == 0.0)
        return {centre.latitude, centre.longitude, 0.0};
    const double angle = distance / earthRadius;
    const double latitude = Angle::toRadians(centre.latitude);
    const double sine = std::cos(angle) * std::sin(latitude) + y * std::sin(angle) * std::cos(latitude) / distance;
    const double turn = std::atan2(x * std::sin(angle), distance * std::cos(latitude) * std::cos(angle) -
                                                            y * std::sin(latitude) * std::sin(angle));
    return {Angle::toDegrees(std::asin(qBound(-1.0, sine, 1.0))),
            std::remainder(centre.longitude + Angle::toDegrees(turn), 360.0), 0.0};
}

QVector<GeographicPoint> DesignArea::nodes(int perSide) const {
    QVector<GeographicPoint> places;
    for (int row = 0; row < perSide; ++row) {
        for (int column = 0; column < perSide; ++column)
            places.append(place(column / (perSide - 1.0) - 0.5, row / (perSide - 1.0) - 0.5));
    }
    return places;
}

QVector<GeographicPoint> DesignArea::outline() const {
    QVector<GeographicPoint> places;
    const double corners[][2] = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}, {-0.5, -0.5}};
    for (int i = 0; i < 4; ++i) {
        for (int step = 0; step < pointsPerSide; ++step) {
            const double part = step / double(pointsPerSide);
            places.append(place(corners[i][0] + part * (corners[i + 1][0] - corners[i][0]),
                                corners[i][1] + part * (corners[i + 1][1] - corners[i][1])));
        }
    }
    places.append(places.first());
    return places;
}

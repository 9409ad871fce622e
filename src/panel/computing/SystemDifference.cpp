#include "panel/computing/SystemDifference.h"

#include <algorithm>
#include <limits>

std::optional<GridOffset> SystemDifference::at(const GeographicPoint& place) const {
    std::optional<GeographicPoint> otherPlace = place;
    if (sameness == Sameness::Wgs84) {
        const auto wgs84 = system.toWgs84(place);
        otherPlace = wgs84 ? other.fromWgs84(*wgs84) : std::nullopt;
    }
    const auto mine = system.toGrid(place);
    const auto its = otherPlace ? other.toGrid(*otherPlace) : std::nullopt;
    if (!mine || !its)
        return std::nullopt;
    return GridOffset{mine->easting - its->easting, mine->northing - its->northing};
}

std::optional<GridOffset> SystemDifference::atGrid(const GridPoint& point) const {
    constexpr double closing = 0.001; // metres
    const auto place = system.toGeographic(point, 0.0);
    const auto back = place ? system.toGrid(*place) : std::nullopt;
    if (!back || std::hypot(back->easting - point.easting, back->northing - point.northing) > closing)
        return std::nullopt;
    return at(*place);
}

QVector<double> SystemDifference::lengths(const QVector<GridPoint>& points, const GridOffset& constant) const {
    QVector<double> values;
    values.reserve(points.size());
    for (const GridPoint& point : points) {
        const auto offset = atGrid(point);
        values.append(offset ? offset->apartFrom(constant).length() : std::numeric_limits<double>::quiet_NaN());
    }
    return values;
}

std::optional<SystemDifference::Summary> SystemDifference::over(const QVector<GeographicPoint>& places) const {
    QVector<GridOffset> offsets;
    GridOffset sum{0.0, 0.0};
    for (const GeographicPoint& place : places) {
        if (const auto offset = at(place)) {
            offsets.append(*offset);
            sum = {sum.easting + offset->easting, sum.northing + offset->northing};
        }
    }
    if (offsets.isEmpty())
        return std::nullopt;
    Summary summary{{sum.easting / offsets.size(), sum.northing / offsets.size()}, {0.0, 0.0}, 0.0};
    for (const GridOffset& offset : qAsConst(offsets)) {
        const GridOffset left = offset.apartFrom(summary.mean);
        summary.largest = {std::max(summary.largest.easting, std::abs(left.easting)),
                           std::max(summary.largest.northing, std::abs(left.northing))};
        summary.largestLength = std::max(summary.largestLength, left.length());
    }
    return summary;
}

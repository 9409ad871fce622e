#include "panel/computing/AreaValues.h"

#include <algorithm>
#include <cmath>
#include <limits>

QVector<GridPoint> AreaValues::nodes(const GridArea& area, int columns, int rows) {
    QVector<GridPoint> points;
    points.reserve(columns * rows);
    for (int row = 0; row < rows; ++row) {
        const double northing = area.centre.northing + area.height * (row / (rows - 1.0) - 0.5);
        for (int column = 0; column < columns; ++column)
            points.append({area.centre.easting + area.width * (column / (columns - 1.0) - 0.5), northing});
    }
    return points;
}

AreaValues::AreaValues(const QVector<double>& values, int columns)
    : numbers(values), columns(columns), low(std::numeric_limits<double>::infinity()), high(-low) {
    for (const double value : qAsConst(numbers)) {
        if (std::isnan(value))
            continue;
        low = std::min(low, value);
        high = std::max(high, value);
    }
}

AreaValues AreaValues::distortion(const IProjectedSystem& system, const GridArea& area, int columns, int rows,
                                  double height) {
    const QVector<GridPoint> points = nodes(area, columns, rows);
    QVector<double> ppm(points.size());
    system.linearDistortion(points.constData(), std::size_t(points.size()), height, ppm.data());
    return AreaValues(ppm, columns);
}

QVector<double> AreaValues::contourLevels(int count) const {
    QVector<double> levels;
    const double range = high - low;
    if (isEmpty() || !(range > 0.0) || !std::isfinite(range))
        return levels;
    double step = std::pow(10.0, std::floor(std::log10(range / count)));
    for (const double factor : {2.0, 2.5, 2.0}) {
        if (range / step <= count)
            break;
        step *= factor;
    }
    for (double number = std::ceil(low / step); number * step <= high; ++number)
        levels.append(number * step);
    return levels;
}

#include "panel/computing/DistortionGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

QVector<GridPoint> DistortionGrid::nodes(const DistortionArea& area, int columns, int rows) {
    QVector<GridPoint> points;
    points.reserve(columns * rows);
    for (int row = 0; row < rows; ++row) {
        const double northing = area.centre.northing + area.height * (row / (rows - 1.0) - 0.5);
        for (int column = 0; column < columns; ++column)
            points.append({area.centre.easting + area.width * (column / (columns - 1.0) - 0.5), northing});
    }
    return points;
}

DistortionGrid::DistortionGrid(const IProjectedSystem& system, const DistortionArea& area, int columns, int rows,
                               double height)
    : ppm(columns * rows), columns(columns), low(std::numeric_limits<double>::infinity()), high(-low) {
    const QVector<GridPoint> points = nodes(area, columns, rows);
    system.linearDistortion(points.constData(), std::size_t(points.size()), height, ppm.data());
    for (const double value : qAsConst(ppm)) {
        if (std::isnan(value))
            continue;
        low = std::min(low, value);
        high = std::max(high, value);
    }
}

QVector<double> DistortionGrid::contourLevels(int count) const {
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

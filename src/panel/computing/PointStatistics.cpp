#include "panel/computing/PointStatistics.h"

#include <cmath>

namespace {

void add(PointStatistics::Figures& figures, double value) {
    figures.mean += value;
    figures.rms += value * value;
    if (std::abs(value) > std::abs(figures.largest))
        figures.largest = value;
}

void divide(PointStatistics::Figures& figures, std::size_t count) {
    figures.mean /= double(count);
    figures.rms = std::sqrt(figures.rms / double(count));
}

} // namespace

PointStatistics PointStatistics::of(const PointTable& table, double tolerance) {
    PointStatistics statistics;
    for (std::size_t row = 0; row < table.size(); ++row) {
        statistics.problems += table.hasProblem(row);
        statistics.duplicates += table.isDuplicate(row);
        const GridPoint difference = table.difference(row);
        if (std::isnan(difference.easting) || std::isnan(difference.northing))
            continue;
        if (!table.isUsed(row)) {
            ++statistics.leftOut;
            continue;
        }
        const double distance = std::hypot(difference.easting, difference.northing);
        ++statistics.count;
        statistics.beyond += distance > tolerance;
        add(statistics.easting, difference.easting);
        add(statistics.northing, difference.northing);
        add(statistics.distance, distance);
    }
    if (statistics.count > 0) {
        for (Figures* figures : {&statistics.easting, &statistics.northing, &statistics.distance})
            divide(*figures, statistics.count);
    }
    return statistics;
}

#include "panel/computing/PointStatistics.h"

#include <algorithm>
#include <cmath>

namespace {

void addTo(PointStatistics::Figures& figures, double value) {
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
    statistics.add(table, 0, table.size(), tolerance);
    statistics.finish();
    return statistics;
}

void PointStatistics::add(const PointTable& table, std::size_t first, std::size_t last, double tolerance) {
    for (std::size_t row = first; row < last; ++row) {
        problems += table.hasProblem(row);
        duplicates += table.isDuplicate(row);
        const GridPoint place = table.grid(row);
        if (!std::isnan(place.easting) && !std::isnan(place.northing)) {
            lowest = {std::min(lowest.easting, place.easting), std::min(lowest.northing, place.northing)};
            highest = {std::max(highest.easting, place.easting), std::max(highest.northing, place.northing)};
        }
        const GridPoint difference = table.difference(row);
        if (std::isnan(difference.easting) || std::isnan(difference.northing))
            continue;
        if (!table.isUsed(row)) {
            ++leftOut;
            continue;
        }
        const double length = std::hypot(difference.easting, difference.northing);
        ++count;
        beyond += length > tolerance;
        addTo(easting, difference.easting);
        addTo(northing, difference.northing);
        addTo(distance, length);
    }
}

void PointStatistics::finish() {
    if (count == 0)
        return;
    for (Figures* figures : {&easting, &northing, &distance})
        divide(*figures, count);
}

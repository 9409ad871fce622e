#include "Oracle.h"

#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QVector<PJ_COORD> placesAround(const Meaning& meaning) {
    const auto first = [&](std::initializer_list<const char*> keys) {
        for (const char* const key : keys) {
            if (meaning.values.contains(key))
                return meaning.values[key];
        }
        return 0.0;
    };
    const double longitude = first({"lon_0", "lonc", "lon_1"});
    const double latitude = std::clamp(first({"lat_0", "lat_ts", "lat_1"}), -85.0, 85.0);
    constexpr double offsets[][2] = {{0.5, 0.3}, {-2, -1}, {2.5, 1}, {-1.3, 2}};
    QVector<PJ_COORD> places;
    for (const auto& [east, north] : offsets)
        places.append(proj_coord(proj_torad(longitude + east), proj_torad(latitude + north), 0, 0));
    return places;
}

/// PROJ's omerc loses half its digits at the azimuth 90, where it is its somerc.
QByteArray asSwiss(QByteArray definition) {
    if (definition.contains("+proj=omerc") && (definition + ' ').contains("+alpha=90 ") &&
        !definition.contains("no_uoff"))
        definition.replace("+proj=omerc", "+proj=somerc").replace("+lonc=", "+lon_0=");
    return definition;
}

} // namespace

Oracle::Oracle() : context(proj_context_create()) {
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
}

Oracle::~Oracle() {
    proj_context_destroy(context);
}

QVector<PJ_COORD> Oracle::gridOf(const Meaning& meaning) const {
    return gridAt(placesAround(meaning), meaning.definition());
}

double Oracle::deviation(const Meaning& meaning, const QByteArray& definition) const {
    const QVector<PJ_COORD> grid = gridOf(meaning);
    const QVector<PJ_COORD> other = gridAt(placesAround(meaning), definition);
    if (grid.isEmpty() || other.isEmpty())
        return std::numeric_limits<double>::quiet_NaN();
    double largest = 0;
    for (int i = 0; i < grid.size(); ++i)
        largest = std::max(largest, std::hypot(grid[i].xy.x - other[i].xy.x, grid[i].xy.y - other[i].xy.y));
    return largest;
}

QVector<PJ_COORD> Oracle::gridAt(const QVector<PJ_COORD>& places, QByteArray definition) const {
    const ProjObject projection(proj_create(context, asSwiss(definition.replace("+towgs84=", "+apart=")).constData()));
    QVector<PJ_COORD> grid;
    for (const PJ_COORD& place : places) {
        if (projection)
            grid.append(proj_trans(projection.get(), PJ_FWD, place));
        if (grid.isEmpty() || !std::isfinite(grid.last().xy.x) || !std::isfinite(grid.last().xy.y))
            return {};
    }
    return grid;
}

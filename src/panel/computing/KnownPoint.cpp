#include "panel/computing/KnownPoint.h"

#include "panel/computing/PointTable.h"

#include <cmath>

QVector<KnownPoint> KnownPoint::of(const PointTable& table, const IProjectedSystem& system, CheckPoint::Datum datum,
                                   int most) {
    QVector<KnownPoint> points;
    for (std::size_t row = 0; row < table.size() && points.size() < most; ++row) {
        if (!table.isUsed(row) || table.hasProblem(row) || !table.hasPlace(row) || !table.hasGrid(row))
            continue;
        const double height = table.given(row, PointColumn::Height);
        const GeographicPoint place{table.given(row, PointColumn::Latitude), table.given(row, PointColumn::Longitude),
                                    std::isnan(height) ? 0.0 : height};
        const auto own = datum == CheckPoint::Datum::Own ? place : system.fromWgs84(place);
        if (own)
            points.append({*own, table.grid(row)});
    }
    return points;
}

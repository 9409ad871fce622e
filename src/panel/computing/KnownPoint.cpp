#include "panel/computing/KnownPoint.h"

#include "panel/computing/PointTable.h"

QVector<KnownPoint> KnownPoint::of(const PointTable& table, const IProjectedSystem& system, CheckPoint::Datum datum,
                                   int most) {
    QVector<KnownPoint> points;
    for (std::size_t row = 0; row < table.size() && points.size() < most; ++row) {
        if (!table.isUsed(row) || table.hasProblem(row) || !table.hasGrid(row))
            continue;
        if (const auto own = table.ownPlace(row, system, datum))
            points.append({*own, table.grid(row), row});
    }
    return points;
}

#pragma once

#include "panel/computing/CheckPoint.h"

#include <QVector>

class PointTable;

/// A point whose place is known on the ground and on the grid.
struct KnownPoint {
    GeographicPoint own; ///< on the system's own datum
    GridPoint grid;      ///< as given
    std::size_t row = 0; ///< in the table that it is of

    /// The first `most` points of a table that have both, without those left out; the table's places are on `datum`.
    static QVector<KnownPoint> of(const PointTable& table, const IProjectedSystem& system, CheckPoint::Datum datum,
                                  int most);
};

#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QVector>

/// A rectangle on the grid, in metres.
struct DistortionArea {
    GridPoint centre;
    double width;  ///< from west to east
    double height; ///< from south to north
};

/// The linear distortion in ppm at the nodes of a regular grid over an area: what a picture of it is made from.
class DistortionGrid {
public:
    DistortionGrid() = default;

    /// Computes `columns` x `rows` nodes (2 or more each), the outer ones on the area's edges, for lines at the
    /// ellipsoidal height `height` (metres; 0 gives the grid distortion alone). See
    /// IProjectedSystem::linearDistortion().
    DistortionGrid(const IProjectedSystem& system, const DistortionArea& area, int columns, int rows, double height);

    /// Row by row from the south, each from the west; NaN where the projection gives no result.
    const QVector<double>& values() const { return ppm; }
    int columnCount() const { return columns; }
    int rowCount() const { return columns > 0 ? ppm.size() / columns : 0; }

    /// Whether there is a value at all; only then the two below say anything.
    bool isEmpty() const { return !(low <= high); }
    double smallest() const { return low; }
    double largest() const { return high; }

    /// Multiples of a round step (1, 2 or 5 times a power of ten) inside the range of the values, at most `count` of
    /// them.
    QVector<double> contourLevels(int count) const;

    /// The nodes' places on the grid, in the order of values().
    static QVector<GridPoint> nodes(const DistortionArea& area, int columns, int rows);

private:
    QVector<double> ppm;
    int columns = 0;
    double low = 1.0;
    double high = 0.0;
};

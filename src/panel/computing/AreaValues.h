#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QVector>

/// A rectangle on the grid, in metres.
struct GridArea {
    GridPoint centre;
    double width;  ///< from west to east
    double height; ///< from south to north
};

/// Values at the nodes of a regular grid over an area: what a picture of them is made from.
class AreaValues {
public:
    AreaValues() = default;

    /// `values` row by row from the south, each row of `columns` nodes from the west; NaN where there is no value.
    AreaValues(const QVector<double>& values, int columns);

    /// The linear distortion in ppm at `columns` x `rows` nodes (2 or more each), the outer ones on the area's edges,
    /// for lines at the ellipsoidal height `height` (metres; 0 gives the grid distortion alone). See
    /// IProjectedSystem::linearDistortion().
    static AreaValues distortion(const IProjectedSystem& system, const GridArea& area, int columns, int rows,
                                 double height);

    /// ppm: below it lies the noise of the computation of the distortion.
    static constexpr double distortionNoise = 1e-4;

    const QVector<double>& values() const { return numbers; }
    int columnCount() const { return columns; }
    int rowCount() const { return columns > 0 ? numbers.size() / columns : 0; }

    /// Whether there is a value at all; only then the two below say anything.
    bool isEmpty() const { return !(low <= high); }
    double smallest() const { return low; }
    double largest() const { return high; }

    /// Multiples of a round step (1, 2 or 5 times a power of ten) inside the range of the values, at most `count` of
    /// them.
    QVector<double> contourLevels(int count) const;

    /// The nodes' places on the grid, in the order of values().
    static QVector<GridPoint> nodes(const GridArea& area, int columns, int rows);

private:
    QVector<double> numbers;
    int columns = 0;
    double low = 1.0;
    double high = 0.0;
};

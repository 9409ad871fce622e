#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QVector>

/// The square on the ground that a system is designed for. No projection plays a part in it, so that a better
/// projection is not given another square.
class DesignArea {
public:
    /// A square of `side` metres with its sides to the north and east of `centre`, whose height plays no part.
    DesignArea(const GeographicPoint& centre, double side) : centre(centre), side(side) {}

    /// `perSide` x `perSide` places (2 or more each way), the outer ones on the square's sides; row by row from the
    /// south, each from the west.
    QVector<GeographicPoint> nodes(int perSide) const;

    /// The square's sides, all round back to the first corner.
    QVector<GeographicPoint> outline() const;

private:
    /// The place that lies that part of the side (-0.5 to 0.5) east and north of the centre.
    GeographicPoint place(double east, double north) const;

    GeographicPoint centre;
    double side;
};

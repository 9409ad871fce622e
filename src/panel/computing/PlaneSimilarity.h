#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QVector>

#include <complex>
#include <optional>

/// The similarity (Helmert 1876) that takes points of one grid closest to those of another, by least squares: scale,
/// rotation and shift.
class PlaneSimilarity {
public:
    /// From as many points to as many; nothing with fewer than three, or all at one place.
    static std::optional<PlaneSimilarity> between(const QVector<GridPoint>& from, const QVector<GridPoint>& to);

    double scale() const { return std::abs(factor); }
    double scaleDeviation() const { return deviation; }

    /// Degrees, counter-clockwise, -180 to 180.
    double rotation() const;
    double rotationDeviation() const;

    /// Where the other grid's origin goes.
    GridPoint shift() const { return {origin.real(), origin.imag()}; }

    /// The root of the sum of the residuals' squares over that of the points' distances from their centroid: 0 where
    /// all fit exactly, at most 1.
    double misfit() const { return relativeMisfit; }

private:
    std::complex<double> factor;
    std::complex<double> origin;
    double deviation = 0.0; ///< standard deviation of the factor's parts
    double relativeMisfit = 0.0;
};

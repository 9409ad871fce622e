#pragma once

#include "panel/computing/EllipsoidAxes.h"

#include <QString>
#include <QVector>

#include <array>
#include <optional>

class CoordParamEditor;
class IDictionary;

/// The shift to WGS 84 that fits points known on both datums best: W = T + (1 + s)(x + r × x), the position-vector
/// convention with rotations as small angles (IOGP Publication 373-7-2, method 9606), as a record states it. Least
/// squares of the geocentric coordinates, all of equal weight. In s, (1 + s) r and the translation of the points'
/// centroid (as Molodensky and Badekas have it) the problem is linear and sound; the result is given for the geocentre.
class ShiftFromPoints {
public:
    /// The number of parameters; the record's others are 0.
    enum class Kind { Three = 3, Seven = 7 };

    struct Point {
        QString name;          ///< for what is said of it
        GeographicPoint place; ///< on the own datum
        GeocentricPoint own;
        GeocentricPoint wgs84;
        bool isUsed = true; ///< rather than left out
    };

    /// Metres at a point, computed minus given.
    struct Residual {
        double east;
        double north;
        double up;
    };

    struct Correlation {
        int first; ///< of the parameters
        int second;
        double value; ///< -1 to 1
    };

    /// Translations in metres, rotations in arc-seconds, scale difference in ppm.
    using Parameters = std::array<double, 7>;

    /// The shift that the points state. problem() says why there is none.
    static ShiftFromPoints solve(const QVector<Point>& points, Kind kind);

    /// The shift that the record states, or nothing.
    static std::optional<Parameters> ofRecord(const IDictionary& record);

    /// What a shift leaves at a point, used or not.
    static Residual residual(const Parameters& shift, const Point& point);

    /// Why there is no result, translated; empty when there is one.
    const QString& problem() const { return reason; }

    Kind kind() const { return solvedKind; }
    const Parameters& parameters() const { return values; }

    /// The standard deviation of a coordinate, in metres, and those of the parameters; NaN where nothing is left over
    /// to tell.
    double unitWeight() const { return weight; }
    const Parameters& deviations() const { return valueDeviations; }
    int redundancy() const { return leftOver; }

    /// Of the parameters for the geocentre, the strongest first; none with three parameters, which are independent.
    const QVector<Correlation>& correlations() const { return strongest; }

    /// For each of the points, whether it is in use and fits the others worse than one in some thousands would by
    /// chance: F test of its three coordinates on the shift of the others (Cook and Weisberg 1982, Residuals and
    /// Influence in Regression, section 2.2). None where fewer than three coordinates would be left over without it.
    const QVector<bool>& outliers() const { return outlying; }

    /// A warning that the parameters can't be told apart, with a recommendation, translated; empty without one.
    const QString& advice() const { return recommendation; }

    /// Puts the parameters, if there are any, into the record as if typed, rounded to 0.1 mm, 1e-7 arc-seconds and 1e-7
    /// ppm: less than 0.1 mm at a point.
    void apply(CoordParamEditor& editor) const;

private:
    Kind solvedKind = Kind::Seven;
    QString reason;
    QString recommendation;
    Parameters values{};
    Parameters valueDeviations{};
    double weight = 0.0;
    int leftOver = 0;
    QVector<Correlation> strongest;
    QVector<bool> outlying;
};

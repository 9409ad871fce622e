#pragma once

#include "panel/computing/KnownPoint.h"

#include <QString>
#include <QVector>

#include <optional>

class CoordParamEditor;
class IDictionary;
class IProjectionModule;
struct ParamField;

/// The false easting, false northing and scale factor, and on request the line, with which a system meets points best
/// whose latitude and longitude (own datum) and grid coordinates are both known: least squares of the grid coordinates,
/// all of equal weight, iterated for the line (Gauss-Newton). Beside it, what remains between the grid and the ground.
class FitToPoints {
public:
    /// Which values are estimated; the others are held. What the method lacks is not.
    struct Choice {
        bool falseEasting = true;
        bool falseNorthing = true;
        bool factor = true;
        bool line = false; ///< of DesignProposal::lineField()
    };

    /// One estimated value, in the unit of its field.
    struct Change {
        const ParamField* field;
        double before;
        double after;
        double deviation; ///< standard deviation, NaN where nothing is left over to tell
    };

    /// The best similarity from the computed to the given points, that is, what the system does not explain.
    struct Remainder {
        double rotation; ///< degrees, counter-clockwise
        double rotationDeviation;
        double scale; ///< ppm
        double scaleDeviation;
    };

    /// More points are not looked at: they would take longer than a user waits for a keystroke.
    static constexpr int mostPoints = 10000;

    /// problem() says why there is no result.
    static FitToPoints solve(const IDictionary& record, IProjectionModule& module, const QVector<KnownPoint>& points,
                             const Choice& choice);

    /// Why nothing is estimated, translated; empty when it is. diagnosis() may say more.
    const QString& problem() const { return reason; }

    const QVector<Change>& changes() const { return changedValues; }

    /// The standard deviation of a grid coordinate, in metres; NaN without redundancy.
    double unitWeight() const { return weight; }

    /// Computed minus given, in metres, by the record's values and by those estimated (as rounded for the record).
    const QVector<GridPoint>& residualsBefore() const { return before; }
    const QVector<GridPoint>& residualsAfter() const { return after; }

    /// The root mean square of the residuals' lengths, in metres; 0 without any.
    static double rms(const QVector<GridPoint>& residuals);

    /// With the estimated values, or the record's where problem() says something. Nothing with fewer than three points,
    /// or all at one place.
    const std::optional<Remainder>& remainder() const { return remaining; }

    /// What the record's system and the points disagree about in sentences, translated: other axes, feet taken for
    /// metres, another central meridian. Empty when nothing of that kind is seen.
    const QString& diagnosis() const { return findings; }

    /// Puts the estimated values into the record as if typed: lengths to 0.1 mm, the factor to 1e-9, the line to
    /// 1e-8 degrees.
    void apply(CoordParamEditor& editor) const;

private:
    QString reason;
    QString findings;
    QVector<Change> changedValues;
    QVector<GridPoint> before;
    QVector<GridPoint> after;
    double weight = 0.0;
    std::optional<Remainder> remaining;
};

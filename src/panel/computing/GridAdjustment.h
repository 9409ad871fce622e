#pragma once

#include "panel/computing/KnownPoint.h"
#include "panel/computing/LeastSquares.h"
#include "panel/record/CoordParamEditor.h"

#include <QVector>

#include <optional>

class IProjectionModule;

/// Values of a record that are estimated so that the system meets known points: least squares of the grid coordinates,
/// all of equal weight, by Gauss-Newton.
class GridAdjustment {
public:
    /// Starts with the values of `record`, whose method is known. `points` outlive it.
    GridAdjustment(const IDictionary& record, IProjectionModule& module, const QVector<KnownPoint>& points);

    /// With the values as they are now.
    const IDictionary& record() const { return editor.record(); }

    /// The points' places through the record, and what those are off in metres, computed minus given. Nothing where
    /// the projection has no result.
    std::optional<QVector<GridPoint>> computed() const;
    std::optional<QVector<GridPoint>> residuals() const;

    /// Gives the fields (false origin, scale factor, a longitude, a parallel) the values that meet the points best, and
    /// tells of the last step. Nothing where there are none: points that don't determine them, or values that the
    /// fields refuse.
    std::optional<LeastSquares> estimate(const QVector<const ParamField*>& fields);

    void round(const ParamField& field, int decimals);

    /// Puts a value into an editor's record as if typed; false where the field refuses it. A longitude is taken to
    /// -180 to 180, and a cone that starts on its parallel goes on doing so.
    [[nodiscard]] static bool put(CoordParamEditor& editor, const ParamField& field, double value);

private:
    std::optional<Eigen::MatrixXd> derivatives(const QVector<const ParamField*>& fields);
    std::optional<QVector<GridPoint>> slopesOf(const ParamField& field, const QVector<GridPoint>& grid);

    CoordParamEditor editor;
    IProjectionModule& module;
    const QVector<KnownPoint>& points;
};

#pragma once

#include "panel/computing/KnownPoint.h"
#include "panel/record/PanelText.h"

#include <QStringList>
#include <QVector>

class IDictionary;
class IProjectionModule;
class PlaneSimilarity;

/// What tells known points from the places that a system computes for them, where it concerns all of them: other axes,
/// feet taken for metres, another central meridian.
class GridDiagnosis {
public:
    /// `computed` are the places through `record`, one for each point. All outlive it.
    GridDiagnosis(const IDictionary& record, IProjectionModule& module, const QVector<GridPoint>& computed,
                  const QVector<KnownPoint>& points);

    /// In sentences, translated; empty when nothing of that kind is seen, or there are fewer than three points.
    QString text() const { return PanelText::joined(sentences); }

private:
    void sayAxes();
    void sayUnit(double scale);
    void sayMeridian(const PlaneSimilarity& fit);
    QVector<KnownPoint> inOrder() const;

    const IDictionary& record;
    IProjectionModule& module;
    const QVector<KnownPoint>& points;
    bool isMirrored = false;
    int quarters = 0;  ///< by which the given points are turned, counter-clockwise
    double unit = 1.0; ///< of the given points, in metres
    QStringList sentences;
};

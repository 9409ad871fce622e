#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"
#include "platform/projection/engine/proj/ProjObject.h"

/// A projection as PROJ computes it.
class OperationOfProj : public PlaneProjection {
public:
    /// `operation` runs from radians to metres on an ellipsoid with the semi-major axis `a` (metres). Where its inverse
    /// is not exact to the micrometre, `refines` adds a step of Newton's method.
    OperationOfProj(ProjObject operation, double a, bool refines);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// By numerical differentiation.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    PJ_COORD refined(const PJ_COORD& place, const GridPoint& point) const;

    ProjObject operation;
    double a;
    bool refines;
};

#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"
#include "platform/projection/engine/proj/ProjObject.h"

/// A projection as PROJ computes it.
class OperationOfProj : public PlaneProjection {
public:
    /// `operation` runs from radians to metres on an ellipsoid with the semi-major axis `a` (metres).
    OperationOfProj(ProjObject operation, double a);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;

    /// PROJ's inverse, where need be with a step of Newton's method behind it: that of cass closes to 5e-6 m.
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// By numerical differentiation.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    PJ_COORD refined(const PJ_COORD& place, const GridPoint& point) const;

    ProjObject operation;
    double a;
};

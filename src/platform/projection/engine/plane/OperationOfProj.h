#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"
#include "platform/projection/engine/proj/ProjObject.h"

/// A projection as PROJ computes it.
class OperationOfProj : public PlaneProjection {
public:
    /// `operation` runs from radians to metres.
    explicit OperationOfProj(ProjObject operation);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// By numerical differentiation.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    ProjObject operation;
};

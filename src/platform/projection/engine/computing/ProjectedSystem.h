#pragma once

#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/engine/proj/ProjObject.h"

/// A projected system over two PROJ operations: the projection, and the shift to WGS 84 where there is one.
class ProjectedSystem : public IProjectedSystem {
public:
    /// `projection` runs from radians to metres on the ellipsoid of the axes `a` and `b` (metres); `shift`, which may
    /// be null, from the own datum to WGS 84 in radians and metres.
    ProjectedSystem(ProjObject projection, ProjObject shift, double a, double b);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;
    bool hasDatumShift() const override;
    std::optional<GeographicPoint> toWgs84(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> fromWgs84(const GeographicPoint& point) const override;
    double meanRadius(double latitude) const override;
    void linearDistortion(const GridPoint* points, std::size_t count, double height, double* ppm) const override;

private:
    double linearDistortionAt(const GridPoint& point, double height) const;

    ProjObject projection;
    ProjObject shift;
    double a;
    double b;
};

#pragma once

#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/engine/computing/ShiftToWgs84.h"
#include "platform/projection/engine/plane/PlaneProjection.h"

#include <memory>

/// A projected system: a projection of its ellipsoid, and the shift to WGS 84 where there is one.
class ProjectedSystem : public IProjectedSystem {
public:
    /// `projection` is one of the ellipsoid of the axes `a` and `b` (metres).
    ProjectedSystem(std::unique_ptr<PlaneProjection> projection, const std::optional<ShiftToWgs84>& shift, double a,
                    double b);

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

    std::unique_ptr<PlaneProjection> projection;
    std::optional<ShiftToWgs84> shift;
    double a;
    double b;
};

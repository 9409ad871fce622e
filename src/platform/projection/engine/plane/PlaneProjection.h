#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <optional>

/// A projection of one ellipsoid onto the plane; see IProjectedSystem for what the functions take and give. A place's
/// longitude may lie anywhere; one that comes back is within -180 to 180.
class PlaneProjection {
public:
    virtual ~PlaneProjection() = default;

    virtual std::optional<GridPoint> toGrid(const GeographicPoint& point) const = 0;
    virtual std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const = 0;
    virtual std::optional<LocalScale> localScale(const GeographicPoint& point) const = 0;
};

#pragma once

#include "platform/projection/engine/plane/ConformalSphere.h"
#include "platform/projection/engine/plane/PlaneProjection.h"

/// The stereographic projection of a sphere onto which the ellipsoid goes conformally. Which sphere makes it
/// - the double stereographic projection (EPSG method 9809): ConformalSphere::fitting();
/// - the stereographic one as Snyder (1987) has it, polar (EPSG methods 9810 and 9829) and oblique:
///   ConformalSphere::ofConformalLatitudes().
///
/// PROJ's own stere and sterea take origins within 0.6 mm of a pole and the equator for these, lose up to metres beside
/// the poles, and close to some micrometres only.
class Stereographic : public PlaneProjection {
public:
    /// Metres and degrees; the projection's centre is that of `sphere`, and `scale` the scale factor there.
    Stereographic(const ConformalSphere& sphere, double longitude, double scale, double falseEasting,
                  double falseNorthing);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// In closed form.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    using Vector = ConformalSphere::Vector;

    double lambda(const GeographicPoint& point) const;

    ConformalSphere sphere;
    double longitude, scale, falseEasting, falseNorthing;
    double diameter;
    Vector centre, north;
};

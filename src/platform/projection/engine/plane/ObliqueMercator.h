#pragma once

#include "platform/projection/engine/plane/ConformalSphere.h"
#include "platform/projection/engine/plane/PlaneProjection.h"

/// The oblique Mercator projection: Hotine's rectified skew orthomorphic, variant B (EPSG method 9815), by its azimuth
/// or by two points of its central line. With the azimuth 0 on a sphere it is the transverse Mercator projection.
///
/// Not by the formulas of EPSG guidance note 7-2, whose arc sine of a number near 1 costs half of the digits where the
/// azimuth at the projection centre is near 90 degrees, but by their geometry, which loses none: the central line is a
/// great circle of the sphere that fits best at the centre (the guidance note's aposphere), which goes onto the plane
/// by Mercator's projection with this circle for its equator.
class ObliqueMercator : public PlaneProjection {
public:
    /// Metres and degrees.
    struct Parameters {
        double a;  ///< semi-major axis
        double e2; ///< the square of the first eccentricity
        double latitudeOfCentre;
        double longitudeOfCentre;
        double azimuth;   ///< of the central line at the centre
        double gridAngle; ///< from grid north to the line
        double scale;     ///< along the central line
        double eastingAtCentre;
        double northingAtCentre;
    };

    explicit ObliqueMercator(const Parameters& parameters);

    /// The parameters with longitude, azimuth and grid angle of the centre, which is where the great circle on the
    /// sphere through two places reaches the centre's latitude. Of the two such places it is the one that the line
    /// passes on its way north from where it crosses the equator within 90 degrees of the middle of the two given ones;
    /// so the azimuth is within -90 to 90 (Snyder 1987, page 72). Nothing when the line does not reach that latitude.
    static std::optional<Parameters> throughPlaces(Parameters parameters, const GeographicPoint& first,
                                                   const GeographicPoint& second);

    /// From the natural origin, where the central line crosses the sphere's equator, to the centre along the line
    /// (the guidance note's u_c), for an azimuth within -90 to 90. Metres.
    static double distanceFromNaturalOrigin(const Parameters& parameters);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// In closed form.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    using Vector = ConformalSphere::Vector;

    /// A vector's parts towards the centre, along the line from there, and to its right.
    struct Turned {
        double towards, along, right;
    };

    Turned turned(const Vector& vector) const;
    double lambda(const GeographicPoint& point) const;

    Parameters given;
    ConformalSphere sphere;
    double radius;
    Vector centre, line, side;
    double sineOfGrid, cosineOfGrid;
};

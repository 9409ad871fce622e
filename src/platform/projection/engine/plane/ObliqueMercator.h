#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"

#include <array>

/// The oblique Mercator projection: Hotine's rectified skew orthomorphic, variant B (EPSG method 9815), by its azimuth
/// or by two points of its central line.
///
/// Not by the formulas of EPSG guidance note 7-2, whose arc sine of a number near 1 costs half of the digits where the
/// azimuth at the projection centre is near 90 degrees, but by their geometry, which loses none: the ellipsoid goes
/// conformally onto the sphere that fits it best at the centre (Gauss 1843; the guidance note's aposphere), where the
/// central line is a great circle, and the sphere onto the plane by Mercator's projection with the great circle for its
/// equator. Both agree to 1e-8 m, bench/limits shows.
class ObliqueMercator : public PlaneProjection {
public:
    /// Metres and degrees.
    struct Parameters {
        double a;  ///< semi-major axis
        double e2; ///< the square of the first eccentricity
        double latitudeOfCentre;
        double longitudeOfCentre;
        double azimuth;   ///< of the central line at the centre; of any turn, and the other direction is the same line
        double gridAngle; ///< from grid north to the line; the azimuth in most systems
        double scale;     ///< along the central line
        double eastingAtCentre;
        double northingAtCentre;
    };

    explicit ObliqueMercator(const Parameters& parameters);

    /// Longitude and azimuth of the centre, where the great circle on the sphere through two places reaches the
    /// centre's latitude, and the azimuth for the grid angle; the other parameters as given. The azimuth lies within
    /// -90 to 90: of the two places with that latitude, the centre is the one that the line passes going north, from
    /// where it crosses the equator within 90 degrees of the middle of the two places. Nothing when the line does not
    /// reach that latitude.
    static std::optional<Parameters> throughPlaces(Parameters parameters, const GeographicPoint& first,
                                                   const GeographicPoint& second);

    /// From the natural origin, where the central line crosses the aposphere's equator, to the centre along the line
    /// (EPSG guidance note 7-2, u_c), for an azimuth within -90 to 90. Metres.
    static double distanceFromNaturalOrigin(const Parameters& parameters);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// In closed form.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    using Vector = std::array<double, 3>;

    /// The sphere that fits the ellipsoid best at a latitude.
    struct Sphere {
        Sphere(const Parameters& parameters);

        /// The unit vector of a place (radians), its longitude counted from the centre's.
        Vector vector(double phi, double lambda) const;

        double e;
        double exponent; ///< spherical longitudes and isometric latitudes per the ellipsoid's, B in the guidance note
        double radius;
        double centre;            ///< the sphere's latitude of the centre
        double isometricCentre;   ///< the ellipsoid's isometric latitude there
        double isometricOnSphere; ///< the sphere's isometric latitude there
    };

    /// A place on the sphere towards the centre, along the line from there, and to its right.
    struct Turned {
        double towards, along, right;
    };

    Turned turned(const Vector& vector) const;
    double lambda(const GeographicPoint& point) const;

    Parameters given;
    Sphere sphere;
    double scaledRadius;
    Vector centre, line, side;
    double sineOfGrid, cosineOfGrid;
};

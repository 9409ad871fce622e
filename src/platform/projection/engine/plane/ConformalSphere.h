#pragma once

#include "platform/projection/engine/plane/Vectors.h"

/// A sphere onto which an ellipsoid goes conformally: its longitudes and isometric latitudes are those of the
/// ellipsoid, counted from a centre, times a constant. Angles in degrees and radians as said, lengths in metres.
class ConformalSphere {
public:
    using Vector = Vectors::Vector;

    /// The sphere that fits best at a latitude (degrees), where the scale differs from 1 by the third power of the
    /// distance only (Gauss 1843): that of the oblique Mercator and the double stereographic projection.
    static ConformalSphere fitting(double a, double e2, double latitude);

    /// The sphere of the conformal latitudes, with the scale 1 at a latitude (degrees): that of the stereographic
    /// projection (Snyder 1987, pages 160 to 162).
    static ConformalSphere ofConformalLatitudes(double a, double e2, double latitude);

    double exponent() const { return constant; }
    double radius() const { return sphereRadius; }

    /// Sine and cosine of the sphere's latitude of the centre, and its tangent.
    double sine() const;
    double cosine() const;
    double tangent() const { return tangentOfCentre; }

    /// The unit vector of a place, from its latitude and its longitude from the centre's (radians): towards the
    /// centre's meridian on the equator, towards the east from there, towards the pole.
    Vector vector(double phi, double lambda) const;

    /// The inverse: latitude and longitude in degrees.
    struct Place {
        double latitude, longitude;
    };
    Place place(const Vector& vector) const;

    /// How much longer a short line is on the sphere.
    double scale(double phi, const Vector& vector) const;

private:
    ConformalSphere(double a, double e2, double latitude, double constant, double tangentOfCentre, double radius);

    double a, e2, e;
    double constant;
    double tangentOfCentre;
    double sphereRadius;
    double isometricCentre;   ///< on the ellipsoid
    double isometricOnSphere; ///< the same on the sphere
};

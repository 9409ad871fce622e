#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"

/// The Lambert conic conformal projection with one standard parallel or two (EPSG methods 9801, 1102 and 9802).
///
/// By formulas that hold for every cone: PROJ's lcc, as EPSG guidance note 7-2, takes the difference of two radii,
/// which grow without bounds as the cone becomes a cylinder (off by 7 mm with a parallel of 0.04 arc-seconds), and the
/// constant of the cone from two differences, which vanish as the parallels come together (off by 7 mm with 20
/// arc-microseconds between them).
class LambertConformal : public PlaneProjection {
public:
    /// Metres and degrees.
    struct Parameters {
        double a;        ///< semi-major axis
        double e2;       ///< the square of the first eccentricity
        double latitude; ///< of the origin; at the pole that lies at infinity, no point has a result
        double longitude;
        double firstParallel;  ///< between the poles
        double secondParallel; ///< the same for one parallel; not the opposite of the first
        double scale;          ///< on the parallels
        double falseEasting;
        double falseNorthing;
    };

    /// The constant n of the cone with these standard parallels (degrees), which may be equal.
    static double coneConstant(double firstParallel, double secondParallel, double e2);

    explicit LambertConformal(const Parameters& parameters);

    std::optional<GridPoint> toGrid(const GeographicPoint& point) const override;

    /// Nothing in the gap that the cone leaves when it is rolled out.
    std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const override;

    /// In closed form.
    std::optional<LocalScale> localScale(const GeographicPoint& point) const override;

private:
    /// n times the radius of a parallel on the plane.
    double circle(double psi) const;
    double isometric(double latitude) const;
    double lambda(const GeographicPoint& point) const;

    Parameters given;
    double e;
    double n; ///< the constant of the cone
    double isometricParallel, isometricOrigin;
    double circleOfParallel, circleOfOrigin; ///< n times the radius
};

#pragma once

#include <cstddef>
#include <optional>

/// A place on or above an ellipsoid. Latitude -90 to 90 and longitude -360 to 360 in decimal degrees, north and east
/// positive, longitude from Greenwich; ellipsoidal height in metres.
struct GeographicPoint {
    double latitude;
    double longitude;
    double height;
};

/// A place on the grid, in metres.
struct GridPoint {
    double easting;
    double northing;
};

/// What the projection does to short lines at one point (Snyder 1987, USGS Professional Paper 1395, pages 20 to 26).
struct LocalScale {
    double meridian; ///< scale factor along the meridian, h
    double parallel; ///< scale factor along the parallel, k
    double mean;     ///< square root of the areal scale: the scale in every direction where the projection is conformal
    double smallest; ///< over all directions, the minor semi-axis of Tissot's indicatrix
    double largest;  ///< over all directions, the major semi-axis
    double convergence; ///< degrees; a true azimuth is the grid bearing plus the convergence

    /// The same scale in every direction.
    static LocalScale conformal(double scale, double convergence) {
        return {scale, scale, scale, scale, scale, convergence};
    }

    /// Whether the scale is the same in every direction. Where Tissot's axes differ by less than 1e-7, the difference
    /// is noise of the numerical differentiation.
    bool isConformal() const { return largest - smallest < 1e-7; }
};

/// One projected system: an ellipsoid, a projection onto a plane and, where the definition has one, a seven-parameter
/// shift to WGS 84. A point that the projection or the shift can't handle gives no result; results are always finite.
class IProjectedSystem {
public:
    virtual ~IProjectedSystem() = default;

    /// From latitude and longitude on the system's own datum; the height plays no part. Exact to better than 1e-6 m
    /// within a method's useful area, at the limits of its parameters, too (the transverse Mercator within 4,000 km
    /// of the central meridian); bench/limits measures it.
    virtual std::optional<GridPoint> toGrid(const GeographicPoint& point) const = 0;

    /// The inverse of toGrid(), with the longitude in -180 to 180 and the height passed through.
    virtual std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const = 0;

    /// Exact to better than 1e-8 (convergence: 1e-6 degrees) more than 0.2 degrees from the poles, mostly to 1e-10.
    virtual std::optional<LocalScale> localScale(const GeographicPoint& point) const = 0;

    /// Whether the definition has a shift to WGS 84. Without one, both datums count as the same.
    virtual bool hasDatumShift() const = 0;

    /// From the own datum to WGS 84, in the position-vector convention (EPSG 9606 between geocentric coordinates, with
    /// the rotations as small angles), and by the exact inverse of that: there and back closes to better than 1e-6 m.
    virtual std::optional<GeographicPoint> toWgs84(const GeographicPoint& point) const = 0;
    virtual std::optional<GeographicPoint> fromWgs84(const GeographicPoint& point) const = 0;

    /// The mean radius of curvature sqrt(M N) of the ellipsoid at a latitude, in metres.
    virtual double meanRadius(double latitude) const = 0;

    /// R / (R + height) with R = meanRadius(latitude): what lengths at an ellipsoidal height (metres) shrink by on
    /// their way to the ellipsoid (NOAA Manual NOS NGS 5, section 4.2).
    double elevationFactor(double latitude, double height) const {
        const double radius = meanRadius(latitude);
        return radius / (radius + height);
    }

    /// Linear distortion in ppm at `count` grid points for lines at the ellipsoidal height `height` (metres):
    /// (scale * elevationFactor() - 1) 1e6. The scale is LocalScale's mean, or, where the projection is not conformal,
    /// that of the direction with the largest distortion. A point without a result gives NaN.
    virtual void linearDistortion(const GridPoint* points, std::size_t count, double height, double* ppm) const = 0;
};

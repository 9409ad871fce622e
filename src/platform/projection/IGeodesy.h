#pragma once

#include <QByteArray>

#include <cstddef>
#include <memory>
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
};

/// The text forms of a definition that other software reads.
enum class WktDialect {
    Wkt1Gdal,  ///< OGC 01-009 as GDAL writes it; holds the shift as TOWGS84
    Wkt1Esri,  ///< a shapefile's .prj; can't hold a shift
    Wkt2_2019, ///< ISO 19162:2019; holds the shift as a BOUNDCRS
};

/// One projected system: an ellipsoid, a projection onto a plane and, where the definition has one, a seven-parameter
/// shift to WGS 84. A point that the projection or the shift can't handle gives no result; results are always finite.
class IProjectedSystem {
public:
    virtual ~IProjectedSystem() = default;

    /// From latitude and longitude on the system's own datum; the height plays no part. Within a method's useful area
    /// PROJ is exact to better than 1e-6 m (transverse Mercator: Poder/Engsager, within 80 degrees of the central
    /// meridian).
    virtual std::optional<GridPoint> toGrid(const GeographicPoint& point) const = 0;

    /// The inverse of toGrid(), with the longitude in -180 to 180 and the height passed through.
    virtual std::optional<GeographicPoint> toGeographic(const GridPoint& point, double height) const = 0;

    /// By numerical differentiation; exact to about 1e-10 (convergence: 1e-8 degrees) more than 0.1 degrees from the
    /// poles.
    virtual std::optional<LocalScale> localScale(const GeographicPoint& point) const = 0;

    /// Whether the definition has a shift to WGS 84. Without one, both datums count as the same.
    virtual bool hasDatumShift() const = 0;

    /// From the own datum to WGS 84, in the position-vector convention (EPSG 9606 between geocentric coordinates). The
    /// rotations are taken as small angles, in both directions: at 1 arc-second there and back closes to 0.2 mm.
    virtual std::optional<GeographicPoint> toWgs84(const GeographicPoint& point) const = 0;
    virtual std::optional<GeographicPoint> fromWgs84(const GeographicPoint& point) const = 0;

    /// The mean radius of curvature sqrt(M N) of the ellipsoid at a latitude, in metres.
    virtual double meanRadius(double latitude) const = 0;

    /// Linear distortion in ppm at `count` grid points for lines at the ellipsoidal height `height` (metres):
    /// (scale * R / (R + height) - 1) 1e6 with R = meanRadius() (NOAA Manual NOS NGS 5, section 4.2). The scale is
    /// LocalScale's mean, or, where the projection is not conformal, that of the direction with the largest distortion.
    /// A point without a result gives NaN.
    virtual void linearDistortion(const GridPoint* points, std::size_t count, double height, double* ppm) const = 0;
};

/// The geodesy that PROJ offers, for definitions in PROJ's text form. Texts are UTF-8.
class IGeodesy {
public:
    virtual ~IGeodesy() = default;

    /// The system of a definition "+proj=... +a=... ..." with lengths in metres and longitudes from Greenwich; null
    /// when PROJ can't make a projection of it. An item +towgs84 (3 or 7 values) is the shift.
    virtual std::unique_ptr<IProjectedSystem> createSystem(const QByteArray& definition) = 0;

    /// The definition as WKT, the system and its ellipsoid named as given; numbers with 15 digits. On one line, as
    /// files hold it, or `indented` on many for reading. Empty when the dialect can't express the definition.
    virtual QByteArray exportWkt(const QByteArray& definition, const QByteArray& name, const QByteArray& ellipsoidName,
                                 WktDialect dialect, bool indented) = 0;
};

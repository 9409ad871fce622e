#pragma once

/// The keys of one coordinate system's parameter record (an IDictionary). Lengths are in metres, angles in decimal
/// degrees.
namespace CoordParamKey {

constexpr const char* name = "name";
constexpr const char* ellipsoidName = "ellipsoid_name";
constexpr const char* ellipsoidA = "ellipsoid_a";   ///< semi-major axis
constexpr const char* ellipsoidF = "ellipsoid_f";   ///< inverse flattening a / (a - b); 0 for a sphere
constexpr const char* projectType = "project_type"; ///< a ProjectionMethod
constexpr const char* orgLon = "org_lon";           ///< longitude of the projection origin (central meridian)
constexpr const char* orgLat = "org_lat";           ///< latitude of the projection origin
constexpr const char* falseNorth = "false_north";
constexpr const char* falseEast = "false_east";
constexpr const char* factor = "factor";                ///< scale factor
constexpr const char* cuttingRadius = "cutting_radius"; ///< a cos(phi) of the standard parallel phi
constexpr const char* parallel1Lat = "parallel_1_lat";
constexpr const char* parallel2Lat = "parallel_2_lat";
constexpr const char* azimuth = "p_r"; ///< azimuth of the central line of an oblique projection
constexpr const char* lon1 = "lon1";   ///< the two points of a projection given by two points
constexpr const char* lat1 = "lat1";
constexpr const char* lon2 = "lon2";
constexpr const char* lat2 = "lat2";
constexpr const char* shiftType = "_7type"; ///< 0 no datum shift, 2 seven parameters
constexpr const char* shiftDx = "_7dx";     ///< translations
constexpr const char* shiftDy = "_7dy";
constexpr const char* shiftDz = "_7dz";
constexpr const char* shiftRx = "_7rx"; ///< rotations in degrees, position-vector convention
constexpr const char* shiftRy = "_7ry";
constexpr const char* shiftRz = "_7rz";
constexpr const char* shiftPpm = "_7ppm";       ///< scale difference in parts per million
constexpr const char* geoidName = "geoid_name"; ///< geoid model of the system's heights

// What the parameter panel notes about a system, in words. Nothing is computed from them, and an import writes none.
constexpr const char* datumName = "datum_name"; ///< as the EPSG registry names it, or any other name
constexpr const char* source = "source";        ///< where the figures are from: "EPSG:25832, EPSG v10.076, 2022-11-25"
constexpr const char* remark = "remark";        ///< anything worth knowing
constexpr const char* pastedText = "pasted_text"; ///< the text that the definition was read from, as it was pasted

} // namespace CoordParamKey

/// The values of "project_type". There is no 5.
enum class ProjectionMethod {
    TransverseMercator = 0,       ///< with the scale factor 1 (Gauss-Kruger); with factor 0 no projection is defined
    TransverseMercatorScaled = 1, ///< with any other scale factor (UTM)
    Mercator = 2,
    MercatorStandardParallel = 3, ///< with a standard parallel
    ObliqueMercatorAzimuth = 4,
    Stereographic = 6,
    ObliqueStereographic = 7, ///< double stereographic
    LambertOneParallel = 8,
    LambertTwoParallels = 9,
    ObliqueMercatorTwoPoints = 10,
    CassiniSoldner = 11,
};

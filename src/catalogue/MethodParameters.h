#pragma once

#include "catalogue/CoordParamKey.h"

#include <array>
#include <cstddef>

/// One parameter of a projection method, under its key in a PROJ definition and in the parameter record.
struct MethodParameter {
    enum class Kind {
        Latitude,         ///< -90 to 90 degrees
        Longitude,        ///< degrees
        Azimuth,          ///< degrees
        Length,           ///< metres
        StandardParallel, ///< degrees, between the poles; the record keeps the radius of the parallel
                          ///< (ParallelRadius.h)
        PolarParallel,    ///< the same, and it gives the scale where the origin is a pole; 90 or the radius 0 is none
        PolarScale,       ///< the scale where no PolarParallel gives it; beside one it is 1, or 0 for none
        Scale,            ///< above 0
        ScaleOnParallels, ///< on top of two standard parallels, which give the scale; above 0, or 0 for none
    };

    const char* projKey;
    const char* recordKey;
    Kind kind;
};

/// The parameters of the methods. Some have the keys of another and differ in what they are called or may be.
namespace Parameter {

using Kind = MethodParameter::Kind;

inline constexpr MethodParameter latitudeOfOrigin{"lat_0", CoordParamKey::orgLat, Kind::Latitude};
inline constexpr MethodParameter latitudeOfCentre{"lat_0", CoordParamKey::orgLat, Kind::Latitude};
inline constexpr MethodParameter centralMeridian{"lon_0", CoordParamKey::orgLon, Kind::Longitude};
inline constexpr MethodParameter longitudeOfOrigin{"lon_0", CoordParamKey::orgLon, Kind::Longitude};
inline constexpr MethodParameter longitudeOfCentre{"lonc", CoordParamKey::orgLon, Kind::Longitude};
inline constexpr MethodParameter azimuthOfLine{"alpha", CoordParamKey::azimuth, Kind::Azimuth};
inline constexpr MethodParameter firstLatitude{"lat_1", CoordParamKey::lat1, Kind::Latitude};
inline constexpr MethodParameter firstLongitude{"lon_1", CoordParamKey::lon1, Kind::Longitude};
inline constexpr MethodParameter secondLatitude{"lat_2", CoordParamKey::lat2, Kind::Latitude};
inline constexpr MethodParameter secondLongitude{"lon_2", CoordParamKey::lon2, Kind::Longitude};
inline constexpr MethodParameter onlyParallel{"lat_1", CoordParamKey::parallel1Lat, Kind::Latitude};
inline constexpr MethodParameter firstParallel{"lat_1", CoordParamKey::parallel1Lat, Kind::Latitude};
inline constexpr MethodParameter secondParallel{"lat_2", CoordParamKey::parallel2Lat, Kind::Latitude};
inline constexpr MethodParameter standardParallel{"lat_ts", CoordParamKey::cuttingRadius, Kind::StandardParallel};
inline constexpr MethodParameter polarParallel{"lat_ts", CoordParamKey::cuttingRadius, Kind::PolarParallel};
inline constexpr MethodParameter polarScale{"k_0", CoordParamKey::factor, Kind::PolarScale};
inline constexpr MethodParameter scaleFactor{"k_0", CoordParamKey::factor, Kind::Scale};
inline constexpr MethodParameter scaleOnParallels{"k_0", CoordParamKey::factor, Kind::ScaleOnParallels};
inline constexpr MethodParameter falseEasting{"x_0", CoordParamKey::falseEast, Kind::Length};
inline constexpr MethodParameter falseNorthing{"y_0", CoordParamKey::falseNorth, Kind::Length};
inline constexpr MethodParameter eastingAtCentre{"x_0", CoordParamKey::falseEast, Kind::Length};
inline constexpr MethodParameter northingAtCentre{"y_0", CoordParamKey::falseNorth, Kind::Length};

} // namespace Parameter

/// What a projection method consists of: its name and its parameters in PROJ, which are keys of the parameter record.
/// Sources: the PROJ manual's pages on tmerc, merc, omerc, stere, sterea, lcc and cass.
struct MethodParameters {
    template <typename... Parameters>
    constexpr MethodParameters(ProjectionMethod method, const char* projName, const Parameters&... parameters)
        : method(method), projName(projName), parameters{&parameters...}, count(sizeof...(parameters)) {}

    ProjectionMethod method;
    const char* projName;

    const MethodParameter* const* begin() const { return parameters.data(); }
    const MethodParameter* const* end() const { return parameters.data() + count; }

    /// The method of that code, or null for a code that is none.
    static inline const MethodParameters* find(int code);

private:
    std::array<const MethodParameter*, 8> parameters;
    std::size_t count;
};

/// All methods, by code.
inline constexpr MethodParameters methodParameters[] = {
    // With the scale factor 1 only; the next has any other.
    {ProjectionMethod::TransverseMercator, "tmerc", Parameter::latitudeOfOrigin, Parameter::centralMeridian,
     Parameter::scaleFactor, Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::TransverseMercatorScaled, "tmerc", Parameter::latitudeOfOrigin, Parameter::centralMeridian,
     Parameter::scaleFactor, Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::Mercator, "merc", Parameter::centralMeridian, Parameter::scaleFactor, Parameter::falseEasting,
     Parameter::falseNorthing},
    {ProjectionMethod::MercatorStandardParallel, "merc", Parameter::centralMeridian, Parameter::standardParallel,
     Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::ObliqueMercatorAzimuth, "omerc", Parameter::latitudeOfCentre, Parameter::longitudeOfCentre,
     Parameter::azimuthOfLine, Parameter::scaleFactor, Parameter::eastingAtCentre, Parameter::northingAtCentre},
    {ProjectionMethod::Stereographic, "stere", Parameter::latitudeOfOrigin, Parameter::longitudeOfOrigin,
     Parameter::polarParallel, Parameter::polarScale, Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::ObliqueStereographic, "sterea", Parameter::latitudeOfOrigin, Parameter::longitudeOfOrigin,
     Parameter::scaleFactor, Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::LambertOneParallel, "lcc", Parameter::onlyParallel, Parameter::latitudeOfOrigin,
     Parameter::centralMeridian, Parameter::scaleFactor, Parameter::falseEasting, Parameter::falseNorthing},
    {ProjectionMethod::LambertTwoParallels, "lcc", Parameter::firstParallel, Parameter::secondParallel,
     Parameter::latitudeOfOrigin, Parameter::centralMeridian, Parameter::scaleOnParallels, Parameter::falseEasting,
     Parameter::falseNorthing},
    {ProjectionMethod::ObliqueMercatorTwoPoints, "omerc", Parameter::latitudeOfCentre, Parameter::firstLatitude,
     Parameter::firstLongitude, Parameter::secondLatitude, Parameter::secondLongitude, Parameter::scaleFactor,
     Parameter::eastingAtCentre, Parameter::northingAtCentre},
    {ProjectionMethod::CassiniSoldner, "cass", Parameter::latitudeOfOrigin, Parameter::centralMeridian,
     Parameter::falseEasting, Parameter::falseNorthing},
};

const MethodParameters* MethodParameters::find(int code) {
    for (const MethodParameters& method : methodParameters) {
        if (int(method.method) == code)
            return &method;
    }
    return nullptr;
}

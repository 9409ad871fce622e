#include "platform/projection/engine/wkt/WktMethods.h"

#include "catalogue/Angle.h"
#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/plane/LambertConformal.h"
#include "platform/projection/engine/wkt/PlainName.h"

#include <cmath>

namespace {

using Meaning = WktMeaning;
using Presence = WktMethod::Presence;
using Use = WktMethod::Use;

struct ParameterName {
    Meaning meaning;
    int code;
    QVector<QByteArray> names;
};

/// Sources: GDAL's ogr_srs_api.h, the parameters of ESRI's registry and of EPSG's methods in PROJ's database, and what
/// PROJ writes for the systems of both.
const QVector<ParameterName>& parameterNames() {
    static const QVector<ParameterName> table = {
        {Meaning::LatitudeOfOrigin, 8801, {"latitudeoforigin", "latitudeofnaturalorigin"}},
        {Meaning::LatitudeOfOrigin, 8811, {"latitudeofcenter", "latitudeofprojectioncentre"}},
        {Meaning::LatitudeOfFalseOrigin, 8821, {"latitudeoffalseorigin"}},
        {Meaning::LongitudeOfOrigin, 8802, {"centralmeridian", "longitudeofnaturalorigin"}},
        {Meaning::LongitudeOfOrigin, 8812, {"longitudeofcenter", "longitudeofprojectioncentre"}},
        {Meaning::LongitudeOfOrigin, 8822, {"longitudeoffalseorigin"}},
        {Meaning::LongitudeOfOrigin, 8833, {"longitudeoforigin"}},
        {Meaning::Scale, 8805, {"scalefactor", "scalefactoratnaturalorigin"}},
        {Meaning::Scale, 8815, {"scalefactoroninitialline", "scalefactoratprojectioncentre"}},
        {Meaning::Scale, 1038, {"ellipsoidscalingfactor"}},
        {Meaning::FalseEasting, 8806, {"falseeasting"}},
        {Meaning::FalseEasting, 8816, {"eastingatprojectioncentre"}},
        {Meaning::FalseEasting, 8826, {"eastingatfalseorigin"}},
        {Meaning::FalseNorthing, 8807, {"falsenorthing"}},
        {Meaning::FalseNorthing, 8817, {"northingatprojectioncentre"}},
        {Meaning::FalseNorthing, 8827, {"northingatfalseorigin"}},
        {Meaning::FirstParallel, 8823, {"standardparallel1", "latitudeof1ststandardparallel"}},
        {Meaning::SecondParallel, 8824, {"standardparallel2", "latitudeof2ndstandardparallel"}},
        {Meaning::PolarParallel, 8832, {"latitudeofstandardparallel"}},
        {Meaning::Azimuth, 8813, {"azimuth", "azimuthofinitialline", "azimuthatprojectioncentre"}},
        {Meaning::GridAngle, 8814, {"rectifiedgridangle", "anglefromrectifiedtoskewgrid", "xyplanerotation"}},
        {Meaning::FirstLatitude, 0, {"latitudeofpoint1", "latitudeof1stpoint"}},
        {Meaning::FirstLongitude, 0, {"longitudeofpoint1", "longitudeof1stpoint"}},
        {Meaning::SecondLatitude, 0, {"latitudeofpoint2", "latitudeof2ndpoint"}},
        {Meaning::SecondLongitude, 0, {"longitudeofpoint2", "longitudeof2ndpoint"}},
        {Meaning::SemiMajorAxis, 0, {"semimajor", "semimajoraxis"}},
        {Meaning::SemiMinorAxis, 0, {"semiminor", "semiminoraxis"}},
        {Meaning::SphereType, 0, {"auxiliaryspheretype"}},
    };
    return table;
}

using Reason = Withheld::Reason;

Withheld unless(bool holds, Reason reason, const QByteArray& detail = {}) {
    return holds ? Withheld() : Withheld{reason, detail};
}

QByteArray pair(double first, double second) {
    return projNumber(first) + ", " + projNumber(second);
}

/// One standard parallel: the latitude of origin, whether it is stated again or not.
Withheld settleParallelAtOrigin(WktItems& items, const Ellipsoid&) {
    const double origin = items.value("lat_0");
    const double parallel = items.value("lat_1", origin);
    items.insert("lat_1", origin);
    return unless(parallel == origin, Reason::OriginOffParallel, pair(parallel, origin));
}

/// The Belgian grid's angles from the meridian are smaller by a constant, 29.2985 arc-seconds, which is a turn around
/// the apex of the cone: another meridian (EPSG guidance note 7-2, method 9803).
Withheld settleBelgianMeridian(WktItems& items, const Ellipsoid& ellipsoid) {
    constexpr double turn = 29.2985 / 3600;
    items["lon_0"] += turn / LambertConformal::coneConstant(items.value("lat_1"), items.value("lat_2"), ellipsoid.e2());
    return {};
}

bool isPole(const WktItems& items) {
    return std::abs(items.value("lat_0")) == 90 && items.contains("k_0");
}

Withheld settlePole(WktItems& items, const Ellipsoid&) {
    return unless(isPole(items), Reason::NoPole);
}

/// Without a latitude of origin: the pole on the side of the standard parallel.
Withheld settlePolarParallel(WktItems& items, const Ellipsoid&) {
    items.insert("lat_0", std::copysign(90, items.value("lat_ts")));
    return unless(items.value("lat_ts") != 0 && items.value("k_0", 1) == 1, Reason::NoPole);
}

/// The same with the false origin on the standard parallel, on the meridian of origin: its distance from the pole is
/// the radius of the parallel, where the scale is 1 (EPSG guidance note 7-2, method 9830).
Withheld settlePolarOrigin(WktItems& items, const Ellipsoid& ellipsoid) {
    const double phi = Angle::toRadians(items.value("lat_ts"));
    const double radius = ellipsoid.a * std::cos(phi) / std::sqrt(1 - ellipsoid.e2() * std::pow(std::sin(phi), 2));
    items["y_0"] += std::copysign(radius, phi);
    return settlePolarParallel(items, ellipsoid);
}

Withheld settleNorthPole(WktItems& items, const Ellipsoid& ellipsoid) {
    return items.value("lat_ts") > 0 ? settlePolarParallel(items, ellipsoid) : Withheld{Reason::NoPole, {}};
}

Withheld settleSouthPole(WktItems& items, const Ellipsoid& ellipsoid) {
    return items.value("lat_ts") < 0 ? settlePolarParallel(items, ellipsoid) : Withheld{Reason::NoPole, {}};
}

/// A latitude of origin that is no pole is the standard parallel.
Withheld settlePoleOrParallel(WktItems& items, const Ellipsoid& ellipsoid) {
    if (isPole(items))
        return {};
    const double latitude = items.value("lat_0");
    items.insert("lat_ts", latitude);
    return std::abs(latitude) < 90 ? settlePolarParallel(items, ellipsoid) : Withheld{Reason::NoPole, {}};
}

/// PROJ's omerc, and with it the record, turns the grid by the azimuth.
Withheld settleGridAngle(WktItems& items, const Ellipsoid&) {
    const double azimuth = items.value("alpha");
    const double angle = items.contains("gamma") ? items.take("gamma") : azimuth;
    return unless(angle == azimuth, Reason::GridAngle, pair(angle, azimuth));
}

/// GDAL wrote the Swiss grid, whose false origin is the centre, under the name of the variant with its false origin at
/// the natural one.
Withheld settleSwissGrid(WktItems& items, const Ellipsoid& ellipsoid) {
    const Withheld withheld = settleGridAngle(items, ellipsoid);
    const bool isSwiss = withheld.reason != Reason::None || items.value("alpha") == 90;
    return isSwiss ? withheld : Withheld{Reason::OriginFarAway, {}};
}

/// With the azimuth 90 the natural origin is a quarter of the globe away: nobody means it.
Withheld settleNaturalOrigin(WktItems& items, const Ellipsoid& ellipsoid) {
    const Withheld withheld = settleGridAngle(items, ellipsoid);
    const bool isFarAway = withheld.reason == Reason::None && items.value("alpha") == 90;
    return isFarAway ? Withheld{Reason::OriginFarAway, {}} : withheld;
}

const QVector<WktMethod>& methods() {
    static const auto may = [](Use use) { return Use{use.meaning, use.item, Presence::May}; };
    static const auto esri = [](Use use) { return Use{use.meaning, use.item, Presence::Esri}; };
    static const auto neutral = [](Use use) { return Use{use.meaning, use.item, Presence::Neutral}; };
    static constexpr Use lat0{Meaning::LatitudeOfOrigin, "lat_0", Presence::Required};
    static constexpr Use lon0{Meaning::LongitudeOfOrigin, "lon_0", Presence::Required};
    static constexpr Use lonc{Meaning::LongitudeOfOrigin, "lonc", Presence::Required};
    static constexpr Use k0{Meaning::Scale, "k_0", Presence::Required};
    static constexpr Use x0{Meaning::FalseEasting, "x_0", Presence::Required};
    static constexpr Use y0{Meaning::FalseNorthing, "y_0", Presence::Required};
    static constexpr Use lat1{Meaning::FirstParallel, "lat_1", Presence::Required};
    static constexpr Use lat2{Meaning::SecondParallel, "lat_2", Presence::Required};
    static constexpr Use latTs{Meaning::FirstParallel, "lat_ts", Presence::Required};
    static constexpr Use polar{Meaning::PolarParallel, "lat_ts", Presence::Required};
    static constexpr Use alpha{Meaning::Azimuth, "alpha", Presence::Required};
    static constexpr Use gamma{Meaning::GridAngle, "gamma", Presence::Required};
    static constexpr Use sphere{Meaning::SphereType, "", Presence::Neutral};
    static const QVector<Use> points = {{Meaning::FirstLatitude, "lat_1", Presence::Required},
                                        {Meaning::FirstLongitude, "lon_1", Presence::Required},
                                        {Meaning::SecondLatitude, "lat_2", Presence::Required},
                                        {Meaning::SecondLongitude, "lon_2", Presence::Required}};

    // clang-format off
    static const QVector<WktMethod> table = {
        {{"transversemercator", "transversemercatorcomplex", "gausskruger"}, 9807, "tmerc",
         {lat0, lon0, k0, x0, y0}, nullptr, false},
        {{"transversemercator3d"}, 1111, "tmerc",
         {lat0, lon0, k0, x0, y0}, nullptr, false},
        {{"gaussboaga"}, 0, "tmerc",
         {lat0, lon0, k0, x0, y0}, nullptr, true},
        {{"mercator1sp", "mercatorvarianta"}, 9804, "merc",
         {neutral(lat0), lon0, k0, x0, y0}, nullptr, false},
        {{"mercator1spspherical"}, 9841, "merc",
         {neutral(lat0), lon0, k0, x0, y0}, nullptr, false},
        {{"mercator2sp", "mercator", "mercatorvariantb"}, 9805, "merc",
         {neutral(lat0), lon0, latTs, neutral(k0), x0, y0}, nullptr, false},
        {{"mercatorauxiliarysphere", "popularvisualisationpseudomercator"}, 1024, "merc",
         {neutral(lat0), lon0, neutral(latTs), x0, y0, sphere}, nullptr, false},
        {{"lambertconformalconic1sp", "lambertconicconformal1sp"}, 9801, "lcc",
         {lat0, lon0, may(lat1), k0, x0, y0}, settleParallelAtOrigin, false},
        {{"lambertconicconformal1spvariantb"}, 1102, "lcc",
         {{Meaning::LatitudeOfFalseOrigin, "lat_0", Presence::Required}, lon0,
          {Meaning::LatitudeOfOrigin, "lat_1", Presence::Required}, k0, x0, y0}, nullptr, true},
        {{"lambertconformalconic2sp", "lambertconicconformal2sp"}, 9802, "lcc",
         {lat0, lon0, lat1, lat2, neutral(k0), x0, y0}, nullptr, false},
        {{"lambertconicconformal2spmichigan"}, 1051, "lcc",
         {lat0, lon0, lat1, lat2, k0, x0, y0}, nullptr, false},
        {{"lambertconformalconic2spbelgium", "lambertconicconformal2spbelgium"}, 9803, "lcc",
         {lat0, lon0, lat1, lat2, x0, y0}, settleBelgianMeridian, true},
        {{"lambertconformalconic"}, 0, "lcc",
         {lat0, lon0, lat1, lat2, may(k0), x0, y0}, nullptr, false},
        {{"lambertconformalconic"}, 0, "lcc",
         {lat0, lon0, lat1, k0, x0, y0}, settleParallelAtOrigin, false},
        {{"lambertconformalconic"}, 0, "lcc",
         {lat0, lon0, lat1, k0, x0, y0}, nullptr, true},
        {{"obliquestereographic", "doublestereographic"}, 9809, "sterea",
         {lat0, lon0, k0, x0, y0}, nullptr, false},
        {{"stereographic"}, 0, "stere",
         {lat0, lon0, k0, x0, y0}, nullptr, false},
        {{"polarstereographic"}, 0, "stere",
         {lat0, lon0, may(k0), x0, y0}, settlePoleOrParallel, false},
        {{"polarstereographicvarianta"}, 9810, "stere",
         {lat0, lon0, k0, x0, y0}, settlePole, false},
        {{"polarstereographicvariantb"}, 9829, "stere",
         {polar, lon0, x0, y0}, settlePolarParallel, false},
        {{"polarstereographicvariantc"}, 9830, "stere",
         {polar, lon0, x0, y0}, settlePolarOrigin, true},
        {{"stereographicnorthpole"}, 0, "stere",
         {latTs, lon0, neutral(k0), x0, y0}, settleNorthPole, false},
        {{"stereographicsouthpole"}, 0, "stere",
         {latTs, lon0, neutral(k0), x0, y0}, settleSouthPole, false},
        {{"hotineobliquemercator"}, 0, "omerc",
         {lat0, lonc, alpha, gamma, k0, x0, y0}, settleSwissGrid, false},
        {{"hotineobliquemercator", "hotineobliquemercatorvarianta", "rectifiedskeworthomorphicnaturalorigin"}, 9812,
         "omerc +no_uoff", {lat0, lonc, alpha, gamma, k0, x0, y0}, settleNaturalOrigin, false},
        {{"hotineobliquemercatorazimuthnaturalorigin"}, 0, "omerc +no_uoff",
         {lat0, lonc, alpha, esri(gamma), k0, x0, y0}, settleNaturalOrigin, false},
        {{"hotineobliquemercatorvariantb", "rectifiedskeworthomorphiccenter"}, 9815, "omerc",
         {lat0, lonc, alpha, gamma, k0, x0, y0}, settleGridAngle, false},
        {{"hotineobliquemercatorazimuthcenter"}, 0, "omerc",
         {lat0, lonc, alpha, esri(gamma), k0, x0, y0}, settleGridAngle, false},
        {{"hotineobliquemercatortwopointnaturalorigin"}, 0, "omerc",
         QVector<Use>{lat0, k0, x0, y0} + points, nullptr, false},
        {{"swissobliquecylindrical", "swissobliquemercator"}, 0, "somerc",
         {lat0, lon0, may(k0), x0, y0}, nullptr, true},
        {{"cassinisoldner", "cassini"}, 9806, "cass",
         {lat0, lon0, neutral(k0), x0, y0}, nullptr, false},
    };
    // clang-format on
    return table;
}

} // namespace

std::optional<WktMeaning> WktMethods::meaningOf(const QByteArray& name, int code) {
    const ParameterName* byName = nullptr;
    const ParameterName* byCode = nullptr;
    for (const ParameterName& entry : parameterNames()) {
        if (entry.names.contains(name))
            byName = &entry;
        if (code != 0 && entry.code == code)
            byCode = &entry;
    }
    const bool isContradiction = byName && code != 0 && (!byCode || byCode->meaning != byName->meaning);
    if (isContradiction || (!byName && !byCode))
        return std::nullopt;
    return (byName ? byName : byCode)->meaning;
}

const char* WktMethods::nameOf(WktMeaning meaning) {
    switch (meaning) {
    case Meaning::LatitudeOfOrigin:
        return "Latitude of natural origin";
    case Meaning::LatitudeOfFalseOrigin:
        return "Latitude of false origin";
    case Meaning::LongitudeOfOrigin:
        return "Longitude of natural origin";
    case Meaning::Scale:
        return "Scale factor at natural origin";
    case Meaning::FalseEasting:
        return "False easting";
    case Meaning::FalseNorthing:
        return "False northing";
    case Meaning::FirstParallel:
        return "Latitude of 1st standard parallel";
    case Meaning::SecondParallel:
        return "Latitude of 2nd standard parallel";
    case Meaning::PolarParallel:
        return "Latitude of standard parallel";
    case Meaning::Azimuth:
        return "Azimuth at projection centre";
    case Meaning::GridAngle:
        return "Angle from Rectified to Skew Grid";
    case Meaning::FirstLatitude:
        return "Latitude of 1st point";
    case Meaning::FirstLongitude:
        return "Longitude of 1st point";
    case Meaning::SecondLatitude:
        return "Latitude of 2nd point";
    case Meaning::SecondLongitude:
        return "Longitude of 2nd point";
    case Meaning::SemiMajorAxis:
        return "Semi-major axis";
    case Meaning::SemiMinorAxis:
        return "Semi-minor axis";
    case Meaning::SphereType:
        break;
    }
    return "Auxiliary sphere type";
}

QVector<const WktMethod*> WktMethods::find(const QByteArray& name, int code) {
    QVector<const WktMethod*> both;
    QVector<const WktMethod*> byCode;
    bool isNameKnown = false;
    for (const WktMethod& method : methods()) {
        const bool isName = method.names.contains(name);
        const bool isCode = code != 0 && method.code == code;
        isNameKnown = isNameKnown || isName;
        if (isName && (code == 0 || isCode))
            both.append(&method);
        else if (isCode)
            byCode.append(&method);
    }
    return isNameKnown ? both : byCode;
}

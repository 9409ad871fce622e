#include "import/ProjDefineToCoordParam.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/Sdk.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double pi = 3.141592653589793;

struct Projection {
    QString name;
    double falseEasting = 0;
    double falseNorthing = 0;
    double centralLongitude = 0;
    double originLatitude = 0;
    double scaleFactor = 0;
    double azimuth = 0;
    double firstLatitude = 0;
    double secondLatitude = 0;
    double firstLongitude = 0;
    double secondLongitude = 0;
    double centreLongitude = 0;
    double cuttingRadius = 0;
    ProjectionMethod method = ProjectionMethod::TransverseMercator;
};

/// The items whose value is taken as it stands.
double* plainNumber(Projection& projection, const QString& key) {
    if (key == QLatin1String("x_0"))
        return &projection.falseEasting;
    if (key == QLatin1String("y_0"))
        return &projection.falseNorthing;
    if (key == QLatin1String("lon_0"))
        return &projection.centralLongitude;
    if (key == QLatin1String("k_0") || key == QLatin1String("k"))
        return &projection.scaleFactor;
    if (key == QLatin1String("alpha"))
        return &projection.azimuth;
    if (key == QLatin1String("lat_1"))
        return &projection.firstLatitude;
    if (key == QLatin1String("lat_2"))
        return &projection.secondLatitude;
    if (key == QLatin1String("lon_1"))
        return &projection.firstLongitude;
    if (key == QLatin1String("lon_2"))
        return &projection.secondLongitude;
    if (key == QLatin1String("lonc"))
        return &projection.centreLongitude;
    return nullptr;
}

void readItem(Projection& projection, const QString& key, const QString& value, double semiMajorAxis) {
    if (double* const number = plainNumber(projection, key))
        *number = value.toDouble();
    else if (key == QLatin1String("proj"))
        projection.name = value;
    else if (key == QLatin1String("lat_0")) {
        double latitude = value.toDouble();
        projection.originLatitude = Radian2Angle(&latitude);
    } else if (key == QLatin1String("lat_ts"))
        projection.cuttingRadius = semiMajorAxis * std::cos(value.toDouble() * pi / 180);
}

/// Settles what depends on the projection's name and on which items the definition has.
void applyMethod(Projection& projection, const QString& text, double semiMajorAxis) {
    const auto has = [&text](const char* item) { return text.contains(QLatin1String(item)); };
    const QString& name = projection.name;
    if (name == QLatin1String("tmerc") || name == QLatin1String("utm")) {
        if (!(projection.scaleFactor == 1.0))
            projection.method = ProjectionMethod::TransverseMercatorScaled;
    } else if (name == QLatin1String("merc")) {
        if (has("lat_ts") && std::abs(projection.cuttingRadius - semiMajorAxis) > 1e-7) {
            projection.method = ProjectionMethod::MercatorStandardParallel;
        } else {
            projection.method = ProjectionMethod::Mercator;
            projection.cuttingRadius = semiMajorAxis;
        }
    } else if (name == QLatin1String("omerc")) {
        projection.method =
            has("alpha") ? ProjectionMethod::ObliqueMercatorAzimuth : ProjectionMethod::ObliqueMercatorTwoPoints;
        projection.centralLongitude = projection.centreLongitude;
    } else if (name == QLatin1String("stere")) {
        projection.method = ProjectionMethod::Stereographic;
    } else if (name == QLatin1String("sterea")) {
        projection.method = ProjectionMethod::ObliqueStereographic;
    } else if (name == QLatin1String("lcc")) {
        projection.method = has("lat_2") ? ProjectionMethod::LambertTwoParallels : ProjectionMethod::LambertOneParallel;
    } else if (name == QLatin1String("cass")) {
        projection.method = ProjectionMethod::CassiniSoldner;
    }
}

Projection parse(const char* definition, double semiMajorAxis) {
    const QString text = QString::fromUtf8(definition).simplified().remove(QLatin1Char(' '));
    Projection projection;
    for (const QString& item : text.split(QLatin1Char('+'))) {
        const QStringList pieces = item.split(QLatin1Char('='));
        if (pieces.size() == 2)
            readItem(projection, pieces[0], pieces[1], semiMajorAxis);
    }
    applyMethod(projection, text, semiMajorAxis);
    return projection;
}

/// a / (a - b). A sphere's would be a division by zero; 0 stands for it, as in WKT. A double's last place in the axes
/// is 1e-9 m, which moves the result by 1e-11: what lies beyond its tenth decimal is rounding error, and without it WGS
/// 84's comes back as 298.257223563.
double inverseFlattening(const ProjEllipsoid& ellipsoid) {
    if (ellipsoid.a == ellipsoid.b)
        return 0;
    const double exact = ellipsoid.a / (ellipsoid.a - ellipsoid.b);
    return exact < 1e5 ? std::round(exact * 1e10) / 1e10 : exact;
}

void writeEllipsoid(IDictionary* record, const ProjEllipsoid& ellipsoid) {
    const char* const id = ellipsoid.id ? ellipsoid.id : "unknown";
    dic_set_value(record, CoordParamKey::ellipsoidName, "%s", ellipsoid.name ? ellipsoid.name : id);
    dic_set_value(record, CoordParamKey::ellipsoidA, "%f", ellipsoid.a);
    dic_set_value(record, CoordParamKey::ellipsoidF, "%f", inverseFlattening(ellipsoid));
}

void writeProjection(IDictionary* record, const Projection& projection) {
    dic_set_value(record, CoordParamKey::projectType, "%d", static_cast<int>(projection.method));
    dic_set_value(record, CoordParamKey::orgLon, "%f", projection.centralLongitude);
    dic_set_value(record, CoordParamKey::orgLat, "%f", projection.originLatitude);
    dic_set_value(record, CoordParamKey::falseNorth, "%f", projection.falseNorthing);
    dic_set_value(record, CoordParamKey::falseEast, "%f", projection.falseEasting);
    dic_set_value(record, CoordParamKey::factor, "%f", projection.scaleFactor);
    dic_set_value(record, CoordParamKey::cuttingRadius, "%f", projection.cuttingRadius);
    dic_set_value(record, CoordParamKey::parallel1Lat, "%f", projection.firstLatitude);
    dic_set_value(record, CoordParamKey::parallel2Lat, "%f", projection.secondLatitude);
    dic_set_value(record, CoordParamKey::azimuth, "%f", projection.azimuth);
    dic_set_value(record, CoordParamKey::lon1, "%f", projection.firstLongitude);
    dic_set_value(record, CoordParamKey::lon2, "%f", projection.secondLongitude);
    dic_set_value(record, CoordParamKey::lat1, "%f", projection.firstLatitude);
    dic_set_value(record, CoordParamKey::lat2, "%f", projection.secondLatitude);
}

void writeShift(IDictionary* record, const ProjTowgs84& shift) {
    struct Value {
        const char* key;
        double number;
    };
    const Value values[] = {
        {CoordParamKey::shiftDx, shift.dx},          {CoordParamKey::shiftDy, shift.dy},
        {CoordParamKey::shiftDz, shift.dz},          {CoordParamKey::shiftRx, shift.rx / 3600.0},
        {CoordParamKey::shiftRy, shift.ry / 3600.0}, {CoordParamKey::shiftRz, shift.rz / 3600.0},
        {CoordParamKey::shiftPpm, shift.ppm},
    };
    const bool shifted =
        !std::all_of(std::begin(values), std::end(values), [](const Value& value) { return value.number == 0.0; });
    dic_set_value(record, CoordParamKey::shiftType, "%d", shifted ? 2 : 0);
    if (!shifted)
        return;
    for (const Value& value : values)
        dic_set_value(record, value.key, "%f", value.number);
}

} // namespace

void projDefineToCoordParam(ProjHandle handle, IDictionary* record) {
    const ProjTowgs84 shift = GetTowgs84(handle);
    const ProjEllipsoid ellipsoid = GetProjEllipsoid(handle);
    const Projection projection = parse(GetProjDefine(handle), ellipsoid.a);
    writeEllipsoid(record, ellipsoid);
    writeProjection(record, projection);
    writeShift(record, shift);
}

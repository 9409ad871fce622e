#include "import/ProjDefineToCoordParam.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/Sdk.h"
#include "import/ParallelRadius.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// A definition's items by their keys, and what follows from them.
struct Projection {
    QString name;
    QHash<QString, double> values; ///< 0 for an item that is missing; "lat_ts" as the radius of the parallel
    ProjectionMethod method = ProjectionMethod::TransverseMercator;
};

void readItem(Projection& projection, const QString& key, const QString& value, double semiMajorAxis) {
    double number = value.toDouble();
    if (key == QLatin1String("proj"))
        projection.name = value;
    else if (key == QLatin1String("lat_0"))
        projection.values[key] = Radian2Angle(&number);
    else if (key == QLatin1String("lat_ts"))
        projection.values[key] = ParallelRadius::ofLatitude(semiMajorAxis, number);
    else
        projection.values[key == QLatin1String("k") ? QStringLiteral("k_0") : key] = number;
}

/// Settles what depends on the projection's name and on which items the definition has.
void applyMethod(Projection& projection, const QString& text, double semiMajorAxis) {
    const auto has = [&text](const char* item) { return text.contains(QLatin1String(item)); };
    const QString& name = projection.name;
    double& parallelRadius = projection.values[QStringLiteral("lat_ts")];
    if (name == QLatin1String("tmerc") || name == QLatin1String("utm")) {
        if (!(projection.values.value(QStringLiteral("k_0")) == 1.0))
            projection.method = ProjectionMethod::TransverseMercatorScaled;
    } else if (name == QLatin1String("merc")) {
        if (has("lat_ts") && std::abs(parallelRadius - semiMajorAxis) > 1e-7) {
            projection.method = ProjectionMethod::MercatorStandardParallel;
        } else {
            projection.method = ProjectionMethod::Mercator;
            parallelRadius = semiMajorAxis;
        }
    } else if (name == QLatin1String("omerc")) {
        projection.method =
            has("alpha") ? ProjectionMethod::ObliqueMercatorAzimuth : ProjectionMethod::ObliqueMercatorTwoPoints;
        projection.values[QStringLiteral("lon_0")] = projection.values.value(QStringLiteral("lonc"));
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

/// Whatever the method, every key is written; the latitudes that may be parallels or those of points, as both.
void writeProjection(IDictionary* record, const Projection& projection) {
    static constexpr const char* items[][2] = {
        {CoordParamKey::orgLon, "lon_0"},       {CoordParamKey::orgLat, "lat_0"},
        {CoordParamKey::falseNorth, "y_0"},     {CoordParamKey::falseEast, "x_0"},
        {CoordParamKey::factor, "k_0"},         {CoordParamKey::cuttingRadius, "lat_ts"},
        {CoordParamKey::parallel1Lat, "lat_1"}, {CoordParamKey::parallel2Lat, "lat_2"},
        {CoordParamKey::azimuth, "alpha"},      {CoordParamKey::lon1, "lon_1"},
        {CoordParamKey::lon2, "lon_2"},         {CoordParamKey::lat1, "lat_1"},
        {CoordParamKey::lat2, "lat_2"},
    };
    dic_set_value(record, CoordParamKey::projectType, "%d", static_cast<int>(projection.method));
    for (const auto& [key, item] : items)
        dic_set_value(record, key, "%f", projection.values.value(QLatin1String(item)));
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

#include "TextGenerator.h"

#include <cmath>

namespace {

using Kind = WktText::Kind;

/// A method in one dialect, with the code of EPSG's that is the same. The parameters are "name@code=value", separated
/// by ";": the value is one that pools() lists or, for a parameter that has one value only, that number.
struct Method {
    QVector<Dialect> dialects;
    const char* name;
    int code;
    const char* projection; ///< see Meaning
    const char* parameters;
};

#define GDAL_ORIGIN "latitude_of_origin=lat_0;central_meridian=lon_0;"
#define GDAL_FALSE "false_easting=x_0;false_northing=y_0"
#define GDAL_CENTRE "latitude_of_center=centre;longitude_of_center=lonc;azimuth=alpha;rectified_grid_angle=alpha;"
#define ESRI_FALSE "False_Easting=x_0;False_Northing=y_0;"
#define ESRI_MERIDIAN ESRI_FALSE "Central_Meridian=lon_0;"
#define ESRI_CENTRE ESRI_FALSE "Scale_Factor=k_0;Azimuth=alpha;Longitude_Of_Center=lonc;Latitude_Of_Center=centre"
#define ISO_ORIGIN "Latitude of natural origin@8801=lat_0;Longitude of natural origin@8802=lon_0;"
#define ISO_SCALE "Scale factor at natural origin@8805=k_0;"
#define ISO_FALSE "False easting@8806=x_0;False northing@8807=y_0"
#define ISO_CENTRE                                                                                                     \
    "Latitude of projection centre@8811=centre;Longitude of projection centre@8812=lonc;Azimuth of initial "           \
    "line@8813=alpha;Angle from Rectified to Skew Grid@8814=alpha;Scale factor on initial line@8815=k_0;"
#define ISO_AT_CENTRE "Easting at projection centre@8816=x_0;Northing at projection centre@8817=y_0"
#define ISO_PARALLELS                                                                                                  \
    "Latitude of false origin@8821=lat_0;Longitude of false origin@8822=lon_0;Latitude of 1st standard "               \
    "parallel@8823=lat_1;Latitude of 2nd standard parallel@8824=lat_2;Easting at false origin@8826=x_0;Northing at "   \
    "false origin@8827=y_0"

/// The names are those that PROJ writes.
const QVector<Method>& methods() {
    const QVector<Dialect> gdal = {Dialect::Gdal};
    const QVector<Dialect> esri = {Dialect::Esri};
    const QVector<Dialect> iso = {Dialect::Wkt2_2015, Dialect::Wkt2_2019};
    static const QVector<Method> table = {
        {gdal, "Transverse_Mercator", 9807, "tmerc", GDAL_ORIGIN "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Transverse_Mercator", 9807, "tmerc", ESRI_MERIDIAN "Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {esri, "Gauss_Kruger", 9807, "tmerc", ESRI_MERIDIAN "Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {esri, "Gauss_Boaga", 9807, "tmerc", ESRI_MERIDIAN "Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {iso, "Transverse Mercator", 9807, "tmerc", ISO_ORIGIN ISO_SCALE ISO_FALSE},
        {gdal, "Mercator_1SP", 9804, "merc", "central_meridian=lon_0;scale_factor=k_0;" GDAL_FALSE},
        {iso, "Mercator (variant A)", 9804, "merc",
         "Latitude of natural origin@8801=0;Longitude of natural origin@8802=lon_0;" ISO_SCALE ISO_FALSE},
        {gdal, "Mercator_2SP", 9805, "merc", "standard_parallel_1=lat_ts;central_meridian=lon_0;" GDAL_FALSE},
        {esri, "Mercator", 9805, "merc", ESRI_MERIDIAN "Standard_Parallel_1=lat_ts"},
        {iso, "Mercator (variant B)", 9805, "merc",
         "Latitude of 1st standard parallel@8823=lat_ts;Longitude of natural origin@8802=lon_0;" ISO_FALSE},
        {gdal, "Hotine_Oblique_Mercator", 9812, "omerc +no_uoff", GDAL_CENTRE "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Hotine_Oblique_Mercator_Azimuth_Natural_Origin", 9812, "omerc +no_uoff", ESRI_CENTRE},
        {iso, "Hotine Oblique Mercator (variant A)", 9812, "omerc +no_uoff", ISO_CENTRE ISO_FALSE},
        {gdal, "Hotine_Oblique_Mercator_Azimuth_Center", 9815, "omerc", GDAL_CENTRE "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Hotine_Oblique_Mercator_Azimuth_Center", 9815, "omerc", ESRI_CENTRE},
        {esri, "Rectified_Skew_Orthomorphic_Center", 9815, "omerc", ESRI_CENTRE ";XY_Plane_Rotation=alpha"},
        {iso, "Hotine Oblique Mercator (variant B)", 9815, "omerc", ISO_CENTRE ISO_AT_CENTRE},
        {gdal, "Swiss_Oblique_Cylindrical", 0, "omerc +alpha=90",
         "latitude_of_center=centre;central_meridian=lonc;" GDAL_FALSE},
        {gdal, "Hotine_Oblique_Mercator_Two_Point_Natural_Origin", 0, "omerc",
         "latitude_of_center=centre;latitude_of_point_1=point;longitude_of_point_1=lon_1;latitude_of_point_2=lat_2;"
         "longitude_of_point_2=lon_2;scale_factor=k_0;" GDAL_FALSE},
        {gdal, "Stereographic", 0, "stere", GDAL_ORIGIN "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Stereographic", 0, "stere", ESRI_MERIDIAN "Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {gdal, "Polar_Stereographic", 9810, "stere",
         "latitude_of_origin=pole;central_meridian=lon_0;scale_factor=k_0;" GDAL_FALSE},
        {gdal, "Polar_Stereographic", 9829, "stere",
         "latitude_of_origin=polar;central_meridian=lon_0;scale_factor=1;" GDAL_FALSE},
        {esri, "Stereographic_North_Pole", 9829, "stere", ESRI_MERIDIAN "Standard_Parallel_1=north"},
        {esri, "Stereographic_South_Pole", 9829, "stere", ESRI_MERIDIAN "Standard_Parallel_1=south"},
        {iso, "Polar Stereographic (variant A)", 9810, "stere",
         "Latitude of natural origin@8801=pole;Longitude of natural origin@8802=lon_0;" ISO_SCALE ISO_FALSE},
        {iso, "Polar Stereographic (variant B)", 9829, "stere",
         "Latitude of standard parallel@8832=polar;Longitude of origin@8833=lon_0;" ISO_FALSE},
        {gdal, "Oblique_Stereographic", 9809, "sterea", GDAL_ORIGIN "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Double_Stereographic", 9809, "sterea", ESRI_MERIDIAN "Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {iso, "Oblique Stereographic", 9809, "sterea", ISO_ORIGIN ISO_SCALE ISO_FALSE},
        {gdal, "Lambert_Conformal_Conic_1SP", 9801, "lcc +lat_1={lat_0}", GDAL_ORIGIN "scale_factor=k_0;" GDAL_FALSE},
        {esri, "Lambert_Conformal_Conic", 9801, "lcc +lat_1={lat_0}",
         ESRI_MERIDIAN "Standard_Parallel_1=lat_0;Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {esri, "Lambert_Conformal_Conic", 0, "lcc",
         ESRI_MERIDIAN "Standard_Parallel_1=lat_1;Scale_Factor=k_0;Latitude_Of_Origin=lat_0"},
        {iso, "Lambert Conic Conformal (1SP)", 9801, "lcc +lat_1={lat_0}", ISO_ORIGIN ISO_SCALE ISO_FALSE},
        {gdal, "Lambert_Conformal_Conic_2SP", 9802, "lcc",
         "standard_parallel_1=lat_1;standard_parallel_2=lat_2;" GDAL_ORIGIN GDAL_FALSE},
        {esri, "Lambert_Conformal_Conic", 9802, "lcc",
         ESRI_MERIDIAN "Standard_Parallel_1=lat_1;Standard_Parallel_2=lat_2;Latitude_Of_Origin=lat_0"},
        {iso, "Lambert Conic Conformal (2SP)", 9802, "lcc", ISO_PARALLELS},
        {iso, "Lambert Conic Conformal (2SP Michigan)", 1051, "lcc",
         ISO_PARALLELS ";Ellipsoid scaling factor@1038=k_0"},
        {gdal, "Cassini_Soldner", 9806, "cass", GDAL_ORIGIN GDAL_FALSE},
        {esri, "Cassini", 9806, "cass", ESRI_MERIDIAN "Scale_Factor=1;Latitude_Of_Origin=lat_0"},
        {iso, "Cassini-Soldner", 9806, "cass", ISO_ORIGIN ISO_FALSE},
    };
    return table;
}

struct Pool {
    const char* item; ///< of the definition
    Kind kind;
    QVector<double> numbers; ///< in degrees or the text's unit of length
};

const QMap<QByteArray, Pool>& pools() {
    static const QVector<double> latitudes = {45, 44, 46.5, 33.3, 50.1, 30, -30, 9, 0, 60};
    static const QVector<double> longitudes = {45, 9, 7.4395, 0, -3, 117, 15, 44, 30, 46.5};
    static const QVector<double> parallels = {45, 44, 46.5, 30, 33.3, 60, -30, 9, 15};
    static const QVector<double> lengths = {500000, 0, 200000, 600000, 1500000, 45, 155.25, 1000000};
    static const QMap<QByteArray, Pool> table = {
        {"lat_0", {"lat_0", Kind::Angle, latitudes}},
        {"centre", {"lat_0", Kind::Angle, parallels}},
        {"lon_0", {"lon_0", Kind::Angle, longitudes}},
        {"lonc", {"lonc", Kind::Angle, longitudes}},
        {"lon_1", {"lon_1", Kind::Angle, longitudes}},
        {"lon_2", {"lon_2", Kind::Angle, longitudes}},
        {"lat_1", {"lat_1", Kind::Angle, parallels}},
        {"lat_2", {"lat_2", Kind::Angle, parallels}},
        {"point", {"lat_1", Kind::Angle, parallels}},
        {"lat_ts", {"lat_ts", Kind::Angle, parallels}},
        {"north", {"lat_ts", Kind::Angle, {60, 71, 45, 30}}},
        {"polar", {"lat_ts", Kind::Angle, {60, 71, -71, 45, -60}}},
        {"south", {"lat_ts", Kind::Angle, {-60, -71, -45}}},
        {"pole", {"lat_0", Kind::Angle, {90, -90}}},
        {"alpha", {"alpha", Kind::Angle, {45, 53.31, 30, 33.3, 90, 9}}},
        {"k_0", {"k_0", Kind::Scale, {1, 0.9996, 0.99995, 0.9, 1.0025}}},
        {"x_0", {"x_0", Kind::Length, lengths}},
        {"y_0", {"y_0", Kind::Length, lengths}},
    };
    return table;
}

const TextGenerator::Spheroid spheroids[] = {
    {"Bessel 1841", "6377397.155", "299.1528128"}, {"GRS 1980", "6378137", "298.257222101"},
    {"International 1924", "6378388", "297"},      {"Clarke 1866", "6378206.4", "294.978698213898"},
    {"Krassowsky 1940", "6378245", "298.3"},       {"Airy 1830", "6377563.396", "299.3249646"}};

Unit asUnit(const TextGenerator::KnownUnit& unit, Dialect dialect) {
    return {dialect == Dialect::Esri ? unit.esri : unit.gdal, unit.factor};
}

QVector<WktText::Axis> axesOf(const WktText& text, const Method& method, double latitude, bool isWritten) {
    const bool isPolar = QByteArray(method.projection) == "stere" && std::abs(latitude) == 90;
    if (text.dialect == Dialect::Esri || (!text.isWkt2() && (isPolar || !isWritten)))
        return {};
    if (!isPolar)
        return {{"Easting", "east", {}, text.lengthUnit}, {"Northing", "north", {}, text.lengthUnit}};
    const QByteArray direction = latitude > 0 ? "south" : "north";
    return {{"Easting", direction, "90", text.lengthUnit},
            {"Northing", direction, latitude > 0 ? "180" : "0", text.lengthUnit}};
}

struct Entry {
    QByteArray name;
    int code;
    QByteArray key;
};

QVector<Entry> entriesOf(const Method& method) {
    QVector<Entry> entries;
    for (const QByteArray& text : QByteArray(method.parameters).split(';')) {
        const int equals = text.lastIndexOf('=');
        const int at = text.lastIndexOf('@', equals);
        entries.append({text.left(at < 0 ? equals : at), at < 0 ? 0 : text.mid(at + 1, equals - at - 1).toInt(),
                        text.mid(equals + 1)});
    }
    return entries;
}

WktText::Parameter parameterOf(const Entry& entry, const QMap<QByteArray, double>& values, const WktText& text,
                               const TextGenerator::Layout& layout) {
    const auto pool = pools().constFind(entry.key);
    if (pool == pools().constEnd()) {
        const bool isAngle = entry.key == "0";
        return {entry.name, entry.code, isAngle ? Kind::Angle : Kind::Scale,
                {},         entry.key,  isAngle ? text.angleUnit : Unit{"unity", "1"}};
    }
    const bool isAngle = pool->kind == Kind::Angle;
    const bool isLength = pool->kind == Kind::Length;
    double value = values[pool->item];
    if (QByteArray(pool->item).startsWith("lon"))
        value -= QByteArray(layout.meridian.degrees).toDouble();
    return {entry.name,
            entry.code,
            pool->kind,
            entry.key,
            TextGenerator::number(value / (isAngle    ? layout.angle.size
                                           : isLength ? layout.length.size
                                                      : 1)),
            isAngle    ? text.angleUnit
            : isLength ? text.lengthUnit
                       : Unit{"unity", "1"}};
}

GeneratedText write(const Method& method, Dialect dialect, QMap<QByteArray, double> values,
                    const TextGenerator::Spheroid& spheroid, const TextGenerator::Layout& layout) {
    WktText text{};
    text.dialect = dialect;
    text.spheroid = spheroid.name;
    text.semiMajorAxis = spheroid.semiMajorAxis;
    text.inverseFlattening = spheroid.inverseFlattening;
    text.axisUnit = {"metre", "1"};
    text.angleUnit = asUnit(layout.angle, dialect);
    text.lengthUnit = asUnit(layout.length, dialect);
    text.meridianName = layout.meridian.name;
    text.meridian = layout.isMeridianInUnit && layout.angle.size != 1
                        ? TextGenerator::number(QByteArray(layout.meridian.degrees).toDouble() / layout.angle.size)
                        : QByteArray(layout.meridian.degrees);
    text.meridianUnit = layout.isMeridianInUnit ? text.angleUnit : asUnit(TextGenerator::angleUnits()[0], dialect);
    text.method = method.name;
    text.methodCode = text.isWkt2() && layout.hasCodes ? method.code : 0;
    for (const Entry& entry : entriesOf(method)) {
        text.parameters.append(parameterOf(entry, values, text, layout));
        if (text.methodCode == 0)
            text.parameters.last().code = 0;
    }
    if (values.contains("lat_ts") && QByteArray(method.projection) == "stere")
        values["lat_0"] = std::copysign(90, values["lat_ts"]);
    text.axes = axesOf(text, method, values["lat_0"], layout.hasAxes);
    constexpr const char* names[] = {"GDAL", "ESRI", "WKT 2:2015", "WKT 2:2019"};
    return {QByteArray(names[int(dialect)]) + ' ' + method.name,
            text,
            {method.projection, values, text.semiMajorAxis.toDouble(), text.inverseFlattening.toDouble()},
            1e-6};
}

} // namespace

const QVector<TextGenerator::KnownUnit>& TextGenerator::angleUnits() {
    static const QVector<KnownUnit> table = {
        {"degree", "Degree", "0.0174532925199433", 1, "0.01745329252"},
        {"grad", "Grad", "0.01570796326794897", 0.9, "0.01570796327"},
        {"radian", "Radian", "1", 180 / std::acos(-1.0), "1.0"},
        {"arc-second", "Second", "4.84813681109536E-06", 1.0 / 3600, "4.848136811E-06"},
    };
    return table;
}

const QVector<TextGenerator::KnownUnit>& TextGenerator::lengthUnits() {
    static const QVector<KnownUnit> table = {
        {"metre", "Meter", "1", 1, "1.0"},
        {"US survey foot", "Foot_US", "0.304800609601219", 1200.0 / 3937, "0.304800609605"},
        {"foot", "Foot", "0.3048", 0.3048, "0.30480"},
        {"kilometre", "Kilometer", "1000", 1000, "1000.0"},
        {"Clarke's foot", "Foot_Clarke", "0.3047972654", 0.3047972654, "0.3047972654"},
        {"British foot (Sears 1922)", "Foot_Sears", "0.304799471538676", 12.0 / 39.370147, "0.3047994715"},
        {"Indian foot", "Foot_Indian", "0.304799510248147", 12.0 / 39.370142, "0.3047995102"},
        {"Gold Coast foot", "Foot_Gold_Coast", "0.304799710181509", 0.3047997101815088, "0.3047997102"},
        {"British chain (Sears 1922)", "Chain_Sears", "20.1167651215526", 66 * 12.0 / 39.370147, "20.11676512"},
        {"link", "Link", "0.201168", 0.201168, "0.2011680"},
        {"German legal metre", "Meter_German", "1.0000135965", 1.0000135965, "1.0000135965"},
    };
    return table;
}

const QVector<TextGenerator::KnownMeridian>& TextGenerator::meridians() {
    static const QVector<KnownMeridian> table = {
        {"Greenwich", "0"},
        {"Paris", "2.33722917"},
        {"Bern", "7.43958333333333"},
        {"Rome", "12.4523333333333"},
        {"Lisbon", "-9.13190611111111"},
        {"Ferro", "-17.6666666666667"},
        {"Madrid", "-3.68793888888889"},
        {"Oslo", "10.7229166666667"},
    };
    return table;
}

QByteArray TextGenerator::number(double value) {
    return QByteArray::number(value, 'g', 15);
}

GeneratedText TextGenerator::generate(Random& random) {
    const Method& method = random.pick(methods());
    const Dialect dialect = random.pick(method.dialects);
    const Layout layout{angleUnits()[random.oneIn(5) ? random.below(angleUnits().size()) : 0],
                        lengthUnits()[random.oneIn(2) ? random.below(lengthUnits().size()) : 0],
                        meridians()[random.oneIn(4) ? random.below(meridians().size()) : 0],
                        random.oneIn(2),
                        random.oneIn(2),
                        random.oneIn(2)};
    QMap<QByteArray, double> values;
    for (const Entry& entry : entriesOf(method)) {
        const auto pool = pools().constFind(entry.key);
        if (pool == pools().constEnd() || values.contains(pool->item))
            continue;
        const bool isLong = layout.length.size > 10; // no grid lies a million kilometres away
        values[pool->item] =
            random.pick(pool->numbers) * (pool->kind != Kind::Length ? 1 : layout.length.size / (isLong ? 1000 : 1));
        if (QByteArray(pool->item).startsWith("lon"))
            values[pool->item] += QByteArray(layout.meridian.degrees).toDouble();
    }
    GeneratedText generated = write(method, dialect, values, random.pick(spheroids), layout);
    if (generated.meaning.projection.endsWith("no_uoff") && values["alpha"] == 90) {
        // The natural origin is a quarter of the globe away: nobody means it. GDAL 1 wrote the Swiss grids like that.
        if (dialect != Dialect::Gdal)
            return generate(random);
        generated.meaning.projection = "omerc";
    }
    return generated;
}

QMap<int, QByteArray> TextGenerator::itemsOf(int methodCode) {
    QMap<int, QByteArray> items;
    for (const Method& method : methods()) {
        if (method.code != methodCode || !method.dialects.contains(Dialect::Wkt2_2019))
            continue;
        for (const Entry& entry : entriesOf(method)) {
            if (pools().contains(entry.key))
                items[entry.code] = pools()[entry.key].item;
        }
    }
    return items;
}

std::optional<GeneratedText> TextGenerator::write(int methodCode, Dialect dialect,
                                                  const QMap<QByteArray, double>& values, const Spheroid& spheroid,
                                                  const Layout& layout) {
    const char* const otherPole = values["lat_ts"] > 0 ? "=south" : "=north";
    for (const Method& method : methods()) {
        if (method.code == methodCode && method.dialects.contains(dialect) &&
            !QByteArray(method.parameters).contains(otherPole))
            return ::write(method, dialect, values, spheroid, layout);
    }
    return std::nullopt;
}

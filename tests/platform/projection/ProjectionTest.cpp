#include "platform/projection/IProjectionModule.h"
#include "platform/projection/IWktReader.h"
#include "platform/projection/ProjectionLibrary.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QRandomGenerator>
#include <QtTest>

#include <proj.h>

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

struct PjDeleter {
    void operator()(PJ* object) const { proj_destroy(object); }
};
using PjPointer = std::unique_ptr<PJ, PjDeleter>;

const QByteArray noShift = " +towgs84=0,0,0,0,0,0,0 +units=m +no_defs";

QByteArray define(const QByteArray& definition) {
    return GetProjDefine(InitializeProj(definition.constData()));
}

QList<double> shiftOf(const QByteArray& definition) {
    const ProjTowgs84 shift = GetTowgs84(InitializeProj(definition.constData()));
    return {shift.dx, shift.dy, shift.dz, shift.rx, shift.ry, shift.rz, shift.ppm};
}

/// The first longitude that a normalised definition names.
double longitudeOf(const QByteArray& definition) {
    const int at = definition.indexOf('=', definition.indexOf("+lon")) + 1;
    return definition.mid(at, definition.indexOf(' ', at) - at).toDouble();
}

/// The distance between what two definitions make of one place, in the given one's unit; infinite when one of them
/// can't.
double distance(const QByteArray& left, const QByteArray& right, double longitude, double latitude) {
    const PjPointer a(proj_create(nullptr, left.constData()));
    const PjPointer b(proj_create(nullptr, right.constData()));
    if (!a || !b)
        return HUGE_VAL;
    const PJ_COORD place = proj_coord(proj_torad(longitude), proj_torad(latitude), 0, 0);
    const PJ_COORD p = proj_trans(a.get(), PJ_FWD, place);
    const PJ_COORD q = proj_trans(b.get(), PJ_FWD, place);
    return std::hypot(p.xy.x - q.xy.x, p.xy.y - q.xy.y);
}

/// A WKT 1 in ESRI's dialect.
QByteArray wkt(const char* method, const char* parameters, const char* behind = R"w(UNIT["Meter",1.0])w",
               const char* name = "X") {
    return QByteArray("PROJCS[\"") + name +
           R"w(",GEOGCS["GCS_WGS_1984",DATUM["D_WGS_1984",SPHEROID["WGS_1984",6378137.0,298.257223563]],)w"
           R"w(PRIMEM["Greenwich",0.0],UNIT["Degree",0.0174532925199433]],PROJECTION[")w" +
           method + R"w("],PARAMETER["False_Easting",500000.0],PARAMETER["False_Northing",1000.0],)w" + parameters +
           ',' + behind + ']';
}

const char* const transverseMercator =
    R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Scale_Factor",0.9999],PARAMETER["Latitude_Of_Origin",46.5])w";

/// A WKT 2 of a polar stereographic system around the north pole, with the meridian -45 and the given axes.
QByteArray polarWkt(const char* axes) {
    return QByteArray(R"w(PROJCRS["polar",BASEGEOGCRS["WGS 84",DATUM["World Geodetic System 1984",)w"
                      R"w(ELLIPSOID["WGS 84",6378137,298.257223563]]],CONVERSION["c",)w"
                      R"w(METHOD["Polar Stereographic (variant B)",ID["EPSG",9829]],)w"
                      R"w(PARAMETER["Latitude of standard parallel",70,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Longitude of origin",-45,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["False easting",0,LENGTHUNIT["metre",1]],)w"
                      R"w(PARAMETER["False northing",0,LENGTHUNIT["metre",1]]],CS[Cartesian,2],)w") +
           axes + R"w(,LENGTHUNIT["metre",1]])w";
}

/// A WKT 2 of the British grid, bound to WGS 84 by a transformation with rotations of the given sign.
QByteArray boundWkt(const char* method, int sign) {
    QByteArray rotations;
    const auto rotation = [&](const char* axis, double seconds) {
        rotations +=
            QByteArray("PARAMETER[\"") + axis + "-axis rotation\"," + QByteArray::number(sign * seconds) + "],";
    };
    rotation("X", 0.1502);
    rotation("Y", 0.247);
    rotation("Z", 0.8421);
    return QByteArray(R"w(BOUNDCRS[SOURCECRS[PROJCRS["b",BASEGEOGCRS["x",DATUM["d",)w"
                      R"w(ELLIPSOID["Airy 1830",6377563.396,299.3249646,LENGTHUNIT["metre",1]]]],)w"
                      R"w(CONVERSION["c",METHOD["Transverse Mercator",ID["EPSG",9807]],)w"
                      R"w(PARAMETER["Latitude of natural origin",49,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Longitude of natural origin",-2,ANGLEUNIT["degree",0.0174532925199433]],)w"
                      R"w(PARAMETER["Scale factor at natural origin",0.9996012717,SCALEUNIT["unity",1]],)w"
                      R"w(PARAMETER["False easting",400,LENGTHUNIT["kilometre",1000]],)w"
                      R"w(PARAMETER["False northing",-100,LENGTHUNIT["kilometre",1000]]],)w"
                      R"w(CS[Cartesian,2],AXIS["(E)",east],AXIS["(N)",north],LENGTHUNIT["metre",1]]],)w"
                      R"w(TARGETCRS[GEOGCRS["WGS 84",DATUM["World Geodetic System 1984",)w"
                      R"w(ELLIPSOID["WGS 84",6378137,298.257223563]],CS[ellipsoidal,2],AXIS["lat",north],)w"
                      R"w(AXIS["lon",east],ANGLEUNIT["degree",0.0174532925199433]]],)w"
                      R"w(ABRIDGEDTRANSFORMATION["t",METHOD[")w") +
           method +
           R"w("],PARAMETER["X-axis translation",446.448],PARAMETER["Y-axis translation",-125.157],)w"
           R"w(PARAMETER["Z-axis translation",542.06],)w" +
           rotations + R"w(PARAMETER["Scale difference",0.9999795106]]])w";
}

} // namespace

class ProjectionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(projectionModule(), "the module lies in ../lib");
        proj_log_level(nullptr, PJ_LOG_NONE);
    }

    void normalised_data() {
        const Rows<QByteArray, QByteArray> row({"given", "expected"});
        for (const QByteArrayList& columns : textTable("normalised.txt"))
            row(columns[0], columns[1], columns[2]);
    }
    void normalised() {
        QFETCH(QByteArray, given);
        QFETCH(QByteArray, expected);
        QCOMPARE(define(given), expected + noShift);
        QCOMPARE(define(define(given)), define(given));
        const QByteArray shiftless = QByteArray(given).replace("+nadgrids=@null", "").replace("+datum=", "+ellps=");
        QByteArray held = expected + (given.contains("us-ft") ? " +units=us-ft" : "");
        held += given.contains("to_meter") ? " +to_meter=0.3047972654" : given.contains("neu") ? " +axis=neu" : "";
        const double latitude = given.contains("lat_0=-90") || given.contains("south") ? -70 : 47;
        QVERIFY(distance(shiftless, held, longitudeOf(expected) + 2, latitude) < 1e-6);
    }

    void undefined_data() {
        const Rows<QByteArray> row({"given"});
        for (const QByteArrayList& columns : textTable("undefined.txt"))
            row(columns[0], columns[1]);
    }
    void undefined() {
        QFETCH(QByteArray, given);
        const QByteArray text = define(given);
        QVERIFY2(!text.isEmpty() && !text.contains("proj=") && !text.contains("k_0=") && !text.contains("nan"),
                 text.constData());
        QVERIFY2(text.startsWith("+lat_") || text.startsWith("+lon"), text.constData());
    }

    void unreadable_data() {
        const Rows<QByteArray> row({"given"});
        for (const char* text :
             {"", " ", "hello world", "+", "=", "+=", "+proj=", "+proj=tmerc +ellps=unheard",
              "+proj=tmerc +datum=unheard", "+proj=tmerc +towgs84=1,2", "+proj=tmerc +towgs84=1,2,x",
              "+proj=tmerc +towgs84=1,2,3,4,5,6,7,8", "+proj=tmerc +a=0", "+proj=tmerc +a=-1 +rf=300",
              "+proj=tmerc +rf=300", "+proj=tmerc +a=6378137 +rf=0.5", "+proj=tmerc +a=1 +b=nan", "\xFF\xFE"})
            row(text, text);
    }
    void unreadable() {
        QFETCH(QByteArray, given);
        const ProjHandle handle = InitializeProj(given.isEmpty() ? nullptr : given.constData());
        QCOMPARE(QByteArray(GetProjDefine(handle)), QByteArray());
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(handle);
        QCOMPARE(QByteArray(ellipsoid.name), QByteArray("GRS 1980"));
        QCOMPARE(ellipsoid.a, 6378137.0);
        QCOMPARE(ellipsoid.b, 6356752.314140356);
        QCOMPARE(shiftOf(given), (QList<double>{0, 0, 0, 0, 0, 0, 0}));
    }

    void plainDefinitionsComputeTheSame_data() {
        const Rows<QByteArray> row({"pattern"});
        for (const char* pattern :
             {"+proj=tmerc +lat_0=%lat +lon_0=%lon +k=%k +x_0=%x +y_0=%x", "+proj=utm +zone=%zone",
              "+proj=utm +zone=%zone +south", "+proj=merc +lon_0=%lon +k=%k +x_0=%x",
              "+proj=merc +lon_0=%lon +lat_ts=%lat", "+proj=stere +lat_0=%lat +lon_0=%lon +k=%k +x_0=%x",
              "+proj=stere +lat_0=90 +lat_ts=%lat +lon_0=%lon", "+proj=stere +lat_0=-90 +k=%k +lon_0=%lon",
              "+proj=sterea +lat_0=%lat +lon_0=%lon +k_0=%k", "+proj=lcc +lat_1=%lat +lon_0=%lon +k_0=%k",
              "+proj=lcc +lat_1=%lat +lat_0=%lat +lon_0=%lon +k_0=%k",
              "+proj=lcc +lat_1=%lat +lat_2=%lat +lat_0=%lat +lon_0=%lon", "+proj=lcc +lat_2=%lat +lon_0=%lon",
              "+proj=cass +lat_0=%lat +lon_0=%lon +x_0=%x",
              "+proj=omerc +no_uoff +lat_0=%lat +lonc=%lon +alpha=%alpha +k=%k",
              "+proj=omerc +no_off +lat_0=-%lat +lonc=%lon +alpha=%alpha +gamma=%alpha",
              "+proj=omerc +lat_0=%lat +lonc=%lon +alpha=%alpha"})
            row(pattern, pattern);
    }
    void plainDefinitionsComputeTheSame() {
        QFETCH(QByteArray, pattern);
        QRandomGenerator random(20);
        const QList<QByteArray> ends{" +ellps=GRS80",
                                     " +ellps=bessel +pm=ferro",
                                     " +a=6378249.2 +b=6356515",
                                     " +R=6370997",
                                     " +ellps=clrk66 +units=us-ft",
                                     " +a=6378300 +rf=296 +pm=9.5",
                                     " +ellps=intl +to_meter=0.3047972654 +pm=jakarta"};
        const auto number = [&random](double from, double to) {
            return QByteArray::number(from + random.generateDouble() * (to - from), 'g', 15);
        };
        for (const QByteArray& end : ends) {
            // PROJ has no UTM on a sphere.
            if (pattern.contains("utm") && end.contains("+R="))
                continue;
            const double latitude = 20 + random.generateDouble() * 40;
            QByteArray given = pattern + end;
            while (given.contains("%lat"))
                given.replace(given.indexOf("%lat"), 4, number(latitude - 2, latitude + 2));
            given.replace("%lon", number(-180, 180)).replace("%k", number(0.9, 1.1)).replace("%x", number(-1e7, 1e7));
            given.replace("%alpha", number(-80, 400)).replace("%zone", QByteArray::number(random.bounded(1, 61)));
            QByteArray held = define(given);
            QVERIFY2(held.startsWith("+proj="), given.constData());
            held.replace(" +towgs84=0,0,0,0,0,0,0 +units=m", given.contains(" +units=us-ft") ? " +units=us-ft"
                                                             : given.contains(" +to_meter")  ? " +to_meter=0.3047972654"
                                                                                             : "");
            const double longitude = longitudeOf(held);
            for (const double offset : {-2.0, 0.5, 3.0}) {
                const double away = distance(given, held, longitude + offset, latitude + offset);
                QVERIFY2(away < 1e-6,
                         qPrintable(QString("%1 in %2 against %3").arg(away).arg(given.constData(), held.constData())));
            }
        }
    }

    void ellipsoids_data() {
        const Rows<QByteArray, QByteArray, QByteArray, double, double> row({"items", "id", "name", "a", "b"});
        for (const QByteArrayList& columns : textTable("ellipsoids.txt"))
            row(columns[0], columns[0], columns[1], columns[2], columns[3].toDouble(), columns[4].toDouble());
    }
    void ellipsoids() {
        QFETCH(QByteArray, items);
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, name);
        QFETCH(double, a);
        QFETCH(double, b);
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(InitializeProj(("+proj=tmerc " + items).constData()));
        QCOMPARE(QByteArray(ellipsoid.id), id);
        QCOMPARE(QByteArray(ellipsoid.name), name);
        QVERIFY2(std::abs(ellipsoid.a - a) < 1e-8 && std::abs(ellipsoid.b - b) < 1e-6,
                 qPrintable(QString::number(ellipsoid.b, 'f', 10)));
        // Nothing to name is null, not an empty text.
        QVERIFY((ellipsoid.id == nullptr) == id.isEmpty() && (ellipsoid.name == nullptr) == name.isEmpty());
    }

    void shifts_data() {
        const Rows<QByteArray, QList<double>> rows({"items", "shift"});
        const auto row = [&rows](const char* items, const QList<double>& shift) { rows(items, items, shift); };
        const QList<double> none{0, 0, 0, 0, 0, 0, 0};
        row("+ellps=GRS80", none);
        row("+towgs84=598.1,73.7,418.2", {598.1, 73.7, 418.2, 0, 0, 0, 0});
        row("+towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7", {598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7});
        row("+towgs84=0,0,0,0,0,0,-20.4889999999569", {0, 0, 0, 0, 0, 0, -20.489}); // 0.999979511, as WKT 2 has it
        row("+towgs84=0,0,0,0,0,0,1.123456789", {0, 0, 0, 0, 0, 0, 1.123456789});
        row("+towgs84=1e2,+2,-3", {100, 2, -3, 0, 0, 0, 0});
        row("+datum=WGS84", none);
        row("+datum=NAD83", none);
        row("+datum=NAD27", none);
        row("+datum=OSGB36", {446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894});
        row("+datum=OSGB36 +towgs84=1,2,3", {1, 2, 3, 0, 0, 0, 0});
        row("+datum=hermannskogel", {577.326, 90.129, 463.919, 5.137, 1.474, 5.297, 2.4232});
        row("+ellps=bessel +nadgrids=BETA2007.gsb", none);
        row("+datum=OSGB36 +nadgrids=@null", none);
    }
    void shifts() {
        QFETCH(QByteArray, items);
        QFETCH(QList<double>, shift);
        QCOMPARE(shiftOf("+proj=tmerc " + items), shift);
        QVERIFY(define("+proj=tmerc " + items).startsWith("+proj=tmerc"));
    }

    void equalDefinitionsShareAHandle() {
        const ProjHandle one = InitializeProj("+proj=tmerc +lon_0=11");
        QCOMPARE(InitializeProj(" +proj=tmerc\n +lon_0=11 "), one);
        const char* const text = GetProjDefine(one);
        for (int i = 0; i < 1000; ++i)
            InitializeProj(("+proj=tmerc +lon_0=" + QByteArray::number(i % 100)).constData());
        QCOMPARE(InitializeProj("+proj=tmerc +lon_0=11"), one);
        QCOMPARE(GetProjDefine(one), text);
        QVERIFY(InitializeProj("+proj=tmerc +lon_0=12") != one);
        QCOMPARE(QByteArray(GetProjDefine(nullptr)), QByteArray());
    }

    void wktContents_data() {
        const Rows<QByteArray, int, QByteArray> rows({"text", "content", "name"});
        const auto row = [&rows](const char* title, const QByteArray& text, WktSystem::Content content,
                                 const char* name = "") { rows(title, text, int(content), name); };
        const auto projected = WktSystem::Content::Projected;
        const QByteArray system = wkt("Transverse_Mercator", transverseMercator);
        row("ESRI", system, projected, "X");
        row("round brackets", QByteArray(system).replace('[', '(').replace(']', ')'), projected, "X");
        row("blanks and words behind", system + "  more", projected, "X");
        row("any letters", wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "\xC3\x96,\xE6\xB8\xAC"),
            projected, "\xC3\x96,\xE6\xB8\xAC");
        row("name in ESRI's words",
            wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "WGS_1984_UTM_Zone_31N"), projected,
            "WGS 84 / UTM zone 31N");
        row("withdrawn", wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "Y (deprecated)"),
            projected, "Y (deprecated)");
        row("with a height, WKT 1",
            "COMPD_CS[\"both\"," + system + R"w(,VERT_CS["v",VERT_DATUM["d",2005],UNIT["metre",1],AXIS["Up",UP]]])w",
            projected, "X");
        row("with a height, ESRI",
            system + R"w(,VERTCS["EGM96_Geoid",VDATUM["EGM96_Geoid"],PARAMETER["Vertical_Shift",0.0],)w"
                     R"w(PARAMETER["Direction",1.0],UNIT["Meter",1.0]])w",
            projected, "X");
        row("bound", boundWkt("Position Vector transformation (geog2D domain)", 1), projected, "b");
        row("a method that WKT 1 has no name for",
            wkt("Lambert_Conformal_Conic",
                R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Standard_Parallel_1",44.0],PARAMETER["Standard_Parallel_2",49.0],)w"
                R"w(PARAMETER["Scale_Factor",0.9999],PARAMETER["Latitude_Of_Origin",46.5])w"),
            projected, "X");
        row("a geocentric system's code on a geographic one",
            QByteArray(system).replace("0.0174532925199433]]", "0.0174532925199433],AUTHORITY[\"EPSG\",\"4978\"]]"),
            projected, "X");
        row("a method of nobody's", wkt("Unknown", transverseMercator), projected, "X");
        row("geographic",
            R"w(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)w"
            R"w(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])w",
            WktSystem::Content::NotProjected);
        row("local", R"w(LOCAL_CS["Unknown",UNIT["Meter",1.0]])w", WktSystem::Content::NotProjected);
        const auto unreadable = WktSystem::Content::Unreadable;
        row("empty", "", unreadable);
        row("cut off", system.chopped(1), unreadable);
        row("PROJ.4", "+proj=utm +zone=31", unreadable);
        row("code", "EPSG:32631", unreadable);
        row("binary", QByteArray::fromHex("89504e470d0a1a0affd8ffe0"), unreadable);
        row("brackets only", QByteArray(90000, '['), unreadable);
        row("nested without end", QByteArray("PROJCS[\"a\",").repeated(9000), unreadable);
        row("more than GDAL takes", system + QByteArray(200000, 'x'), unreadable);
    }
    void wktContents() {
        QFETCH(QByteArray, text);
        QFETCH(int, content);
        QFETCH(QByteArray, name);
        const WktSystem system = projectionModule()->wktReader().read(text);
        QCOMPARE(int(system.content), content);
        QCOMPARE(system.name, name);
    }

    void wktDefinitions_data() {
        const Rows<QByteArray, QByteArray> rows({"text", "start"});
        // The start of the normalised definition; empty when the projection is undefined.
        const auto row = [&rows](const char* title, const QByteArray& text, const char* start = "") {
            rows(title, text, start);
        };
        row("transverse Mercator", wkt("Transverse_Mercator", transverseMercator),
            "+proj=tmerc +lat_0=46.5 +lon_0=3 +k_0=0.9999 +x_0=500000 +y_0=1000 +ellps=WGS84");
        row("in US survey feet",
            wkt("Transverse_Mercator", transverseMercator, R"w(UNIT["Foot_US",0.3048006096012192])w"),
            "+proj=tmerc +lat_0=46.5 +lon_0=3 +k_0=0.9999 +x_0=152400.30480061 +y_0=304.800609601219");
        row("northing first",
            wkt("Transverse_Mercator", transverseMercator, R"w(UNIT["Meter",1],AXIS["X",NORTH],AXIS["Y",EAST])w"),
            "+proj=tmerc");
        row("axes that say nothing",
            wkt("Transverse_Mercator", transverseMercator, R"w(UNIT["Meter",1],AXIS["X",OTHER],AXIS["Y",OTHER])w"),
            "+proj=tmerc");
        row("another system behind",
            wkt("Transverse_Mercator", transverseMercator) + '\n' +
                wkt("Transverse_Mercator", QByteArray(transverseMercator).replace("46.5", "12.25")),
            "+proj=tmerc +lat_0=46.5");
        row("axes west and south",
            wkt("Transverse_Mercator", transverseMercator, R"w(UNIT["Meter",1],AXIS["Y",WEST],AXIS["X",SOUTH])w"));
        row("misspelt parameter",
            wkt("Gauss_Kruger", R"w(PARAMETER["Central_Meridan",117.0],PARAMETER["Scale_Factor",1.0])w"));
        row("scale that Cassini-Soldner has not",
            wkt("Cassini", R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Scale_Factor",0.9999])w"));
        row("scale 1 on Cassini-Soldner",
            wkt("Cassini", R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Scale_Factor",1.0])w"),
            "+proj=cass +lat_0=0 +lon_0=3");
        row("parallel beside the origin",
            wkt("Lambert_Conformal_Conic",
                R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Standard_Parallel_1",44.0],)w"
                R"w(PARAMETER["Scale_Factor",0.9999],PARAMETER["Latitude_Of_Origin",46.5])w"));
        row("Belgian Lambert", wkt("Lambert_Conformal_Conic_2SP_Belgium",
                                   R"w(PARAMETER["latitude_of_origin",90],PARAMETER["central_meridian",4.3],)w"
                                   R"w(PARAMETER["standard_parallel_1",51],PARAMETER["standard_parallel_2",49])w"));
        row("ESRI's Mercator by its scale",
            wkt("Mercator_Variant_A", R"w(PARAMETER["Central_Meridian",110.0],PARAMETER["Scale_Factor",0.997])w"),
            "+proj=merc");
        row("another sphere than the web's",
            wkt("Mercator_Auxiliary_Sphere",
                R"w(PARAMETER["Central_Meridian",0.0],PARAMETER["Standard_Parallel_1",0.0],)w"
                R"w(PARAMETER["Auxiliary_Sphere_Type",1.0])w"));
        const QByteArray web = wkt("Mercator_Auxiliary_Sphere", R"w(PARAMETER["Central_Meridian",0.0],)w"
                                                                R"w(PARAMETER["Auxiliary_Sphere_Type",0.0])w");
        row("the web's Mercator", QByteArray(web).replace("500000.0", "0").replace("1000.0", "0"),
            "+proj=merc +lon_0=0 +k_0=1 +x_0=0 +y_0=0 +a=6378137 +b=6378137");
        row("the web's Mercator from another meridian", QByteArray(web)
                                                            .replace("500000.0", "0")
                                                            .replace("1000.0", "0")
                                                            .replace("\"Greenwich\",0.0", "\"Paris\",2.33"));
        row("a unit of nothing", wkt("Transverse_Mercator", transverseMercator, R"w(UNIT["Meter",0])w"));
        const char* const oblique = R"w(PARAMETER["Scale_Factor",0.9996],PARAMETER["Azimuth",337.25556],)w"
                                    R"w(PARAMETER["Longitude_Of_Center",-86.0],PARAMETER["Latitude_Of_Center",45.3])w";
        row("Hotine's variant B", wkt("Hotine_Oblique_Mercator_Azimuth_Center", oblique),
            "+proj=omerc +lat_0=45.3 +lonc=-86 +alpha=337.25556 +k_0=0.9996 +x_0=500000 +y_0=1000");
        row("Hotine's variant A", wkt("Hotine_Oblique_Mercator_Azimuth_Natural_Origin", oblique),
            "+proj=omerc +lat_0=45.3 +lonc=-86 +alpha=337.25556 +k_0=0.9996 +x_0=-1546495.5778133");
        row("turned cadastre of Austria",
            QByteArray(
                R"w(PROJCS["Gusterberg_Grid_Ferro",GEOGCS["Gusterberg(Ferro)",DATUM["Gusterberg_(Ferro)",)w"
                R"w(SPHEROID["Zach_1812",6376045.0,310.0]],PRIMEM["Ferro",-17.6666666666667],)w"
                R"w(UNIT["Degree",0.0174532925199433]],PROJECTION["Cassini"],PARAMETER["False_Easting",0.0],)w"
                R"w(PARAMETER["False_Northing",0.0],PARAMETER["Central_Meridian",31.8041805555556],)w"
                R"w(PARAMETER["Scale_Factor",1.0],PARAMETER["Latitude_Of_Origin",48.0384638888889],UNIT["Meter",1.0]])w"));
        row("polar",
            polarWkt(R"w(AXIS["(E)",south,MERIDIAN[45,ANGLEUNIT["degree",0.0174532925199433]]],)w"
                     R"w(AXIS["(N)",south,MERIDIAN[135,ANGLEUNIT["degree",0.0174532925199433]]])w"),
            "+proj=stere +lat_0=90 +lon_0=-45 +lat_ts=70");
        row("polar, turned", polarWkt(R"w(AXIS["(E)",south,MERIDIAN[90,ANGLEUNIT["degree",0.0174532925199433]]],)w"
                                      R"w(AXIS["(N)",south,MERIDIAN[180,ANGLEUNIT["degree",0.0174532925199433]]])w"));
    }
    void wktDefinitions() {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, start);
        const WktSystem system = projectionModule()->wktReader().read(text);
        QCOMPARE(int(system.content), int(WktSystem::Content::Projected));
        const QByteArray definition = define(system.definition);
        QVERIFY2(definition.startsWith(start) && definition.contains("+proj=") != start.isEmpty(),
                 definition.constData());
        // The ellipsoid is the text's in any case.
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(InitializeProj(system.definition.constData()));
        QCOMPARE(QByteArray(ellipsoid.name), text.contains("Zach") ? QByteArray("Zach 1812")
                                             : definition.contains("+b=6378137") || text.contains("Paris")
                                                 ? QByteArray("Popular Visualisation Sphere")
                                                 : QByteArray("WGS 84"));
    }

    void wktShifts_data() {
        const Rows<QByteArray, QList<double>> row({"text", "shift"});
        const QList<double> british{446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894};
        row("position vector", boundWkt("Position Vector transformation (geog2D domain)", 1), british);
        row("coordinate frame", boundWkt("Coordinate Frame rotation (geog2D domain)", -1), british);
        const QByteArray plain = wkt("Transverse_Mercator", transverseMercator);
        row("none", plain, {0, 0, 0, 0, 0, 0, 0});
        const QByteArray shifted = QByteArray(plain).replace("563]", "563],TOWGS84[1,2,3,4,5,6,7]");
        row("seven", shifted, {1, 2, 3, 4, 5, 6, 7});
        row("undefined projection", QByteArray(shifted).replace("Transverse_Mercator", "Unknown"),
            {1, 2, 3, 4, 5, 6, 7});
    }
    void wktShifts() {
        QFETCH(QByteArray, text);
        QFETCH(QList<double>, shift);
        const QList<double> read = shiftOf(projectionModule()->wktReader().read(text).definition);
        for (int i = 0; i < 7; ++i)
            QVERIFY2(std::abs(read[i] - shift[i]) < 1e-10, qPrintable(QString::number(read[i], 'g', 17)));
    }

    void nothingReachesTheTerminal() {
        QTemporaryFile terminal;
        QVERIFY(terminal.open());
        std::fflush(stderr);
        QVERIFY(std::freopen(QFile::encodeName(terminal.fileName()).constData(), "w", stderr));
        for (const QByteArray& text :
             {QByteArray("rubbish"), wkt("Unknown", transverseMercator), QByteArray(200000, 'x')})
            projectionModule()->wktReader().read(text);
        for (const char* text : {"+proj=omerc +lat_0=4 +alpha=x", "+proj=tmerc +foo +lat_0=99", "+proj=pipeline +step"})
            InitializeProj(text);
        std::fflush(stderr);
        QCOMPARE(terminal.readAll(), QByteArray());
    }
};

ROOM_TEST(ProjectionTest)
#include "ProjectionTest.moc"

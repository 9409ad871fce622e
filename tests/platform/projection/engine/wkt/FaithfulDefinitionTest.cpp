#include "SampleWkt.h"
#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

using SampleWkt::polarWkt;
using SampleWkt::transverseMercator;
using SampleWkt::wkt;

/// Which definitions a WKT text gets, and which are refused since they would not say all of it.
class FaithfulDefinitionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void definitions_data() {
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
        row("misspelt parameter of 1",
            wkt("Gauss_Kruger", R"w(PARAMETER["Central_Meridan",1.0],PARAMETER["Scale_Factor",0.9999])w"));
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
        row("Swiss, an azimuth of 90",
            wkt("Hotine_Oblique_Mercator_Azimuth_Center",
                R"w(PARAMETER["Scale_Factor",1.0],PARAMETER["Azimuth",90.0],)w"
                R"w(PARAMETER["Longitude_Of_Center",7.5],PARAMETER["Latitude_Of_Center",46.5])w"),
            "+proj=omerc +lat_0=46.5 +lonc=7.5 +alpha=90 +k_0=1 +x_0=500000 +y_0=1000");
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

    void definitions() {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, start);
        const WktSystem system = projectionModule()->readWkt(text);
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
};

ROOM_TEST(FaithfulDefinitionTest)
#include "FaithfulDefinitionTest.moc"

#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

class GeodesyTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the projection module was not found"); }

    void unusableDefinition() {
        for (const char* definition :
             {"", "+a=6378137 +rf=298.257222101 +units=m", "+proj=nowhere +a=6378137 +rf=298",
              "+proj=longlat +a=6378137 +rf=298", "+proj=lcc +lat_1=30 +lat_2=-30 +a=6378137 +rf=298",
              "+proj=tmerc +a=6378137 +rf=298 +towgs84=1,2,3,4 +units=m"})
            QVERIFY2(!projectionModule()->createSystem(definition), definition);
    }

    void wkt_data() {
        const Rows<int, QByteArray> row({"dialect", "start"});
        row("WKT 1", int(WktDialect::Wkt1Gdal), "PROJCS[\"DHDN \"\"3\"\"\",GEOGCS[");
        row("ESRI", int(WktDialect::Wkt1Esri), "PROJCS[\"DHDN \"\"3\"\"\",GEOGCS[");
        row("WKT 2", int(WktDialect::Wkt2_2019), "BOUNDCRS[SOURCECRS[PROJCRS[\"DHDN \"\"3\"\"\",BASEGEOGCRS[");
    }
    void wkt() {
        QFETCH(int, dialect);
        QFETCH(QByteArray, start);
        const auto exported = [dialect](const char* definition, bool indented) {
            return projectionModule()->exportWkt(definition, {"DHDN \"3\"", "Bessel 1841", {}}, WktDialect(dialect),
                                                 indented);
        };
        const char* const definition =
            "+proj=tmerc +lat_0=0 +lon_0=9 +k_0=1 +x_0=3500000 +y_0=0 +a=6377397.155 +rf=299.1528128 "
            "+towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7 +units=m";
        const QByteArray text = exported(definition, false);
        QVERIFY2(text.startsWith(start) && !text.contains('\n'), text);
        QVERIFY2(QByteArray(text).replace("Bessel_", "Bessel ").contains("[\"Bessel 1841\",6377397.155,299.1528128"),
                 text);
        // A shapefile's .prj can't hold a shift.
        QCOMPARE(text.contains("418.2") && text.contains("-2.455"), WktDialect(dialect) != WktDialect::Wkt1Esri);
        QVERIFY(exported(definition, true).count('\n') > 10);
        QCOMPARE(exported("+proj=nowhere +a=6377397.155 +rf=299.1528128 +units=m", false), QByteArray());
    }

    void datumName_data() {
        const Rows<QByteArray, QByteArray, QByteArray, QByteArray> row({"datum", "gdal", "esri", "wkt2"});
        row("none", "", "unknown", "D_unknown", "unknown");
        row("registry's", "Deutsches Hauptdreiecksnetz", "Deutsches_Hauptdreiecksnetz", "D_Deutsches_Hauptdreiecksnetz",
            "Deutsches Hauptdreiecksnetz");
        row("ESRI's own name", "European Terrestrial Reference System 1989",
            "European_Terrestrial_Reference_System_1989", "D_ETRS_1989", "European Terrestrial Reference System 1989");
        row("WKT 1's own name", "World Geodetic System 1984", "WGS_1984", "D_WGS_1984", "World Geodetic System 1984");
        row("odd letters", "B\xc3\xa4r's \"Netz\", [1]\\", "B\xc3\xa4r's \"\"Netz\"\", [1]\\",
            "D_B\xc3\xa4r's_\"\"Netz\"\",_[1]\\", "B\xc3\xa4r's \"\"Netz\"\", [1]\\");
        row("ESRI's prefix", "D_Own", "D_Own", "D_Own", "D_Own");
    }
    void datumName() {
        QFETCH(QByteArray, datum);
        QFETCH(QByteArray, gdal);
        QFETCH(QByteArray, esri);
        QFETCH(QByteArray, wkt2);
        const QByteArray expected[] = {gdal, esri, wkt2};
        for (int dialect = 0; dialect < 3; ++dialect) {
            const QByteArray text = projectionModule()->exportWkt(
                "+proj=tmerc +lat_0=0 +lon_0=9 +k_0=1 +x_0=0 +y_0=0 +a=6377397.155 +rf=299.1528128 +units=m",
                {"DATUM[\"x", "Bessel 1841", datum}, WktDialect(dialect), false);
            QVERIFY2(text.contains("[\"DATUM[\"\"x\",") && text.contains("DATUM[\"" + expected[dialect] + "\","), text);
        }
    }
};

ROOM_TEST(GeodesyTest)
#include "GeodesyTest.moc"

#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

#include <algorithm>

namespace {

IEpsgRegistry& registry() {
    return projectionModule()->registry();
}

} // namespace

class EpsgRegistryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void datumOfSystem_data() {
        const Rows<QByteArray, QByteArray, bool> row({"code", "name", "isListed"});
        row("one datum", "31467", "Deutsches Hauptdreiecksnetz", true);
        row("an ensemble", "25832", "European Terrestrial Reference System 1989", true);
        row("counted from Paris", "27572", "Nouvelle Triangulation Francaise", true);
        row("counted from Ferro", "31255", "Militar-Geographische Institut", true);
        row("brackets of its own", "26929", "North American Datum 1983", true);
        row("left open", "2163", "", false);
        row("unknown code", "1", "", false);
    }
    void datumOfSystem() {
        QFETCH(QByteArray, code);
        QFETCH(QByteArray, name);
        QFETCH(bool, isListed);
        QCOMPARE(registry().datumName(code), name);
        const auto& names = registry().datumNames();
        QCOMPARE(std::count(names.begin(), names.end(), name), std::ptrdiff_t(isListed));
    }

    void datumNames() {
        const auto& names = registry().datumNames();
        QVERIFY(names.size() > 400);
        // In alphabetical order, each once.
        QVERIFY(std::adjacent_find(names.begin(), names.end(), [](const QByteArray& left, const QByteArray& right) {
                    return left.toLower() >= right.toLower();
                }) == names.end());
    }

    void shiftsAtPlace_data() {
        const Rows<QByteArray, double, double, QByteArray> row({"datum", "latitude", "longitude", "shift"});
        row("Germany", "Deutsches Hauptdreiecksnetz", 50.0, 9.0, "DHDN to WGS 84 (2)");
        row("a part of its area", "Pulkovo 1942(83)", 52.5, 13.4, "Pulkovo 1942(83) to WGS 84 (1)");
        row("another part", "Pulkovo 1942(83)", 47.0, 19.0, "Pulkovo 1942(83) to WGS 84 (3)");
        row("an ensemble", "European Terrestrial Reference System 1989", 50.0, 9.0, "ETRS89 to WGS 84 (1)");
        row("Fiji, across the antimeridian", "Fiji 1956", -17.0, 179.0, "Fiji 1956 to WGS 84 (1)");
        row("not used there", "Deutsches Hauptdreiecksnetz", -50.0, 9.0, "");
        row("no datum of the registry", "DHDN", 50.0, 9.0, "");
    }
    void shiftsAtPlace() {
        QFETCH(QByteArray, datum);
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(QByteArray, shift);
        const auto shifts = registry().datumShiftsAt(datum, latitude, longitude);
        QCOMPARE(int(shifts.size()), shift.isEmpty() ? 0 : 1);
        QCOMPARE(shifts.empty() ? QByteArray() : shifts.front().name, shift);
    }

    void definition_data() {
        const Rows<QByteArray, QByteArray, bool, double> row({"code", "definition", "northingFirst", "unit"});
        row("in metres", "27700",
            "+proj=tmerc +lat_0=49 +lon_0=-2 +k_0=0.9996012717 +x_0=400000 +y_0=-100000 "
            "+a=6377563.396 +rf=299.3249646 +units=m +no_defs",
            false, 1.0);
        row("northing first", "31467",
            "+proj=tmerc +lat_0=0 +lon_0=9 +k_0=1 +x_0=3500000 +y_0=0 "
            "+a=6377397.155 +rf=299.1528128 +units=m +no_defs",
            true, 1.0);
        row("in feet", "2225",
            "+proj=lcc +lat_1=41.6666666666667 +lat_2=40 +lat_0=39.3333333333333 +lon_0=-122 +k_0=1 "
            "+x_0=2000000.0001016 +y_0=500000.0001016 +a=6378137 +rf=298.257222101 +units=m +no_defs",
            false, 1200 / 3937.0);
        row("from Paris, in grads", "27572",
            "+proj=lcc +lat_1=46.8 +lat_0=46.8 +lon_0=2.33722917 +k_0=0.99987742 "
            "+x_0=600000 +y_0=2200000 +a=6378249.2 +rf=293.466021293627 +units=m +no_defs",
            false, 1.0);
        row("the web's sphere", "3857",
            "+proj=merc +lon_0=0 +k_0=1 +x_0=0 +y_0=0 +a=6378137 +b=6378137 +units=m +no_defs", false, 1.0);
        const QByteArray ups = "+proj=stere +lat_0=90 +lon_0=0 +k_0=0.994 +x_0=2000000 +y_0=2000000 +a=6378137 "
                               "+rf=298.257223563 +units=m +no_defs";
        row("north pole, easting first", "5041", ups, false, 1.0);
        row("north pole, northing first", "32661", ups, true, 1.0);
        const QByteArray ross = "+proj=stere +lat_0=-90 +lon_0=180 +k_0=0.994 +x_0=5000000 +y_0=1000000 +a=6378137 "
                                "+rf=298.257222101 +units=m +no_defs";
        row("south pole, northing first", "5482", ross, true, 1.0);
        row("south pole, easting first", "3031",
            QByteArray("+proj=stere +lat_0=-90 +lon_0=0 +lat_ts=-71 +k_0=1 +x_0=0 +y_0=0 +a=6378137 +rf=298.257223563 "
                       "+units=m +no_defs"),
            false, 1.0);
        row("to the west and south", "2065", "", false, 1.0);
        row("another method", "3035", "", true, 1.0);
        row("unknown code", "1", "", false, 0.0);
    }
    void definition() {
        QFETCH(QByteArray, code);
        QFETCH(QByteArray, definition);
        QFETCH(bool, northingFirst);
        QFETCH(double, unit);
        const RegistryDefinition& read = registry().definition(code);
        QCOMPARE(read.definition, definition);
        QCOMPARE(read.datum, registry().datumName(code));
        QCOMPARE(read.northingFirst, northingFirst);
        QCOMPARE(read.unit, unit);
    }

    void withheld_data() {
        const Rows<QByteArray, QByteArray> row({"code", "definition"});
        row("another method", "3035",
            "+proj=laea +lat_0=52 +lon_0=10 +x_0=4321000 +y_0=3210000 +a=6378137 +b=6356752.314140356 +units=m "
            "+no_defs");
        row("to the south and west, from Ferro", "2065",
            "+proj=krovak +lat_0=49.5 +lon_0=42.5 +alpha=30.2881397527778 +k=0.9999 +x_0=0 +y_0=0 "
            "+pm=ferro +axis=wsu +a=6377397.155 +b=6356078.962818189 +units=m +no_defs");
        row("unknown code", "1", "");
    }
    void withheld() {
        QFETCH(QByteArray, code);
        QTEST(registry().withheldDefinition(code), "definition");
    }

    void edition() { QVERIFY(registry().edition().startsWith("EPSG v")); }
};

ROOM_TEST(EpsgRegistryTest)
#include "EpsgRegistryTest.moc"

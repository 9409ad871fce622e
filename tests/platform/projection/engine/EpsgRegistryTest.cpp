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

    void edition() { QVERIFY(registry().edition().startsWith("EPSG v")); }
};

ROOM_TEST(EpsgRegistryTest)
#include "EpsgRegistryTest.moc"

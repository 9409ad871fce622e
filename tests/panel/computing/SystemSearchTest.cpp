#include "panel/computing/SystemSearch.h"

#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RecordingCatalogue.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"
#include "support/TextTable.h"

#include <QTest>

#include <cmath>

namespace {

QVector<KnownCoordinates> placesOf(const QByteArray& text) {
    QVector<KnownCoordinates> places;
    for (const QByteArray& each : text.split(',')) {
        const QByteArrayList numbers = each.simplified().split(' ');
        places.append({numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble()});
    }
    return places;
}

QVector<FoundSystem> found(SystemSearch& search, const QVector<KnownCoordinates>& places, bool deprecatedToo = false) {
    search.start(places, deprecatedToo);
    while (search.work(1000)) {
    }
    return search.found();
}

/// By its code, or its name in the catalogue.
int rowOf(const QVector<FoundSystem>& systems, const QByteArray& key) {
    const auto isIt = [&key](const FoundSystem& each) {
        return (each.registered ? each.registered->code : each.name) == key;
    };
    return int(std::find_if(systems.begin(), systems.end(), isIt) - systems.begin());
}

QByteArray textOf(const CoordinateReading& reading) {
    return QByteArray(reading.northingFirst ? "N " : "") + QByteArray::number(reading.unit, 'g', 10) + ' ' +
           QByteArray::number(reading.zoneDigits) + (reading.shifted ? " shifted" : "");
}

} // namespace

class SystemSearchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void registered_data() {
        const Rows<QByteArrayList> row({"columns"});
        for (const QByteArrayList& columns : textTable("searches.txt"))
            row(columns[0], columns);
    }
    void registered() {
        QFETCH(QByteArrayList, columns);
        SystemSearch search(*projectionModule(), nullptr);
        const QVector<FoundSystem> systems = found(search, placesOf(columns[1]));
        const int row = rowOf(systems, columns[2]);
        QCOMPARE(row == systems.size(), columns[3] == "(missing)");
        if (row == systems.size())
            return;
        const CoordinateFit& fit = systems[row].fit;
        const QList<QByteArray> distance = columns[4].split('\xb1');
        QVERIFY2(std::abs(fit.distance - distance[0].chopped(1).toDouble()) <= distance[1].toDouble(),
                 QByteArray::number(fit.distance));
        QCOMPARE(textOf(fit.reading), columns[5]);
        if (columns[3] != "-")
            QCOMPARE(row + 1, columns[3].toInt());
    }

    /// By one place another system could be it as well; by three that a datum's shift has moved alike, it is the one.
    void severalPlacesNarrowItDown() {
        IProjectionModule& module = *projectionModule();
        const auto projection = [&module](const char* code) {
            return module.createSystem(module.registry().definition(code).definition);
        };
        const auto system = projection("23032"), other = projection("32632");
        const double moved = other->toGeographic(*system->toGrid({44.0, 9.5, 0.0}), 0.0)->latitude - 44.0;
        QVector<KnownCoordinates> places;
        for (const double latitude : {44.0, 46.0, 49.0}) {
            const GridPoint grid = *system->toGrid({latitude, 9.5, 0.0});
            places.append({latitude + moved, 9.5, grid.easting, grid.northing});
        }
        SystemSearch search(module, nullptr);
        auto systems = found(search, places.mid(0, 1));
        QVERIFY(rowOf(systems, "32632") < rowOf(systems, "23032"));
        systems = found(search, places);
        QVERIFY(rowOf(systems, "23032") < rowOf(systems, "32632"));
        QVERIFY(systems[0].fit.distance > 50.0 && systems[0].fit.spread < 1.0);
    }

    void catalogueIsSearched() {
        RecordingCatalogue catalogue;
        catalogue.addTestGroup("Sites", {"without projection"});
        const auto add = [&catalogue](const char* name, const char* key, const char* value) {
            const DictionaryGuard record = SampleRecord::named("British grid").with(key, value).record();
            catalogue.group("Sites")->systems.append(name, record.get());
        };
        add("Mill", "false_east", "100000");
        add("Old mill", "_7type", "0");
        SystemSearch search(*projectionModule(), &catalogue);
        // Caister Water Tower on ETRS89
        auto systems = found(search, placesOf("52.6580078333 1.7160739722 351409.903 313177.270"));
        QCOMPARE(systems[0].group + '/' + systems[0].name, QByteArray("Sites/Mill"));
        QVERIFY(systems[0].fit.distance < 5.0);
        QCOMPARE(textOf(systems[0].fit.reading), QByteArray("1 0 shifted"));
        systems = found(search, placesOf("52.657570305556 1.717921583333 651409.903 313177.270"));
        QCOMPARE(rowOf(systems, "27700"), 0);
        QVERIFY(!systems[0].isSame && systems[rowOf(systems, "Old mill")].isSame);
        QCOMPARE(systems[rowOf(systems, "Old mill")].group, QByteArray("Sites"));
    }

    /// What has not been said of one search does not come with the next.
    void aSearchGivesWayToTheNext() {
        SystemSearch search(*projectionModule(), nullptr);
        const auto poland = placesOf("50.5 21.0 4588600 5481000");
        QVERIFY(rowOf(found(search, poland, true), "2171") < search.found().size());
        search.start(poland, false);
        QVERIFY(search.work(0) && search.found().isEmpty());
        QCOMPARE(found(search, placesOf("50.1 -5.0 9000000 9000000")).size(), 20);
        QVERIFY(!search.work(0));
        QVERIFY(found(search, {}).isEmpty());
    }
};

ROOM_TEST(SystemSearchTest)
#include "SystemSearchTest.moc"

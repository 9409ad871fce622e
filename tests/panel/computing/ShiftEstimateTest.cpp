#include "panel/computing/ShiftEstimate.h"

#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

class ShiftEstimateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Caister Water Tower: 52 39 27.2531 N 1 43 4.5177 E on OSGB36 and 52 39 28.8282 N 1 42 57.8663 E on ETRS89 (the
    /// Ordnance Survey's guide to coordinate systems in Great Britain) are 134 m apart.
    void moves_data() {
        const Rows<QByteArray, QByteArray, double, bool, double> row(
            {"system", "datum", "latitude", "isKnown", "metres"});
        const QByteArray british = "British grid";
        row("OSGB36 at Caister", british, "Ordnance Survey of Great Britain 1936", 52.6575703, true, 134.0);
        row("the same as WGS 84", "UTM", "European Terrestrial Reference System 1989", 52.6575703, true, 0.0);
        row("far from where it is used", british, "Ordnance Survey of Great Britain 1936", -33.0, false, 0.0);
        row("no datum of the registry", british, "OSGB36 of our own", 52.6575703, false, 0.0);
        row("no datum", british, "", 52.6575703, false, 0.0);
    }

    void moves() {
        QFETCH(QByteArray, system);
        QFETCH(QByteArray, datum);
        QFETCH(double, latitude);
        QFETCH(bool, isKnown);
        QFETCH(double, metres);
        const DictionaryGuard record = SampleRecord::named(system).with("datum_name", datum).record();
        const auto estimate = ShiftEstimate::at(*record, *projectionModule(), {latitude, 1.7179216, 0.0});
        QCOMPARE(estimate.has_value(), isKnown);
        if (!estimate)
            return;
        // Three parameters for the whole country are good to some twenty metres, seven to five.
        QVERIFY(estimate->smallest <= metres + 5.0 && estimate->largest >= metres - 5.0);
        QVERIFY(estimate->smallest >= metres - 25.0 && estimate->largest <= metres + 25.0);
    }
};

ROOM_TEST(ShiftEstimateTest)
#include "ShiftEstimateTest.moc"

#include "panel/computing/CheckPoint.h"

#include "panel/computing/DistortionLines.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

#include <cmath>

using Datum = CheckPoint::Datum;
Q_DECLARE_METATYPE(Datum)

class CheckPointTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointGoesThereAndBack_data() {
        const Rows<SampleRecord, Datum> row({"sample", "datum"});
        for (const SampleRecord& sample : SampleRecord::all())
            row(sample.title, sample, Datum::Own);
        row("British grid on WGS 84", SampleRecord::named("British grid"), Datum::Wgs84);
    }

    void pointGoesThereAndBack() {
        QFETCH(SampleRecord, sample);
        QFETCH(Datum, datum);
        const auto system = sample.system();
        const GridPoint origin = DistortionLines::origin(*sample.record());
        const auto first =
            CheckPoint::fromGrid(*system, {origin.easting + 40000.0, origin.northing - 30000.0}, 250.0, datum);
        QVERIFY(first);
        const auto second = CheckPoint::fromGeographic(*system, *first->on(datum), datum);
        QVERIFY(second);
        QVERIFY(std::abs(first->on(datum)->height - 250.0) < 1e-4);
        QVERIFY(std::hypot(second->grid.easting - first->grid.easting, second->grid.northing - first->grid.northing) <
                2e-4);
        QVERIFY(first->closingError < 1e-6 && second->closingError < (datum == Datum::Wgs84 ? 2e-4 : 1e-6));
        QVERIFY(!CheckPoint::fromGeographic(*system, {91.0, 0.0, 0.0}, datum));
    }

    /// Without a shift, nothing is known of the other datum, and nothing comes from it.
    void otherDatum() {
        const GeographicPoint place{52.5, 0.5, 100.0};
        const auto british = SampleRecord::named("British grid").system();
        const auto point = CheckPoint::fromGeographic(*british, place, Datum::Own);
        const auto shifted = british->toWgs84(place);
        QVERIFY(point && shifted && point->wgs84);
        QCOMPARE(point->wgs84->latitude, shifted->latitude);
        QCOMPARE(point->wgs84->height, shifted->height);
        const auto utm = SampleRecord::named("UTM").system();
        QVERIFY(!CheckPoint::fromGeographic(*utm, place, Datum::Own)->wgs84);
        QVERIFY(!CheckPoint::fromGeographic(*utm, place, Datum::Wgs84));
        QVERIFY(!CheckPoint::fromGrid(*utm, {500000.0, 0.0}, 0.0, Datum::Wgs84));
    }

    /// Caister Water Tower (Ordnance Survey, A Guide to Coordinate Systems in Great Britain, annexe C), 250 m up:
    /// k = 1.0003773154 and the convergence by Krueger's series to the fourth power of n, and
    /// R = sqrt(M N) = 6383169.680 m, all computed apart from PROJ with 40 digits.
    void combinedFactor() {
        const auto system = SampleRecord::named("British grid").system();
        const auto point = CheckPoint::fromGrid(*system, {651409.903, 313177.270}, 250.0, Datum::Own);
        QVERIFY(point);
        QVERIFY(std::abs(point->own.latitude - (52.0 + 39.0 / 60.0 + 27.2531 / 3600.0)) < 1e-8);
        QVERIFY(std::abs(point->scale.convergence - 2.9573766869) < 1e-7);
        QVERIFY(std::abs(point->combinedFactor() - 1.0003381367) < 1e-9);
        // The height on WGS 84 is that of the other ellipsoid.
        const auto other = CheckPoint::fromGrid(*system, {651409.903, 313177.270}, 250.0, Datum::Wgs84);
        QVERIFY(other->combinedFactor() > point->combinedFactor() + 1e-6);
    }
};

ROOM_TEST(CheckPointTest)
#include "CheckPointTest.moc"

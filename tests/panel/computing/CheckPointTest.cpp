#include "panel/computing/CheckPoint.h"

#include "catalogue/Angle.h"
#include "catalogue/CoordParamKey.h"
#include "panel/computing/DistortionLines.h"
#include "support/PointTypes.h"
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
        const SampleRecord& british = SampleRecord::named("British grid");
        row("British grid on WGS 84", british, Datum::Wgs84);
        row("30 arc-seconds",
            british.with(CoordParamKey::shiftRx, "0.00833333").with(CoordParamKey::shiftRz, "-0.00833333"),
            Datum::Wgs84);
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
        QVERIFY(std::abs(first->on(datum)->height - 250.0) < 1e-8);
        QVERIFY(std::hypot(second->grid.easting - first->grid.easting, second->grid.northing - first->grid.northing) <
                1e-6);
        QVERIFY(first->closingError < 1e-6 && second->closingError < 1e-6);
        const bool isShifted = sample.title == "British grid";
        QVERIFY(first->shiftClosingError.has_value() == isShifted && first->shiftClosingError.value_or(0.0) < 1e-6);
        QVERIFY(!CheckPoint::fromGeographic(*system, {91.0, 0.0, 0.0}, datum));
    }

    /// A shift into the Earth's middle does not come back; that is not the projection's fault.
    void shiftThatDoesNotClose() {
        const SampleRecord sample = SampleRecord::named("British grid")
                                        .with(CoordParamKey::shiftDx, "-3890000")
                                        .with(CoordParamKey::shiftDz, "-5037000");
        const auto system = sample.system();
        const auto point = CheckPoint::fromGeographic(*system, {52.5, 0.0, 0.0}, Datum::Own);
        QVERIFY(point && point->closingError < 1e-6 && *point->shiftClosingError > 1e-3);
    }

    void bearingError_data() {
        const Rows<QByteArray, GeographicPoint> row({"title", "place"});
        row("east", "Cassini", {10.5, -60.4, 0.0});
        row("west, farther", "Cassini", {11.5, -64.0, 0.0});
        row("on the meridian", "Cassini", {11.0, -61.3333333333333, 0.0});
        row("conformal", "Lambert one parallel", {19.0, -75.0, 0.0});
    }

    /// What lines of 1 km in all directions show.
    void bearingError() {
        QFETCH(QByteArray, title);
        QFETCH(GeographicPoint, place);
        const auto system = SampleRecord::named(title).system();
        const auto point = CheckPoint::fromGeographic(*system, place, Datum::Own);
        QVERIFY(point && point->scale.isConformal() == (title != "Cassini" || place.longitude == -61.3333333333333));
        const double e2 = 0.00669438, a = 6378137.0;
        const double w = std::sqrt(1.0 - e2 * std::pow(std::sin(Angle::toRadians(place.latitude)), 2));
        const double north = Angle::toDegrees(w * w * w / (a * (1.0 - e2)));
        const double east = Angle::toDegrees(w / (a * std::cos(Angle::toRadians(place.latitude))));
        double largest = 0.0;
        for (int azimuth = 0; azimuth < 360; ++azimuth) {
            const double angle = Angle::toRadians(azimuth);
            const auto end = [&](double metres) {
                return *system->toGrid({place.latitude + metres * std::cos(angle) * north,
                                        place.longitude + metres * std::sin(angle) * east, 0.0});
            };
            const GridPoint from = end(-50.0), to = end(50.0);
            const double bearing = Angle::toDegrees(std::atan2(to.easting - from.easting, to.northing - from.northing));
            largest = std::max(largest, std::abs(std::remainder(bearing + point->scale.convergence - azimuth, 360.0)));
        }
        QVERIFY2(std::abs(largest - point->bearingError()) < 1e-5, qPrintable(QString::number(largest)));
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
        QVERIFY(std::abs(point->combinedFactor(point->scale.mean) - 1.0003381367) < 1e-9);
        // The height on WGS 84 is that of the other ellipsoid.
        const auto other = CheckPoint::fromGrid(*system, {651409.903, 313177.270}, 250.0, Datum::Wgs84);
        QVERIFY(other->combinedFactor(1.0) > point->combinedFactor(1.0) + 1e-6);
    }
};

ROOM_TEST(CheckPointTest)
#include "CheckPointTest.moc"

#include "platform/projection/engine/plane/ObliqueMercator.h"

#include "platform/projection/engine/plane/SineCosine.h"
#include "support/PointTypes.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

#include <cmath>

namespace {

constexpr double radius = 6371000.0;

ObliqueMercator::Parameters onSphere(double latitude, double azimuth) {
    return {radius, 0.0, latitude, 10.0, azimuth, azimuth, 1.0, 1000.0, 2000.0};
}

} // namespace

class ObliqueMercatorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// A right angle and its multiples leave no rounding, for which 6e-17 times the Earth's circumference would stand.
    void sineCosine() {
        for (int quarter = -4; quarter <= 4; ++quarter) {
            const SineCosine angle(quarter * 90.0);
            QCOMPARE(angle.cosine, std::round(std::cos(quarter * std::acos(0.0))));
            QCOMPARE(angle.sine, std::round(std::sin(quarter * std::acos(0.0))));
        }
        for (double degrees = -719.5; degrees < 720.0; degrees += 7.3) {
            const SineCosine angle(degrees);
            const double radians = degrees * std::acos(-1.0) / 180.0;
            QVERIFY(std::abs(angle.sine - std::sin(radians)) < 5e-15 &&
                    std::abs(angle.cosine - std::cos(radians)) < 5e-15);
        }
    }

    void throughPlaces_data() {
        const Rows<GeographicPoint, GeographicPoint, double, double, double> row(
            {"first", "second", "latitude", "longitude", "azimuth"});
        row("meridian", {45, 7, 0}, {47, 7, 0}, 46.0, 7.0, 0.0);
        row("southwards", {47, 7, 0}, {45, 7, 0}, -10.0, 7.0, 0.0);
        row("from the south", {-30, -20, 0}, {30, 0, 0}, 0.0, -10.0, 16.739577527387137);
        row("across 180", {-1, 179, 0}, {1, -179, 0}, 0.0, 180.0, 44.99563645534485);
    }

    void throughPlaces() {
        QFETCH(GeographicPoint, first);
        QFETCH(GeographicPoint, second);
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(double, azimuth);
        const auto found = ObliqueMercator::throughPlaces(onSphere(latitude, 0.0), first, second);
        QVERIFY(found);
        QVERIFY2(std::abs(found->azimuth - azimuth) < 1e-12, qPrintable(QString::number(found->azimuth, 'g', 16)));
        QVERIFY2(std::abs(std::remainder(found->longitudeOfCentre - longitude, 360.0)) < 1e-12,
                 qPrintable(QString::number(found->longitudeOfCentre, 'g', 16)));
        QCOMPARE(found->gridAngle, found->azimuth);
    }

    /// A line that stays south of the centre's latitude has no centre.
    void centreOutOfReach() { QVERIFY(!ObliqueMercator::throughPlaces(onSphere(60.0, 0.0), {10, 0, 0}, {11, 20, 0})); }

    void beyondTheMap() {
        const ObliqueMercator projection(onSphere(40.0, 30.0));
        QVERIFY(!projection.toGeographic({0.0, 4.0 * radius}, 0.0));
    }
};

ROOM_TEST(ObliqueMercatorTest)
#include "ObliqueMercatorTest.moc"

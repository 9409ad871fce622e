#include "panel/computing/DesignArea.h"

#include "support/PointTypes.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

#include <cmath>

namespace {

constexpr double degree = 111195.08; ///< metres on the mean sphere

/// Metres on the mean sphere, by the haversine formula.
double distance(const GeographicPoint& from, const GeographicPoint& to) {
    const double turn = std::acos(-1.0) / 180.0;
    const double north = std::sin((to.latitude - from.latitude) * turn / 2.0);
    const double east = std::sin((to.longitude - from.longitude) * turn / 2.0);
    const double half = north * north + std::cos(from.latitude * turn) * std::cos(to.latitude * turn) * east * east;
    return 2.0 * std::asin(std::sqrt(half)) / turn * degree;
}

} // namespace

class DesignAreaTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void square_data() {
        const Rows<GeographicPoint, double> row({"centre", "side"});
        row("town", {50.0, 16.2, 0.0}, 2000.0);
        row("country", {-30.0, 140.0, 0.0}, 500000.0);
        row("antimeridian", {-18.0, 179.9, 0.0}, 100000.0);
        row("pole", {90.0, 0.0, 0.0}, 1000000.0);
        row("continent", {10.0, -60.0, 0.0}, 5000000.0);
    }

    /// The middle of each side lies half a side from the centre, due north, east, south and west; corners by sqrt(2).
    void square() {
        QFETCH(GeographicPoint, centre);
        QFETCH(double, side);
        const auto nodes = DesignArea(centre, side).nodes(3);
        QCOMPARE(nodes.size(), 9);
        for (const int middle : {1, 3, 5, 7})
            QVERIFY(std::abs(distance(centre, nodes[middle]) / side - 0.5) < 1e-4);
        for (const int corner : {0, 2, 6, 8})
            QVERIFY(std::abs(distance(centre, nodes[corner]) / side - std::sqrt(0.5)) < 1e-4);
        if (centre.latitude < 90.0) {
            QVERIFY(std::abs(nodes[7].latitude - centre.latitude - side / 2.0 / degree) < 1e-4);
            QVERIFY(std::remainder(nodes[5].longitude - centre.longitude, 360.0) > 0.0);
            QVERIFY(std::abs(nodes[4].longitude - centre.longitude) < 1e-9);
        }
        for (const GeographicPoint& place : DesignArea(centre, side).outline()) {
            QVERIFY(distance(centre, place) > side * 0.4999 && distance(centre, place) < side * 0.7072);
            QVERIFY(std::abs(place.longitude) <= 180.0);
        }
    }
};

ROOM_TEST(DesignAreaTest)
#include "DesignAreaTest.moc"

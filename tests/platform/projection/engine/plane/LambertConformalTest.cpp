#include "platform/projection/engine/plane/LambertConformal.h"

#include "support/RoomTest.h"

#include <QTest>

namespace {

LambertConformal::Parameters parameters(double origin, double parallel) {
    return {6378137.0, 0.00669438, origin, 10.0, parallel, parallel, 1.0, 0.0, 0.0};
}

} // namespace

class LambertConformalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Rolled out, a cone leaves a gap, its other pole lies at infinity, and the apex is a point.
    void endsOfTheCone() {
        for (const double side : {1.0, -1.0}) {
            const LambertConformal cone(parameters(45.0 * side, 40.0 * side));
            const auto apex = cone.toGrid({90.0 * side, 77.0, 0.0});
            QVERIFY(apex && qAbs(apex->easting) < 1e-6);
            QCOMPARE(cone.toGeographic({0.0, apex->northing}, 0.0)->latitude, 90.0 * side);
            QVERIFY(!cone.toGeographic({0.0, apex->northing + side * 1e6}, 0.0));
            QVERIFY(cone.toGeographic({0.0, apex->northing - side * 1e6}, 0.0));
            QVERIFY(!cone.toGrid({-90.0 * side, 10.0, 0.0}) && !cone.localScale({-90.0 * side, 10.0, 0.0}));
        }
    }

    void originAtInfinity() { QVERIFY(!LambertConformal(parameters(-90.0, 40.0)).toGrid({40.0, 10.0, 0.0})); }
};

ROOM_TEST(LambertConformalTest)
#include "LambertConformalTest.moc"

#include "panel/computing/AreaValues.h"

#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

#include <cmath>

class AreaValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void contourLevels_data() {
        const Rows<double, double> row({"factor", "height"});
        // UTM at 400 km from the meridian reaches about 1600 ppm from -400; a wider or higher area changes range and
        // sign.
        for (const double factor : {0.9996, 1.0, 1.01})
            for (const double height : {0.0, 3000.0})
                row("factor " + QByteArray::number(factor) + " at " + QByteArray::number(height), factor, height);
    }

    void contourLevels() {
        QFETCH(double, factor);
        QFETCH(double, height);
        const auto system = SampleRecord::named("UTM").with("factor", QByteArray::number(factor)).system();
        for (const double width : {2e3, 5e4, 5e5, 2e6}) {
            const AreaValues grid =
                AreaValues::distortion(*system, {{500000.0, 5000000.0}, width, width / 2.0}, 31, 17, height);
            const auto levels = grid.contourLevels(8);
            QVERIFY(levels.size() >= 2 && levels.size() <= 9);
            QVERIFY(levels.first() >= grid.smallest() && levels.last() <= grid.largest());
            const double step = levels[1] - levels[0];
            const double power = std::pow(10.0, std::floor(std::log10(step) + 1e-6));
            const double leading = std::round(step / power);
            QVERIFY2(leading == 1.0 || leading == 2.0 || leading == 5.0, qPrintable(QString::number(step)));
            QVERIFY(std::abs(std::remainder(levels[0], leading * power)) < 1e-3 * step);
        }
    }

    void gridOfDistortion() {
        const auto system = SampleRecord::named("UTM").system();
        const GridArea area{{500000.0, 5000000.0}, 400000.0, 200000.0};
        const auto nodes = AreaValues::nodes(area, 5, 3);
        QCOMPARE(nodes.size(), 15);
        QCOMPARE(nodes.first().easting, 300000.0);
        QCOMPARE(nodes.first().northing, 4900000.0);
        QCOMPARE(nodes[1].easting, 400000.0);
        QCOMPARE(nodes.last().northing, 5100000.0);
        const AreaValues grid = AreaValues::distortion(*system, area, 5, 3, 0.0);
        QVERIFY(!grid.isEmpty());
        QVERIFY(std::abs(grid.values()[2] + 400.0) < 0.01); // on the central meridian
        // Flinders Peak (GDA Technical Manual: scale factor 1.00023056), in the corner; at 500 m, R = 6372887.710 m.
        const auto mga = SampleRecord::named("UTM").with("org_lon", "147").with("false_north", "10000000").system();
        const GridArea corner{{273741.297 + 50.0, 5796489.777 + 50.0}, 100.0, 100.0};
        QVERIFY(std::abs(AreaValues::distortion(*mga, corner, 2, 2, 0.0).values()[0] - 230.56) < 0.005);
        QVERIFY(std::abs(AreaValues::distortion(*mga, corner, 2, 2, 500.0).values()[0] - 152.0907) < 0.005);
        QCOMPARE(grid.smallest(), *std::min_element(grid.values().begin(), grid.values().end()));
        // Where the projection ends, there is no value, and what there is counts.
        const AreaValues nowhere = AreaValues::distortion(*system, {{1e9, 1e9}, 1e3, 1e3}, 3, 3, 0.0);
        QVERIFY(nowhere.isEmpty() && nowhere.contourLevels(8).isEmpty());
        QVERIFY(
            AreaValues::distortion(*system, {{500000.0, 5000000.0}, 0.0, 0.0}, 2, 2, 0.0).contourLevels(8).isEmpty());
    }
};

ROOM_TEST(AreaValuesTest)
#include "AreaValuesTest.moc"

#include "panel/computing/SystemDifference.h"

#include "panel/computing/AreaValues.h"
#include "panel/computing/ShownSystem.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"
#include "support/TextTable.h"

#include <QTest>

#include <cmath>

class SystemDifferenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void known_data() { textRows("differences.txt"); }

    void known() {
        const auto [title, first, second, same, at, expected] = textRow<6>();
        const auto system = ShownSystem::of(*PanelRecords::of(first), nullptr);
        const auto other = ShownSystem::of(*PanelRecords::of(second), nullptr);
        const SystemDifference difference(*system->projection(), *other->projection(),
                                          same == "wgs84" ? SystemDifference::Sameness::Wgs84
                                                          : SystemDifference::Sameness::LatitudeLongitude);
        const GeographicPoint place{at.split(',')[0].toDouble(), at.split(',')[1].toDouble(), 0.0};
        const auto offset = difference.at(place);
        QCOMPARE(offset.has_value(), expected != "none");
        if (!offset)
            return;
        const QByteArrayList numbers = expected.split(',');
        const GridOffset wrong = offset->apartFrom({numbers[0].toDouble(), numbers[1].toDouble()});
        QVERIFY2(wrong.length() <= numbers[2].toDouble(),
                 qPrintable(QString("%1 %2").arg(offset->easting, 0, 'f', 6).arg(offset->northing, 0, 'f', 6)));
        // The same point of the grid, and one that no place has.
        const QVector<double> lengths =
            difference.lengths({*system->projection()->toGrid(place), {1e9, 1e9}}, {offset->easting, 0.0});
        QVERIFY(std::abs(lengths[0] - std::abs(offset->northing)) < 1e-5 && std::isnan(lengths[1]));
    }

    /// On the meridian the scale factor makes a difference of 0.0004 of the arc: 442.31 m at 10 degrees and as much
    /// south of the equator (arc 1105854.833 m on GRS 80). A place without a difference does not count.
    void over() {
        const auto system = SampleRecord::named("UTM").with("false_east", "7").system();
        const auto other = SampleRecord::named("UTM").with("factor", "1").with("false_east", "0").system();
        const SystemDifference difference(*system, *other, SystemDifference::Sameness::LatitudeLongitude);
        const auto summary = difference.over({{10, 15, 0}, {-10, 15, 0}, {0, 105, 0}, {0, 15, 0}});
        QVERIFY(summary && summary->mean.apartFrom({7.0, 0.0}).length() < 1e-6);
        QVERIFY(summary->largest.easting < 1e-6 && std::abs(summary->largest.northing - 442.342) < 0.01);
        QVERIFY(std::abs(summary->largestLength - 442.342) < 0.01);
        QVERIFY(!difference.over({{0, 105, 0}}));
    }
};

ROOM_TEST(SystemDifferenceTest)
#include "SystemDifferenceTest.moc"

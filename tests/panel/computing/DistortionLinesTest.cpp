#include "panel/computing/DistortionLines.h"

#include "catalogue/CoordParamKey.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

#include <cmath>

class DistortionLinesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesAreWhereTheyBelong_data() {
        // middleLatitude: of the parallels
        const Rows<bool, int, bool, double> row({"meridian", "parallels", "trueScale", "middleLatitude"});
        row("UTM", true, 0, false, 0.0);
        row("Mercator with parallel", true, 1, true, 42.0);
        row("Polar with parallel", true, 1, true, -71.0);
        row("Polar with scale", true, 0, false, 0.0);
        row("Stereographic", true, 0, false, 0.0);
        row("Lambert one parallel", true, 1, false, 18.0);
        row("Lambert two parallels", true, 2, true, 29.333333333333333);
        row("Oblique Mercator", false, 0, false, 0.0);
        row("Oblique Mercator two points", false, 0, false, 0.0);
    }

    void linesAreWhereTheyBelong() {
        QFETCH(bool, meridian);
        QFETCH(int, parallels);
        QFETCH(bool, trueScale);
        QFETCH(double, middleLatitude);
        const QByteArray title = QTest::currentDataTag();
        const SampleRecord& sample = SampleRecord::named(title);
        const DictionaryGuard record = sample.record();
        const auto system = sample.system();
        const auto middle = DistortionLines::middleOfParallels(*record, *system);
        QCOMPARE(middle.has_value(), parallels > 0);
        QVERIFY(!middle || std::abs(system->toGeographic(*middle, 0.0)->latitude - middleLatitude) < 1e-6);
        const GridPoint centre = middle ? *middle : DistortionLines::origin(*record);
        const double width = title == "Polar with parallel" ? 5e6 : 1e6;
        const DistortionLines lines(*record, *system, {centre, width, width});
        QCOMPARE(!lines.centralMeridian().empty(), meridian);
        QCOMPARE(int(lines.standardParallels().size()), parallels);
        for (const GridPoint& point : lines.centralMeridian())
            QVERIFY(std::abs(point.easting - DistortionLines::origin(*record).easting) < 1e-3);
        for (const auto& line : lines.standardParallels()) {
            double ppm = 1e9;
            system->linearDistortion(&line[line.size() / 2], 1, 0.0, &ppm);
            QVERIFY2(std::abs(ppm - (trueScale ? 0.0 : -100.0)) < 0.01, qPrintable(QString::number(ppm)));
        }
        const DistortionLines elsewhere(*record, *system, {{centre.easting + 4e6, centre.northing}, 1e5, 1e5});
        QVERIFY(elsewhere.centralMeridian().empty());
    }
};

ROOM_TEST(DistortionLinesTest)
#include "DistortionLinesTest.moc"

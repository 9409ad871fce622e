#include "panel/computing/PointTable.h"

#include "panel/computing/DuplicateNames.h"
#include "panel/computing/PointLayout.h"
#include "panel/computing/PointReader.h"
#include "panel/computing/PointStatistics.h"
#include "panel/computing/PointWriter.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

#include <cmath>

using Datum = CheckPoint::Datum;

namespace {

PointTable read(const QByteArray& text) {
    PointTable table;
    PointReader reader(PointLayout::guess(text), 1.0, table);
    reader.add(text);
    reader.finish();
    return table;
}

QByteArray written(const PointTable& table, PointWriter::Digits digits, double metresPerUnit = 1.0) {
    const PointWriter writer(table, ',', digits, metresPerUnit);
    std::string text = writer.heading().toStdString();
    for (std::size_t row = 0; row < table.size(); ++row)
        writer.write(row, text);
    return QByteArray::fromStdString(text);
}

PointTable joined(const PointTable& first, const PointTable& second) {
    PointTable both;
    for (std::size_t part = 0; both.join(first, second, part); ++part) {
    }
    return both;
}

bool isNear(double left, double right, double tolerance) {
    return std::abs(left - right) <= tolerance;
}

} // namespace

class PointTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// As one point at a time is computed, on both datums; Caister Water Tower as the Ordnance Survey publishes it.
    void computes() {
        const auto system = SampleRecord::named("British grid").system();
        PointTable table = read("name,lat,lon,h,e,n\n"
                                "place,52.65757,1.71792,25,,\n"
                                "grid,,,25,651409.903,313177.270\n"
                                "both,52 39 27.2531,1 43 4.5177,,651409.903,313177.280\n"
                                "pole,-90,100,0,,\n");
        for (const Datum datum : {Datum::Own, Datum::Wgs84}) {
            table.compute(0, table.size(), system.get(), datum);
            const auto place = CheckPoint::fromGeographic(*system, {52.65757, 1.71792, 25.0}, datum);
            QCOMPARE(table.grid(0).easting, place->grid.easting);
            QCOMPARE(table.grid(0).northing, place->grid.northing);
            const auto grid = CheckPoint::fromGrid(*system, {651409.903, 313177.270}, 25.0, datum)->on(datum);
            QCOMPARE(table.computedPlace(1).latitude, grid->latitude);
            QCOMPARE(table.shown(1, PointColumn::Longitude), grid->longitude);
            QVERIFY(std::isnan(table.difference(0).easting) && std::isnan(table.difference(1).easting));
        }
        table.compute(0, table.size(), system.get(), Datum::Own);
        QVERIFY(isNear(table.difference(2).easting, 0.0, 1e-3) && isNear(table.difference(2).northing, -0.01, 1e-3));
        QVERIFY(!table.hasProblem(2));
        const auto lambert = SampleRecord::named("Lambert two parallels").system();
        table.compute(0, table.size(), lambert.get(), Datum::Own);
        QCOMPARE(table.problem(3), QString("The projection gives no result for this point."));
        const auto utm = SampleRecord::named("UTM").system();
        table.compute(0, table.size(), utm.get(), Datum::Wgs84);
        QCOMPARE(table.problem(2), QString("The system defines no datum shift."));
        table.compute(0, table.size(), nullptr, Datum::Own);
        QVERIFY(std::isnan(table.grid(0).easting) && !table.hasProblem(0));
    }

    /// A row follows what is typed into it.
    void mends() {
        PointTable table = read("name,lat,lon\nA,x,500\n");
        QCOMPARE(table.problem(0), QString("Can't be read: latitude. Out of range: longitude."));
        QVERIFY(table.remark(0).endsWith("Line: A,x,500"));
        table.setName(0, "B");
        table.setGiven(0, PointColumn::Latitude, 50.0);
        QVERIFY(table.name(0) == "B" && table.line(0) == "A,x,500");
        QCOMPARE(table.problem(0), QString("Out of range: longitude."));
        table.setGiven(0, PointColumn::Longitude, 15.0);
        QVERIFY(!table.hasProblem(0) && table.remark(0).isEmpty());
        table.setGiven(0, PointColumn::Easting, 1.0);
        QCOMPARE(table.problem(0), QString("Missing: northing."));
    }

    void namesTwice() {
        PointTable table = read("A,1,2\nB,1,2\nA,1,2\n,1,2\n,1,2\nC,1,2\nA,1,2\n");
        DuplicateNames names(table);
        while (names.mark(2)) {
        }
        QByteArray marks;
        for (std::size_t row = 0; row < table.size(); ++row)
            marks += table.isDuplicate(row) ? 'x' : '-';
        QCOMPARE(marks, QByteArray("x-x---x"));
    }

    void removesAndAppends() {
        PointTable table = read("A,1,2\nB,3,x4\nC,5,6\n");
        table = joined(table, read("name,lat,lon\nD,7,8\nE,9,x\n"));
        table.setUsed(3, false);
        const PointTable before = table;
        const std::vector<bool> marked{true, false, true, false, false};
        const PointTable taken = table.take(marked);
        QVERIFY(taken.size() == 2 && taken.name(1) == "C" && taken.given(1, PointColumn::Latitude) == 5.0);
        QCOMPARE(table.size(), std::size_t(3));
        QVERIFY(table.name(0) == "B" && table.line(0) == "B,3,x4" && table.name(1) == "D" && !table.isUsed(1));
        QCOMPARE(table.given(1, PointColumn::Longitude), 8.0);
        QVERIFY(table.hasProblem(2) && table.line(2) == "E,9,x" && table.isUsed(2));
        table.append("F");
        table.putBack(taken, marked);
        QCOMPARE(table.size(), std::size_t(6));
        QVERIFY(table.name(5) == "F" && !table.isUsed(3));
        for (std::size_t row = 0; row < before.size(); ++row) {
            QVERIFY(table.name(row) == before.name(row) && table.remark(row) == before.remark(row));
            QCOMPARE(table.given(row, PointColumn::Latitude), before.given(row, PointColumn::Latitude));
        }
    }

    /// Residuals E 3, -1, 1 (and 100 left out), N 4, 0, 0 metres.
    void statistics() {
        const auto system = SampleRecord::named("UTM").system();
        PointTable table;
        const double offsets[][2] = {{3, 4}, {-1, 0}, {1, 0}, {100, 0}};
        for (const auto& offset : offsets) {
            const GeographicPoint place{50.0 + double(table.size()), 15.0, 0.0};
            const GridPoint grid = *system->toGrid(place);
            const std::size_t row = table.append("P");
            table.setGiven(row, PointColumn::Latitude, place.latitude);
            table.setGiven(row, PointColumn::Longitude, place.longitude);
            table.setGiven(row, PointColumn::Easting, grid.easting - offset[0]);
            table.setGiven(row, PointColumn::Northing, grid.northing - offset[1]);
        }
        table.append("nothing");
        table.setUsed(3, false);
        table.compute(0, table.size(), system.get(), Datum::Own);
        const PointStatistics figures = PointStatistics::of(table, 2.0);
        QVERIFY(figures.count == 3 && figures.leftOut == 1 && figures.beyond == 1 && figures.problems == 1);
        QVERIFY(isNear(figures.easting.mean, 1.0, 1e-8) && isNear(figures.northing.mean, 4.0 / 3.0, 1e-8));
        QVERIFY(isNear(figures.easting.rms, std::sqrt(11.0 / 3.0), 1e-8));
        QVERIFY(isNear(figures.northing.rms, std::sqrt(16.0 / 3.0), 1e-8));
        QVERIFY(isNear(figures.distance.mean, 7.0 / 3.0, 1e-8) && isNear(figures.distance.rms, 3.0, 1e-8));
        QVERIFY(isNear(figures.easting.largest, 3.0, 1e-8) && isNear(figures.distance.largest, 5.0, 1e-8));
        QCOMPARE(PointStatistics::of(PointTable(), 2.0).distance.rms, 0.0);
    }

    /// With all digits, what is saved reads back as it was; as shown, to what is seen.
    void writesWhatReadsBack() {
        PointTable table = read("name,lat,lon,h,e,n\n"
                                "\"A, \"\"1\"\"\",52.1234567890123,-1.00000000000012,25.5,400000.123456789,300000\n"
                                "bad,x,1,,,\n");
        const PointTable back = read(written(table, PointWriter::Digits::Full));
        QCOMPARE(back.size(), table.size());
        QVERIFY(back.name(0) == "A, \"1\"");
        for (std::size_t i = 0; i < PointTable::numberCount; ++i)
            QCOMPARE(back.given(0, PointColumn(i)), table.given(0, PointColumn(i)));
        QVERIFY(back.hasProblem(1));
        const QByteArray shown = written(table, PointWriter::Digits::AsShown, 0.3048);
        QVERIFY2(shown.contains("\n\"A, \"\"1\"\"\",52.123456789,-1,83.6614,1312336.3630,984251.9685,"), shown);
        QVERIFY2(shown.contains(",yes,\"Can't be read: latitude. Line: bad,x,1,,,\"\n"), shown);
    }

    /// A million points without heights: latitude and longitude are given, easting and northing computed.
    void memory() {
        QByteArray text;
        constexpr int count = 100000;
        for (int i = 0; i < count; ++i)
            text += "P" + QByteArray::number(i) + ',' + QByteArray::number(50.0 + i * 1e-5, 'f', 9) + ",15.123456789\n";
        const PointTable table = joined(PointTable(), read(text));
        const double perNumber = double(table.bytes()) / (4.0 * count * sizeof(double));
        QVERIFY2(perNumber <= 2.5, qPrintable(QString::number(perNumber)));
    }
};

ROOM_TEST(PointTableTest)
#include "PointTableTest.moc"

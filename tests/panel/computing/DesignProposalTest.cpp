#include "panel/computing/DesignProposal.h"

#include "catalogue/CoordParamKey.h"
#include "panel/computing/DesignArea.h"
#include "panel/record/CoordParamEditor.h"
#include "platform/projection/IProjectionModule.h"
#include "support/PointTypes.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTest>

#include <cmath>

namespace {

QVector<GeographicPoint> around(double latitude, double longitude, double size) {
    QVector<GeographicPoint> points;
    for (double dLat = -size; dLat <= size; dLat += size / 5.0) {
        for (double dLon = -size; dLon <= size; dLon += size / 5.0)
            points.append({latitude + dLat, longitude + dLon, 0.0});
    }
    return points;
}

} // namespace

class DesignProposalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void proposalIsTheBest_data() {
        const Rows<QByteArray, bool, double, GeographicPoint, double> rows(
            {"title", "placeLine", "height", "centre", "line"});
        const auto row = [&rows](const QByteArray& title, bool placeLine, double height, const GeographicPoint& centre,
                                 double line) {
            rows(title + (placeLine ? " with line at " : " at ") + QByteArray::number(height), title, placeLine, height,
                 centre, line);
        };
        row("UTM", false, 0.0, {50.0, 16.0, 0.0}, 15.0);
        row("UTM", true, 0.0, {50.0, 16.0, 0.0}, 16.0);
        row("UTM", true, 2200.0, {-30.0, 13.5, 0.0}, 13.5);
        row("UTM", true, 100.0, {-18.0, 180.0, 0.0}, 180.0);
        row("UTM", true, 200.0, {52.0, -164.8, 0.0}, -164.8); // around the opposite of the present one
        row("Gauss-Kruger", true, 1500.0, {40.0, 116.2, 0.0}, 116.2);
        row("Lambert one parallel", false, 400.0, {18.1, -77.3, 0.0}, 18.0);
        row("Lambert one parallel", true, 400.0, {19.0, -77.3, 0.0}, 19.0);
        row("Mercator", false, 0.0, {3.0, 110.0, 0.0}, 110.0);
        row("Oblique Mercator", false, 100.0, {5.0, 115.0, 0.0}, 115.0);
        row("Polar with scale", false, 0.0, {85.0, 20.0, 0.0}, 0.0);
        row("Double stereographic", false, 0.0, {52.0, 6.0, 0.0}, 5.38763888888889);
    }

    /// No other factor, and no other line with its best factor, leaves less; and what is said of the distortion is so.
    void proposalIsTheBest() {
        QFETCH(QByteArray, title);
        QFETCH(bool, placeLine);
        QFETCH(double, height);
        QFETCH(GeographicPoint, centre);
        QFETCH(double, line);
        const DictionaryGuard record = SampleRecord::named(title).record();
        const auto points = around(centre.latitude, centre.longitude, 0.5);
        const auto proposal = DesignProposal::make(*record, *projectionModule(), points, height, placeLine);
        QVERIFY(proposal && !proposal->changes().isEmpty());
        QVERIFY(proposal->after().extreme() <= proposal->before().extreme());
        QVERIFY(std::abs(proposal->after().smallest + proposal->after().largest) < 0.11);

        CoordParamEditor editor;
        editor.setRecord(*record);
        proposal->apply(editor);
        const auto again = DesignProposal::make(editor.record(), *projectionModule(), points, height, placeLine);
        QVERIFY(again && again->changes().isEmpty());
        QCOMPARE(again->after().largest, again->before().largest);
        QCOMPARE(again->before().largest, proposal->after().largest);
        const bool isLambert = title.startsWith("Lambert");
        const char* const lineKey = isLambert ? CoordParamKey::parallel1Lat : CoordParamKey::orgLon;
        const double placed = dictionary_number(editor.record(), lineKey, 0.0);
        QVERIFY2(std::abs(placed - line) < 0.05, qPrintable(QString::number(placed)));
        if (isLambert)
            QCOMPARE(dictionary_number(editor.record(), CoordParamKey::orgLat, 0.0), placed);
        if (!placeLine)
            return;
        for (const double other : {placed - 0.2, placed + 0.2}) {
            const DictionaryGuard moved;
            dictionary_assign(moved.get(), &editor.record());
            moved->setText(lineKey, QByteArray::number(other));
            const auto worse = DesignProposal::make(*moved, *projectionModule(), points, height, false);
            QVERIFY(worse && worse->after().extreme() > proposal->after().extreme());
        }
    }

    /// At one point: the line through it, and the scale that the height asks for.
    void proposalForPoint() {
        const DictionaryGuard record = SampleRecord::named("Gauss-Kruger").record();
        const auto proposal = DesignProposal::make(*record, *projectionModule(), {{40.0, 115.1234, 0.0}}, 1000.0, true);
        QVERIFY(proposal);
        CoordParamEditor editor;
        editor.setRecord(*record);
        proposal->apply(editor);
        QCOMPARE(editor.record().getValue(CoordParamKey::orgLon), "115.1234");
        // 1 + 1000 / R with R = sqrt(M N) = 6374383.582 m, computed apart
        QCOMPARE(editor.record().getValue(CoordParamKey::factor), "1.0001569");
        QCOMPARE(editor.record().getValue(CoordParamKey::projectType), "1"); // it has a scale now
        QVERIFY(proposal->after().extreme() < 0.06);
    }

    /// From 177 degrees east to 177 and to 175 west.
    void acrossTheAntimeridian() {
        const DictionaryGuard record = SampleRecord::named("UTM").with(CoordParamKey::orgLon, "178").record();
        for (const double east : {183.0, 185.0}) {
            QVector<GeographicPoint> points;
            for (double longitude = 177.0; longitude <= east; longitude += 0.5)
                points.append({-16.0, std::remainder(longitude, 360.0), 0.0});
            const auto proposal = DesignProposal::make(*record, *projectionModule(), points, 0.0, true);
            QVERIFY(proposal && proposal->changes().size() == 2);
            QCOMPARE(proposal->changes().first().after, east == 183.0 ? 180.0 : -179.0);
            QVERIFY2(proposal->after().extreme() < (east == 183.0 ? 640.0 : 1134.0),
                     qPrintable(QString::number(proposal->after().extreme())));
        }
    }

    /// What changes less than the rounding is not worth a change, nor is a line that makes nothing better.
    void onlyWhatIsWorthIt() {
        const QVector<GeographicPoint> points = around(50.0, 15.0, 0.6);
        CoordParamEditor editor;
        editor.setRecord(*SampleRecord::named("UTM").record());
        DesignProposal::make(editor.record(), *projectionModule(), points, 0.0, false)->apply(editor);
        QVERIFY(DesignProposal::make(editor.record(), *projectionModule(), points, 0.0, true)->changes().isEmpty());
        const double best = dictionary_number(editor.record(), CoordParamKey::factor, 0.0);
        const DictionaryGuard near;
        for (const double off : {0.4e-7, 2e-7}) {
            dictionary_assign(near.get(), &editor.record());
            near->setText(CoordParamKey::factor, QByteArray::number(best + off, 'f', 9));
            const auto proposal = DesignProposal::make(*near, *projectionModule(), points, 0.0, true);
            QCOMPARE(proposal->changes().size(), off > 1e-7 ? 1 : 0);
        }
    }

    void noProposal_data() {
        const Rows<QByteArray> row({"title"});
        for (const char* title : {"Mercator with parallel", "Polar with parallel", "Cassini"})
            row(title, title);
    }

    void noProposal() {
        QFETCH(QByteArray, title);
        const DictionaryGuard record = SampleRecord::named(title).record();
        QVERIFY(!DesignProposal::isPossible(*record));
        QVERIFY(!DesignProposal::make(*record, *projectionModule(), around(45.0, 0.0, 1.0), 0.0, true));
    }
};

ROOM_TEST(DesignProposalTest)
#include "DesignProposalTest.moc"

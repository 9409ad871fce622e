#include "panel/check/CheckPointPane.h"

#include "panel/record/AngleText.h"
#include "platform/projection/IProjectedSystem.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"

#include <cmath>

namespace {

/// What stands beside a label of the results.
QString result(const PanelOnScreen& screen, const QString& name) {
    for (const QLabel* label : screen.findAll<QLabel>()) {
        auto* grid = label->text() == name ? qobject_cast<QGridLayout*>(label->parentWidget()->layout()) : nullptr;
        int row, column, rows, columns;
        if (!grid)
            continue;
        grid->getItemPosition(grid->indexOf(const_cast<QLabel*>(label)), &row, &column, &rows, &columns);
        return qobject_cast<QLabel*>(grid->itemAtPosition(row, column + 1)->widget())->text();
    }
    return "no such label";
}

/// Of "1.0002305586  (230.56 ppm)".
double factor(const QString& text) {
    return text.section(' ', 0, 0).toDouble();
}

} // namespace

/// The page "Point" of the tab "Check", over the real projection module.
class CheckPointPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { AngleText::setNotation(AngleNotation::DecimalDegrees); }

    void nothingBeforeItIsShown() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Ellipsoid);
        QVERIFY(!screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
        screen.panel.setCurrentIndex(PanelOnScreen::Check);
        QVERIFY(screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
    }

    void pointWhileTyping() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        // Before anything is typed, it is the origin.
        QCOMPARE(screen.shown("Easting"), QString("400000.0000"));
        QCOMPARE(screen.shown("Latitude"), QString("49"));
        screen.type("Latitude", "52 39 27.2531N");
        screen.type("Longitude", "1:43:04.5177");
        QCOMPARE(screen.shown("Easting"), QString("651409.9029"));
        QCOMPARE(screen.shown("Northing"), QString("313177.2703"));
        screen.type("Easting", "400000");
        screen.type("Northing", "-100000");
        QCOMPARE(screen.shown("Latitude"), QString("49"));
        QCOMPARE(screen.shown("Longitude"), QString("-2"));
        // The same grid point on the other datum, at the height 0 there.
        screen.find<QComboBox>("Datum")->setCurrentIndex(1);
        const auto own =
            SampleRecord::named("British grid")
                .system()
                ->fromWgs84({screen.shown("Latitude").toDouble(), screen.shown("Longitude").toDouble(), 0.0});
        QVERIFY(std::abs(own->latitude - 49.0) < 1e-9 && std::abs(own->longitude + 2.0) < 1e-9);
        QVERIFY(std::abs(screen.shown("Latitude").toDouble() - 49.00077) < 1e-5);
        QCOMPARE(result(screen, "On the own datum").section(' ', 0, 1), QString("49°, -2°,"));
        QCOMPARE(screen.edits.count(), 0);
    }

    /// Flinders Peak in MGA94 zone 55 (GDA Technical Manual: grid scale factor 1.00023056, grid convergence
    /// 1:35:03.65). At 1000 m the combined factor is 1.0000736337 with R = sqrt(M N) = 6372887.710 m, computed apart.
    void resultsAsShown() {
        PanelOnScreen screen(
            *SampleRecord::named("UTM").with("org_lon", "147").with("false_north", "10000000").record(),
            PanelOnScreen::Check);
        screen.type("Easting", "273741.297");
        screen.type("Northing", "5796489.777");
        screen.type("Ellipsoidal height", "1000");
        QVERIFY(std::abs(factor(result(screen, "Grid scale factor")) - 1.00023056) < 5e-9);
        QVERIFY(result(screen, "Grid scale factor").endsWith("  (230.56 ppm)"));
        QVERIFY(std::abs(factor(result(screen, "Combined factor")) - 1.0000736337) < 5e-9);
        QVERIFY(result(screen, "Combined factor").endsWith("  (73.63 ppm)"));
        QCOMPARE(result(screen, "Convergence"), QString("1.5843465°"));
        QCOMPARE(result(screen, "Closing error"), QString("0.000 mm"));
        // The same point from the other side, at the same height.
        screen.type("Latitude", "-37 57 03.72030");
        screen.type("Longitude", "144 25 29.52440");
        QVERIFY(std::abs(factor(result(screen, "Combined factor")) - 1.0000736337) < 5e-9);
        screen.type("Northing", "5796489.777");
        AngleText::setNotation(AngleNotation::DegreesMinutesSeconds);
        screen.panel.findChild<CheckPointPane*>()->showNotation();
        QCOMPARE(result(screen, "Convergence").left(10), QString("1°35'03.64"));
        QCOMPARE(screen.shown("Latitude").left(12), QString("-37°57'03.72"));
        QCOMPARE(screen.shown("Longitude").left(12), QString("144°25'29.52"));
        // The page below says the same.
        screen.find<QPushButton>("Copy as text")->click();
        const QStringList copied = QApplication::clipboard()->text().split('\n');
        for (const char* name : {"Grid scale factor", "Convergence", "Combined factor", "On WGS 84", "Closing error"})
            QVERIFY2(copied.contains(name + ("\t" + result(screen, name))), name);
        for (const char* name : {"Latitude", "Longitude", "Ellipsoidal height", "Easting", "Northing"})
            QVERIFY2(copied.filter(QRegularExpression(QString("^%1\t").arg(name)))
                         .value(0)
                         .startsWith(name + ("\t" + screen.shown(name))),
                     name);
        QStringList names;
        for (const QString& line : copied)
            names << line.section('\t', 0, 0);
        QCOMPARE(names.join(", "),
                 QString("UTM, Datum, Latitude, Longitude, Ellipsoidal height, Easting, Northing, "
                         "Grid scale factor, Convergence, Combined factor, On WGS 84, Closing error, "));
        QCOMPARE(copied.value(1), QString("Datum\tThe system's own"));
    }

    void copyAnswers() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        auto* button = screen.find<QPushButton>("Copy as text");
        const QSize size = button->size();
        button->click();
        QCOMPARE(button->text(), QString("Copied"));
        QCOMPARE(button->size(), size);
        QTRY_COMPARE(button->text(), QString("Copy as text"));
    }

    void twoFactorsWhereDirectionsDiffer() {
        const SampleRecord& cassini = SampleRecord::named("Cassini");
        PanelOnScreen screen(*cassini.record(), PanelOnScreen::Check);
        screen.type("Latitude", "10.7");
        screen.type("Longitude", "-59.5");
        const LocalScale scale = *cassini.system()->localScale({10.7, -59.5, 0.0});
        const QStringList lines = result(screen, "Grid scale factor").split('\n');
        QCOMPARE(lines.size(), 2);
        QVERIFY(std::abs(scale.meridian - scale.parallel) > 1e-5);
        QVERIFY(lines[0].startsWith("along the meridian " + QString::number(scale.meridian, 'f', 10)));
        QVERIFY(lines[1].startsWith("along the parallel " + QString::number(scale.parallel, 'f', 10)));
    }

    /// Rotations of 20 arc-seconds are no small angles: there and back they miss by centimetres.
    void unreliableResult() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        screen.type("Latitude", "0");
        screen.type("Longitude", "74");
        QVERIFY(result(screen, "Closing error")
                    .endsWith(" mm, datum shift 0.000 mm  The projection is not reliable here."));
        // Into the Earth's middle.
        screen.show(*SampleRecord::named("British grid").with("_7dx", "-3890000").with("_7dz", "-5037000").record());
        screen.type("Latitude", "52.5");
        screen.type("Longitude", "0");
        QVERIFY(result(screen, "Closing error").startsWith("0.000 mm, datum shift "));
        QVERIFY(result(screen, "Closing error").endsWith(" mm  The datum shift is not reliable here."));
    }

    void notConformal() {
        PanelOnScreen screen(*SampleRecord::named("Cassini").record(), PanelOnScreen::Check);
        screen.type("Latitude", "10.5");
        screen.type("Longitude", "-60.4");
        QCOMPARE(result(screen, "Combined factor"), result(screen, "Grid scale factor"));
        QVERIFY(result(screen, "Combined factor").startsWith("along the meridian 1.00012"));
        QCOMPARE(result(screen, "Convergence"),
                 QString("along the meridian 0.1700792°\nin other directions off by up to 13.4\""));
    }

    void otherDatumIsUnknownWithoutShift() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        auto* datum = screen.find<QComboBox>("Datum");
        const auto isOffered = [&] { return datum->model()->flags(datum->model()->index(1, 0)) & Qt::ItemIsEnabled; };
        const auto shifted = SampleRecord::named("British grid").system()->toWgs84({49.0, -2.0, 0.0});
        QCOMPARE(result(screen, "On WGS 84").section('m', -1), QString());
        QVERIFY(std::abs(result(screen, "On WGS 84").section("°", 0, 0).toDouble() - shifted->latitude) < 1e-9);
        QVERIFY(isOffered());
        const QString unknown = "unknown: the system defines no datum shift";
        screen.show(*SampleRecord::named("UTM").with("datum_name", "World Geodetic System 1984").record());
        QCOMPARE(result(screen, "On WGS 84"), QString("the same: the system's datum is WGS 84"));
        // EPSG 1238 on the equator: 0.554 arc-seconds about the Earth's axis are 17.1 m, beside 4.5 m along it.
        screen.show(*SampleRecord::named("UTM").with("datum_name", "World Geodetic System 1972").record());
        QCOMPARE(result(screen, "On WGS 84"), unknown + "\nThe registry's shifts move this point by 18 m.");
        screen.show(*SampleRecord::named("UTM").record());
        QCOMPARE(result(screen, "On WGS 84"), unknown);
        QVERIFY(!isOffered());
        // A point on WGS 84, typed for another system, is nowhere in this one.
        datum->setCurrentIndex(1);
        screen.type("Latitude", "50");
        screen.type("Longitude", "16");
        QCOMPARE(result(screen, "On the own datum"), unknown);
        QCOMPARE(result(screen, "Grid scale factor"), QString("–"));
        QVERIFY(screen.shown("Easting").isEmpty() && !screen.find<QPushButton>("Copy as text")->isEnabled());
        screen.type("Easting", "500000");
        screen.type("Northing", "0");
        QVERIFY(screen.shown("Latitude").isEmpty());
    }

    void refusedPoint() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        for (const char* text : {"abc", "91", "N", "12 75 0"}) {
            screen.type("Latitude", text);
            QVERIFY2(screen.shown("Easting").isEmpty(), text);
            QVERIFY(!screen.find<QLineEdit>("Latitude")->toolTip().isEmpty());
            QVERIFY(!screen.find<QPushButton>("Copy as text")->isEnabled());
        }
        QTest::keyClick(screen.find<QLineEdit>("Latitude"), Qt::Key_Escape);
        QCOMPARE(screen.shown("Easting"), QString("500000.0000"));
        // Sound, but not to be projected.
        screen.show(*SampleRecord::named("Lambert two parallels").record());
        screen.type("Latitude", "-90");
        screen.type("Longitude", "0");
        QCOMPARE(result(screen, "Grid scale factor"), QString("The projection gives no result for this point."));
        for (const QLineEdit* edit : screen.panel.findChildren<QLineEdit*>())
            QVERIFY(!edit->text().contains("nan") && !edit->text().contains("inf"));
    }

    /// One line says why, nothing is computed, and the next good system is.
    void noProjection() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        screen.show(*SampleRecord::named("UTM").with("project_type", "5").record());
        QCOMPARE(screen.messages().size(), 1);
        for (const char* field : {"Latitude", "Longitude", "Easting", "Northing"})
            QVERIFY(screen.shown(field).isEmpty() && !screen.field(field)->isEnabled());
        for (const char* name : {"Grid scale factor", "Convergence", "Combined factor", "On WGS 84", "Closing error"})
            QCOMPARE(result(screen, name), QString("–"));
        screen.show(*SampleRecord::named("UTM").record());
        QCOMPARE(screen.shown("Easting"), QString("500000.0000"));
        QVERIFY(screen.messages().isEmpty());
    }

    void typedPointStays() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        screen.show(*SampleRecord::named("British grid").record());
        QCOMPARE(screen.shown("Latitude"), QString("49")); // the other system's origin
        screen.type("Latitude", "50.5");
        screen.type("Longitude", "14.5");
        screen.show(*SampleRecord::named("UTM").record());
        QCOMPARE(screen.shown("Latitude"), QString("50.5"));
        const auto grid = SampleRecord::named("UTM").system()->toGrid({50.5, 14.5, 0.0});
        QCOMPARE(screen.shown("Easting"), QString::number(grid->easting, 'f', 4));
    }
};

ROOM_TEST(CheckPointPaneTest)
#include "CheckPointPaneTest.moc"

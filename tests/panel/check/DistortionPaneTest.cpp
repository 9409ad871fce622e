#include "panel/check/DistortionPane.h"

#include "catalogue/CoordParamKey.h"
#include "panel/check/DistortionPlot.h"
#include "panel/record/ParamField.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <qwt_plot_marker.h>

#include <cmath>

namespace {

/// The page "Distortion" of the tab "Check".
class DistortionOnScreen : public PanelOnScreen {
public:
    explicit DistortionOnScreen(const SampleRecord& sample)
        : PanelOnScreen(*sample.record(), PanelOnScreen::Check), pane(panel.findChild<DistortionPane*>()) {
        turnTo(1);
        plot = panel.findChild<DistortionPlot*>();
    }

    void turnTo(int page) const {
        for (auto* pages : panel.findChildren<QTabWidget*>())
            pages->setCurrentIndex(page);
    }

    /// Types the checked point, and comes back to the map around it.
    void checkPoint(const char* first, const char* one, const char* second, const char* other) const {
        turnTo(0);
        type(first, one);
        type(second, other);
        turnTo(1);
        find<QComboBox>("Area")->setCurrentIndex(2);
    }

    /// The words under the map with the mouse at its middle: "-400.0 ppm 0, 15 E 500.000 km N 0.000 km".
    QStringList pointAtMiddle() const {
        QWidget* const canvas = plot->canvas();
        QMouseEvent move(QEvent::MouseMove, canvas->contentsRect().center(), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(canvas, &move);
        return readout();
    }

    QStringList readout() const {
        for (const QLabel* label : findAll<QLabel>()) {
            if (label->text().contains(" ppm ") && label->text().endsWith(" km"))
                return label->text().split(QRegularExpression("[\\s,]+"));
        }
        return {};
    }

    bool isMarked(const QString& title) const { return marker(title) && marker(title)->isVisible(); }
    QwtPlotMarker* marker(const QString& title) const {
        for (QwtPlotItem* item : plot->itemList(QwtPlotItem::Rtti_PlotMarker)) {
            if (item->title().text() == title)
                return static_cast<QwtPlotMarker*>(item);
        }
        return nullptr;
    }

    QString proposed() const {
        QStringList texts;
        for (const DesignProposal::Change& change : pane->proposal()->changes())
            texts << change.field->key + QString("=%1").arg(change.after, 0, 'g', 12);
        return texts.join(' ');
    }

    DistortionPane* pane;
    DistortionPlot* plot;
};

} // namespace

/// The page "Distortion" with its design, over the real projection module.
class DistortionPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { AngleText::setNotation(AngleNotation::DecimalDegrees); }

    /// Whatever reaches the picture between a change of system and its refresh, it looks at nothing that is gone.
    void pictureKeepsWhatItShows() {
        const DistortionOnScreen screen(SampleRecord::named("UTM"));
        auto& panel = const_cast<DlgCoordParam&>(screen.panel);
        const QList<std::function<void()>> events{
            [&] { panel.resize(panel.width() + 40, panel.height() - 40); },
            [&] {
                QFont font = panel.font();
                font.setPointSizeF(font.pointSizeF() * 1.1);
                panel.setFont(font);
            },
            [&] { panel.setStyleSheet("QLabel { padding: 3px }"); },
            [&] { screen.pointAtMiddle(); },
            [&] {
                QEvent change(QEvent::LanguageChange), leave(QEvent::Leave);
                QCoreApplication::sendEvent(screen.plot, &change);
                QCoreApplication::sendEvent(screen.plot->canvas(), &leave);
            },
            [&] {
                screen.turnTo(0);
                screen.turnTo(1);
            },
            [&] {
                panel.setCurrentIndex(PanelOnScreen::Projection);
                panel.setCurrentIndex(PanelOnScreen::Check);
            },
        };
        for (const auto& event : events) {
            // The line with the reason takes room from the picture, which is drawn once more.
            panel.setCoordParam(*SampleRecord::named("UTM").with("project_type", "5").record());
            event();
            QCOMPARE(screen.messages().size(), 1);
            QVERIFY(screen.readout().isEmpty() && !screen.pane->proposal());
            panel.setCoordParam(*SampleRecord::named("Lambert two parallels").record());
            event();
            QApplication::processEvents();
            QVERIFY(screen.messages().isEmpty());
        }
    }

    /// In the middle of the map lies what it is drawn around; the value there is that of the height.
    void valueUnderTheMouse() {
        const DistortionOnScreen screen(SampleRecord::named("UTM"));
        screen.find<QComboBox>("Width of the area")->setCurrentText("5 km");
        const double pixel = 10.0 / screen.plot->canvas()->height();
        QStringList words = screen.pointAtMiddle();
        QCOMPARE(words.size(), 10);
        QVERIFY(std::abs(words[5].toDouble() - 500.0) <= pixel && std::abs(words[8].toDouble()) <= pixel);
        QCOMPARE(words[0], QString("-400.0"));
        screen.checkPoint("Latitude", "50", "Longitude", "16.2");
        words = screen.pointAtMiddle();
        const auto system = SampleRecord::named("UTM").system();
        const GeographicPoint place{50.0, 16.2, 0.0};
        QVERIFY(std::abs(words[5].toDouble() - system->toGrid(place)->easting / 1000.0) <= pixel);
        QVERIFY(std::abs(words[2].toDouble() - 50.0) < 1e-3 && std::abs(words[3].toDouble() - 16.2) < 1e-3);
        const double ppm = words[0].toDouble();
        QVERIFY(std::abs(ppm - (system->localScale(place)->mean - 1.0) * 1e6) < 0.5);
        // The mouse rests; what it is over changes.
        screen.panel.findChild<QSpinBox*>()->setValue(1000);
        QVERIFY(std::abs(screen.readout()[0].toDouble() - ppm + 1e9 / 6379000.0) < 1.0);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(screen.plot->canvas(), &leave);
        QVERIFY(screen.readout().isEmpty());
    }

    void checkedPointIsMarked() {
        const DistortionOnScreen screen(SampleRecord::named("UTM"));
        QVERIFY(screen.isMarked("Origin") && !screen.isMarked("Checked point"));
        screen.checkPoint("Latitude", "50", "Longitude", "16.2");
        QVERIFY(screen.isMarked("Checked point"));
        const auto point = SampleRecord::named("UTM").system()->toGrid({50.0, 16.2, 0.0});
        QVERIFY(std::abs(screen.marker("Checked point")->xValue() - point->easting / 1000.0) < 1e-6);
        QVERIFY(std::abs(screen.marker("Checked point")->yValue() - point->northing / 1000.0) < 1e-6);
    }

    /// The area is a square on the ground: the window's shape changes neither it nor what is proposed for it.
    void designHasItsOwnShape() {
        DistortionOnScreen screen(SampleRecord::named("UTM"));
        const QString proposed = screen.proposed();
        for (const QSize& size : {QSize(1100, 560), QSize(560, 900)}) {
            screen.panel.resize(size);
            QApplication::processEvents();
            QCOMPARE(screen.proposed(), proposed);
            const QSizeF canvas = screen.plot->canvas()->contentsRect().size();
            const double shape =
                screen.plot->axisInterval(QwtPlot::xBottom).width() / screen.plot->axisInterval(QwtPlot::yLeft).width();
            QVERIFY(std::abs(shape * canvas.height() / canvas.width() - 1.0) < 0.01);
            Q_EMIT screen.find<QComboBox>("Area")->currentIndexChanged(0);
            QCOMPARE(screen.proposed(), proposed);
            // All of it is on the map: 250 km each way.
            for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft})
                QVERIFY(screen.plot->axisInterval(axis).width() >= 500.0);
        }
        // Greatest at (250 km, +-250 km): k = 0.9996 (1 + x^2 / 2 R^2), so k0 is 0.9996 / (1 + half of 375 ppm - 200).
        QVERIFY(std::abs(screen.pane->proposal()->before().smallest + 400.0) < 0.1);
        QVERIFY(std::abs(screen.pane->proposal()->before().largest - 375.3) < 0.5);
        QStringList texts;
        for (const QLabel* label : screen.findAll<QLabel>())
            texts << label->text();
        QCOMPARE(texts.filter("Distortion in ppm: -400.0 to 375.3 → -387.").size(), 1);
        for (const QwtPlotItem* item : screen.plot->itemList(QwtPlotItem::Rtti_PlotCurve)) {
            if (item->title().text() == "Area of the design")
                QVERIFY(item->isVisible() && std::abs(item->boundingRect().width() - 500.0) < 0.5);
        }
    }

    void designUsesTheHeight() {
        const DistortionOnScreen screen(SampleRecord::named("UTM"));
        screen.find<QComboBox>("Width of the area")->setCurrentText("2 km");
        screen.panel.findChild<QSpinBox*>()->setValue(1500);
        // 1 + 1500 / R at the equator, where R = b = 6356752.314 m
        QCOMPARE(screen.proposed(), QString("factor=1.000236"));
    }

    void proposalIsTakenOver_data() {
        const Rows<SampleRecord, int, int, QString> row({"sample", "area", "goal", "changed"});
        row("factor", SampleRecord::named("UTM").with("unknown_key", "kept"), 0, 0, "factor");
        for (const int goal : {0, 1}) {
            row("meridian, checked point " + QByteArray::number(goal), SampleRecord::named("UTM"), 2, goal,
                "org_lon,factor");
            row("parallel, checked point " + QByteArray::number(goal), SampleRecord::named("Lambert one parallel"), 2,
                goal, "org_lat,parallel_1_lat,factor");
        }
        row("parallel, around itself", SampleRecord::named("Lambert one parallel").with("parallel_1_lat", "50"), 1, 0,
            "parallel_1_lat,factor");
    }

    /// It goes into the record as one edit; then there is nothing more to take over, and the keyboard is beside the
    /// button.
    void proposalIsTakenOver() {
        QFETCH(SampleRecord, sample);
        QFETCH(int, area);
        QFETCH(int, goal);
        QFETCH(QString, changed);
        DistortionOnScreen screen(sample);
        screen.find<QComboBox>("Width of the area")->setCurrentText("2000 km");
        if (area == 2)
            screen.checkPoint("Easting", "700000", "Northing", "800000");
        screen.find<QComboBox>("Area")->setCurrentIndex(area);
        screen.find<QComboBox>("Least distortion")->setCurrentIndex(goal);
        if (changed != "factor")
            screen.findAll<QCheckBox>().first()->setChecked(true);
        QStringList keys;
        for (const auto& change : screen.pane->proposal()->changes())
            keys << change.field->key;
        keys.sort();
        QStringList expected = changed.split(',');
        expected.sort();
        QCOMPARE(keys, expected);
        const auto after = screen.pane->proposal()->after();
        auto* accept = screen.find<QPushButton>("Take over");
        accept->setFocus();
        QTest::keyClick(accept, Qt::Key_Space);
        QCOMPARE(screen.edits.count(), 1);
        QCOMPARE(QString(screen.value("unknown_key")), QString(area == 0 ? "kept" : ""));
        QCOMPARE(screen.proposed(), QString());
        QVERIFY(!accept->isEnabled());
        QVERIFY(std::abs(screen.pane->proposal()->before().largest - after.largest) < 0.06);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("Least distortion"));
        // Another system is seen where it belongs.
        screen.show(*SampleRecord::named("Cassini").record());
        QVERIFY(!accept->isEnabled() && screen.findAll<QCheckBox>().isEmpty());
        QVERIFY(screen.find<QComboBox>("Area")->currentIndex() <= 2);
    }

    void readOnlyPanelTakesNothingOver() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check, true);
        for (auto* pages : screen.panel.findChildren<QTabWidget*>())
            pages->setCurrentIndex(1);
        QVERIFY(!screen.panel.findChild<DistortionPane*>()->proposal()->changes().isEmpty());
        QVERIFY(!screen.find<QPushButton>("Take over")->isEnabled());
    }
};

ROOM_TEST(DistortionPaneTest)
#include "DistortionPaneTest.moc"

#include "panel/check/DistortionPane.h"

#include "panel/check/AreaPlot.h"
#include "panel/record/ParamField.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFont>
#include <QLabel>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>

#include <cmath>

namespace {

/// The page "Distortion" of the tab "Check".
///   done: "mouse" moves to the middle of the map, "leave" away from it, "resize=640x560"
///   seen: what the mouse is over ("ppm", "latitude", "longitude", "E", "N"), "marked" places, the ends of the
///         "colours", what is "proposed" and to what "effect", and the shape of the map
class DistortionOnScreen : public PanelOnScreen {
public:
    explicit DistortionOnScreen(const QString& start) : PanelOnScreen(start) {
        turnTo("Distortion");
        QApplication::processEvents();
        pane = panel.findChild<DistortionPane*>();
        plot = pane->findChild<AreaPlot*>();
        acts["mouse"] = [this](const QString&) {
            QMouseEvent move(QEvent::MouseMove, plot->canvas()->contentsRect().center(), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(plot->canvas(), &move);
        };
        acts["leave"] = [this](const QString&) {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(plot->canvas(), &leave);
        };
        acts["resize"] = [this](const QString& size) {
            panel.resize(size.section('x', 0, 0).toInt(), size.section('x', 1).toInt());
        };
        // "-400.0 ppm   0, 15\nE 500.000 km  N 0.000 km"
        const QStringList words{"ppm", "unit", "latitude", "longitude", "", "E", "", "", "N"};
        for (int i = 0; i < words.size(); ++i)
            sights[words[i]] = [=](const QString&) {
                return textWith(" ppm *\nE *").split(QRegularExpression("[\\s,]+")).value(i, "(missing)");
            };
        sights["effect"] = [this](const QString&) { return textWith("Distortion in ppm: *"); };
        sights["marked"] = [this](const QString&) { return marked(); };
        sights["proposed"] = [this](const QString&) { return proposed(); };
        sights["colours"] = [this](const QString&) {
            const QwtInterval ends = plot->axisInterval(QwtPlot::yRight);
            return QString("%1 to %2").arg(ends.minValue(), 0, 'f', 1).arg(ends.maxValue(), 0, 'f', 1);
        };
        sights["outline"] = [this](const QString&) {
            const auto* line = static_cast<QwtPlotCurve*>(item("Outline of the area"));
            const QRectF area = line->boundingRect();
            const QwtInterval east = plot->axisInterval(QwtPlot::xBottom), north = plot->axisInterval(QwtPlot::yLeft);
            const bool isClosed = line->sample(0) == line->sample(int(line->dataSize()) - 1);
            const bool isSeen = east.contains(area.left()) && east.contains(area.right()) &&
                                north.contains(area.top()) && north.contains(area.bottom());
            return QString("%1 km%2%3")
                .arg(area.width(), 0, 'f', 1)
                .arg(isClosed ? ", closed" : "", isSeen ? ", seen" : "");
        };
        sights["square"] = [this](const QString&) {
            const QSizeF canvas = plot->canvas()->contentsRect().size();
            return std::abs(across(QwtPlot::xBottom) / across(QwtPlot::yLeft) * canvas.height() / canvas.width() -
                            1.0) < 0.01
                       ? "yes"
                       : "no";
        };
    }

    DistortionPane* pane;
    AreaPlot* plot;

private:
    QString textWith(const QString& wildcard) const {
        const QRegularExpression form(QRegularExpression::wildcardToRegularExpression('*' + wildcard));
        for (const QLabel* label : findAll<QLabel>()) {
            if (form.match(label->text()).hasMatch())
                return label->text();
        }
        return "(missing)";
    }

    double across(QwtPlot::Axis axis) const { return plot->axisInterval(axis).width(); }

    QwtPlotItem* item(const QString& title) const {
        for (QwtPlotItem* item : plot->itemList()) {
            if (item->title().text() == title && item->isVisible())
                return item;
        }
        return nullptr;
    }

    QString marked() const {
        QStringList names(item("Origin") ? "Origin" : "");
        if (const auto* marker = static_cast<QwtPlotMarker*>(item("Checked point")))
            names << QString("Checked point at %1, %2").arg(marker->xValue()).arg(marker->yValue());
        names.removeAll("");
        return names.join(", ");
    }

    QString proposed() const {
        QStringList texts;
        if (!pane->proposal())
            return "nothing";
        for (const DesignProposal::Change& change : pane->proposal()->changes())
            texts << change.field->key + QString("=%1").arg(change.after, 0, 'g', 12);
        return texts.join(' ');
    }
};

} // namespace

/// The page "Distortion" with its design, over the real projection module.
class DistortionPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"distortion.txt"}); }

    void script() {
        QFETCH(QString, start);
        DistortionOnScreen(start).play();
    }

    /// Whatever reaches the picture between a change of system and its refresh, it looks at nothing that is gone.
    void pictureKeepsWhatItShows() {
        DistortionOnScreen screen("Check: UTM");
        DlgCoordParam& panel = screen.panel;
        const auto turn = [](QTabWidget* pages, int there, int back) {
            pages->setCurrentIndex(there);
            pages->setCurrentIndex(back);
        };
        const QList<std::function<void()>> events{
            [&] { panel.resize(panel.width() + 40, panel.height() - 40); },
            [&] { panel.setFont(QFont(panel.font().family(), panel.font().pointSize() + 1)); },
            [&] { panel.setStyleSheet("QLabel { padding: 3px }"); },
            [&] { screen.acts["mouse"](QString()); },
            [&] {
                QEvent change(QEvent::LanguageChange);
                QCoreApplication::sendEvent(screen.plot, &change);
                screen.acts["leave"](QString());
            },
            [&] { turn(panel.findChild<QTabWidget*>(), 0, 1); },
            [&] { turn(&panel, PanelOnScreen::Projection, PanelOnScreen::Check); },
        };
        for (const auto& event : events) {
            // The line with the reason takes room from the picture, which is drawn once more.
            screen.show(*PanelRecords::of("UTM, project_type=5"));
            event();
            QCOMPARE(screen.messages().size(), 1);
            QVERIFY(screen.sights["ppm"](QString()) == "(missing)" && !screen.pane->proposal());
            screen.show(*SampleRecord::named("Lambert two parallels").record());
            event();
            QApplication::processEvents();
            QVERIFY(screen.messages().isEmpty());
        }
    }
};

ROOM_TEST(DistortionPaneTest)
#include "DistortionPaneTest.moc"

#include "panel/check/ComparePane.h"

#include "catalogue/CoordParamKey.h"
#include "panel/check/AreaPlot.h"
#include "panel/field/SystemNameLine.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/SampleRecords.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <qwt_plot_spectrogram.h>

namespace {

/// The page "Compare" of the tab "Check", on a catalogue with two groups.
///   done: "against=record", "catalogue=words" and "registry=words" type these into that dialog, "<Down>" goes down its
///         list, and press Return, then Escape where it is still open; "mouse" moves to the middle of the map, "leave"
///         away from it
///   seen: the "scale" of the map: its unit and its ends; whether it has "contours", or was "computed"; the name of the
///         other system ("against shown"); how many "records" there are more than before a choice
class CompareOnScreen : public PanelOnScreen {
public:
    explicit CompareOnScreen(const QString& start) : PanelOnScreen(start) {
        for (const auto& [group, name, east] :
             {std::tuple{"Home", "First grid", 1}, std::tuple{"Home", "Third grid", 3},
              std::tuple{"Away", "Far grid", 9}}) {
            if (!catalogue.group(group))
                catalogue.addTestGroup(group);
            const auto record =
                SampleRecord::named("UTM").with("false_east", QByteArray::number(500000 + east)).record();
            record->setText(CoordParamKey::name, name);
            catalogue.group(group)->systems.append(name, record.get());
        }
        turnTo("Compare");
        QApplication::processEvents();
        plot = panel.findChild<ComparePane*>()->findChild<AreaPlot*>();
        alive = dictionary_alive_count();
        acts["against"] = [this](const QString& text) {
            panel.findChild<ComparePane*>()->setOther(*PanelRecords::of(text), text);
        };
        acts["catalogue"] = [this](const QString& keys) { choose("From catalogue...", keys); };
        acts["registry"] = [this](const QString& keys) { choose("From registry...", keys); };
        acts["mouse"] = [this](const QString&) {
            QMouseEvent move(QEvent::MouseMove, plot->canvas()->contentsRect().center(), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(plot->canvas(), &move);
        };
        acts["leave"] = [this](const QString&) {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(plot->canvas(), &leave);
        };
        sights["scale"] = [this](const QString&) -> QString {
            const QwtInterval ends = plot->axisInterval(QwtPlot::yRight);
            return plot->axisEnabled(QwtPlot::yRight) ? QString("%1, %2 to %3")
                                                            .arg(plot->axisTitle(QwtPlot::yRight).text())
                                                            .arg(ends.minValue(), 0, 'f', 3)
                                                            .arg(ends.maxValue(), 0, 'f', 3)
                                                      : "none";
        };
        sights["contours"] = [this](const QString&) { return spectrogram()->contourLevels().isEmpty() ? "0" : "yes"; };
        sights["computed"] = [this](const QString&) { return spectrogram()->data() ? "yes" : "no"; };
        sights["against shown"] = [this](const QString&) {
            return panel.findChild<ComparePane*>()->findChild<SystemNameLine*>()->text();
        };
        sights["records"] = [this](const QString&) { return QString::number(dictionary_alive_count() - alive); };
    }

private:
    QwtPlotSpectrogram* spectrogram() const {
        return static_cast<QwtPlotSpectrogram*>(plot->itemList(QwtPlotItem::Rtti_PlotSpectrogram).first());
    }

    void choose(const QString& name, const QString& keys) {
        ModalDriver::onNextDialog([keys](QDialog* dialog) {
            QTest::keyClicks(dialog->focusWidget(), keys.section('<', 0, 0));
            if (keys.endsWith("<Down>"))
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
            if (dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QTest::keyClick(button(name), Qt::Key_Space);
        QCOMPARE(ModalDriver::pending(), 0);
    }

    AreaPlot* plot;
    int alive = 0;
};

} // namespace

/// The page "Compare", over the real projection module.
class ComparePaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void script_data() { Script::addRows({"compare.txt"}); }

    void script() {
        QFETCH(QString, start);
        CompareOnScreen(start).play();
    }
};

ROOM_TEST(ComparePaneTest)
#include "ComparePaneTest.moc"

#include "panel/record/AngleText.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QFont>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace Key = CoordParamKey;

namespace {

/// Makes every text of the panel 40 % longer.
class LongTranslation : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override {
        if (QByteArray(context) != "DlgCoordParam")
            return QString();
        const QString source = QString::fromUtf8(sourceText);
        return source + ' ' + source.left(int(source.size() * 0.4));
    }
};

} // namespace

class DlgCoordParamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesBackUneditedRecord_data() {
        // method: -1: a fresh one, -2: odd texts, -3: nothing
        const Rows<int> row({"method"});
        for (const ProjectionFields& projection : ProjectionFields::all())
            row(projection.name, int(projection.method));
        row("fresh", -1);
        row("odd texts", -2);
        row("empty", -3);
    }

    void givesBackUneditedRecord() {
        QFETCH(int, method);
        const DictionaryGuard record = method >= 0    ? PanelRecords::imported(ProjectionMethod(method))
                                       : method == -1 ? PanelRecords::fresh()
                                       : method == -2 ? PanelRecords::imported(ProjectionMethod::LambertTwoParallels)
                                                      : DictionaryGuard();
        if (method == -2) {
            for (const char* key : {Key::ellipsoidA, Key::orgLat, Key::factor, Key::parallel1Lat, Key::shiftRx,
                                    Key::cuttingRadius, Key::geoidName})
                record->setText(key, "1,5 \xe2\x82\xac %s");
            PanelRecords::change(*record, {"org_lon=~~+0009.50~", "project_type=9~", "_7type=7", "parallel_2_lat="});
        }
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        for (int tab = 0; tab < 4; ++tab) {
            screen.panel.setCurrentIndex(tab);
            for (const AngleNotation notation : {AngleNotation::DegreesMinutesSeconds, AngleNotation::DecimalDegrees}) {
                if (tab == PanelOnScreen::Projection)
                    screen.choose(DlgCoordParam::tr("Show angles in"), int(notation));
                for (QLineEdit* edit : screen.panel.findChildren<QLineEdit*>()) {
                    edit->setFocus();
                    QTest::keyClick(edit, Qt::Key_End);
                    QTest::keyClick(edit, Qt::Key_Escape);
                    QTest::keyClick(edit, Qt::Key_Return);
                }
            }
            QCOMPARE(recordText(screen.record()), before);
        }
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(recordText(screen.record()), before);
        QCOMPARE(screen.edits.count(), 0);
    }

    /// A start, and a click in the tree, build and show what is seen, and nothing else.
    void buildsATabWhenItIsFirstShown() {
        PanelOnScreen screen(*PanelRecords::fresh(), PanelOnScreen::Ellipsoid);
        const auto content = [&screen](int tab) {
            const QObject* const shown = screen.panel.widget(tab)->findChild<QScrollArea*>()->widget();
            return shown->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        };
        const QSize hint = screen.panel.sizeHint(), least = screen.panel.minimumSizeHint();
        for (int tab = 1; tab < screen.panel.count(); ++tab) {
            screen.panel.setCoordParam(screen.record());
            QVERIFY(content(tab).isEmpty());
            screen.panel.setCurrentIndex(tab);
            QVERIFY(!content(tab).isEmpty());
            const auto built = content(tab);
            screen.panel.setCurrentIndex(0);
            screen.panel.setCurrentIndex(tab);
            QCOMPARE(content(tab), built);
            // The window neither grows nor shrinks with it.
            QApplication::processEvents();
            QCOMPARE(screen.panel.sizeHint(), hint);
            QCOMPARE(screen.panel.minimumSizeHint(), least);
        }
        QCOMPARE(screen.edits.count(), 0);
    }

    void takesNoEditsBeforeItHasARecord() {
        RecordingCatalogue catalogue;
        DlgCoordParam panel(&catalogue, nullptr, false);
        panel.resize(640, 560);
        panel.show();
        const auto isEditable = [&panel] {
            for (int tab = 0; tab < panel.count(); ++tab) {
                panel.setCurrentIndex(tab);
                for (const QWidget* widget : panel.currentWidget()->findChildren<QWidget*>()) {
                    if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus)
                        return true;
                }
            }
            return false;
        };
        const auto says = [&panel] {
            for (const QWidget* widget : panel.currentWidget()->findChildren<QWidget*>()) {
                const QString text = widget->accessibleName();
                if (widget->isVisible() && text.contains("choose a coordinate system in the tree"))
                    return widget->width() > widget->fontMetrics().horizontalAdvance(text);
            }
            return false;
        };
        QVERIFY(!isEditable());
        QTRY_VERIFY(says());
        panel.setCoordParam(*PanelRecords::fresh());
        QVERIFY(isEditable());
        QVERIFY(!says());
        panel.setEnabled(false);
        QVERIFY(!isEditable());
        QTRY_VERIFY(says());
    }

    void refusesEditsWhenReadOnly() {
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid, true);
        for (int tab = 0; tab < 4; ++tab) {
            screen.show(*record, tab);
            for (QLineEdit* edit : screen.findAll<QLineEdit>())
                QTest::keyClicks(edit, "1");
            for (QComboBox* box : screen.findAll<QComboBox>()) {
                if (box->accessibleName() != "Show angles in")
                    QTest::keyClick(box, Qt::Key_Down);
            }
            for (QPushButton* button : screen.findAll<QPushButton>())
                QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(recordText(screen.record()), recordText(*record));
            QCOMPARE(screen.edits.count(), 0);
        }
    }

    void isNotEditedByTheWheel() {
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        int boxes = 0;
        for (int tab = 0; tab < screen.panel.count(); ++tab) {
            screen.panel.setCurrentIndex(tab);
            QApplication::processEvents();
            for (QComboBox* box : screen.findAll<QComboBox>()) {
                const int index = box->currentIndex();
                box->setFocus();
                for (const int turn : {120, -120}) {
                    QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(),
                                      QPoint(0, turn), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                    QApplication::sendEvent(box, &wheel);
                    QCOMPARE(box->currentIndex(), index);
                }
                ++boxes;
            }
        }
        QVERIFY(boxes >= 7); // ellipsoid, method, notation twice, shift, geoid, dialect
        QCOMPARE(recordText(screen.record()), recordText(*record));
    }

    /// Tabs are built late; the keyboard gets to what follows the panel after them.
    void comesBeforeWhatFollowsInTabOrder() {
        PanelOnScreen screen(*PanelRecords::imported(ProjectionMethod::TransverseMercatorScaled));
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* panel = new DlgCoordParam(&screen.catalogue, &window, false);
        layout->addWidget(panel);
        auto* save = new QPushButton("Save");
        layout->addWidget(save);
        layout->addWidget(new QPushButton("Exit"));
        panel->setCoordParam(screen.record());
        window.resize(640, 560);
        window.show();
        QApplication::setActiveWindow(&window);
        for (const int tab : {PanelOnScreen::Definition, PanelOnScreen::Check}) {
            panel->setCurrentIndex(tab);
            panel->findChild<QTabBar*>()->setFocus();
            QApplication::processEvents();
            QStringList names;
            while (QApplication::focusWidget() != save && names.size() < 40) {
                const auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
                names << (button ? button->text() : QApplication::focusWidget()->accessibleName());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            const QByteArray way = names.join(", ").toUtf8();
            QVERIFY2(names.size() < 40, way);
            if (tab == PanelOnScreen::Definition)
                QCOMPARE(way, ", In the registry, Copy, PROJ definition, WKT dialect, Copy, Save as .prj, WKT, Save "
                              "group..., Where from, From "
                              "registry..., Remark, From text...");
            else
                QVERIFY2(names.contains("Latitude") && names.contains("Show angles in"), way);
        }

        // A button that greys itself gives the keyboard back to where it was.
        panel->setCurrentIndex(PanelOnScreen::Projection);
        auto* edit = panel->findChild<QLineEdit*>(Key::falseEast);
        edit->setFocus();
        connect(save, &QPushButton::clicked, save, [save] { save->setEnabled(false); });
        save->setFocus();
        save->click();
        QCOMPARE(QApplication::focusWidget(), edit);
    }

    void fitsItsWindow_data() {
        const Rows<bool, int> row({"longTexts", "pixels"});
        row("English", false, 13);
        row("40 % longer", true, 13);
        row("a 30 % larger font", false, 17);
    }

    /// Beside the tree in a window of 800 x 600, at the usual size of a desktop's font and a larger one.
    void fitsItsWindow() {
        QFETCH(bool, longTexts);
        QFETCH(int, pixels);
        LongTranslation translation;
        if (longTexts)
            QVERIFY(QCoreApplication::installTranslator(&translation));
        const QFont usual = QApplication::font();
        QFont font = usual;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        {
            PanelOnScreen screen(*PanelRecords::fresh());
            QSplitter splitter;
            splitter.addWidget(new QTreeWidget);
            auto* panel = new DlgCoordParam(&screen.catalogue, nullptr, false);
            splitter.addWidget(panel);
            splitter.setStretchFactor(0, 1);
            splitter.setStretchFactor(1, 2);
            splitter.resize(780, 530);
            splitter.show();
            for (const ProjectionFields& projection : ProjectionFields::all()) {
                const bool isFirst = projection.method == ProjectionMethod::TransverseMercator;
                for (int tab = 0; tab < (isFirst ? panel->count() : 4); ++tab) {
                    panel->setCurrentIndex(tab);
                    panel->setCoordParam(*PanelRecords::imported(projection.method));
                    QApplication::processEvents();
                    const auto* area = panel->currentWidget()->findChild<QScrollArea*>();
                    const QString where = QString("%1, tab %2").arg(projection.name).arg(tab);
                    QVERIFY2(area->horizontalScrollBar()->maximum() == 0, qPrintable(where));
                    QVERIFY2(area->verticalScrollBar()->maximum() == 0 ||
                                 (pixels > 13 && tab == PanelOnScreen::Projection),
                             qPrintable(where));
                }
            }
            const auto* bar = panel->findChild<QTabBar*>();
            QVERIFY(bar->rect().contains(bar->tabRect(0)) && bar->rect().contains(bar->tabRect(bar->count() - 1)));
            QVERIFY(splitter.sizes()[0] >= (pixels == 13 && !longTexts ? 250 : 130));
        }
        QApplication::setFont(usual);
    }
};

ROOM_TEST(DlgCoordParamTest)
#include "DlgCoordParamTest.moc"

#include "panel/check/CheckPointPane.h"

#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"

#include <QPlainTextEdit>
#include <QTest>

/// The page "Point" of the tab "Check", over the real projection module.
class CheckPointPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingBeforeItIsShown() {
        PanelOnScreen screen("Ellipsoid: UTM");
        QVERIFY(!screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
        screen.panel.setCurrentIndex(PanelOnScreen::Check);
        QVERIFY(screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
    }

    void script_data() { Script::addRows({"check_point.txt"}); }

    void script() {
        QFETCH(QString, start);
        PanelOnScreen(start).play();
    }
};

ROOM_TEST(CheckPointPaneTest)
#include "CheckPointPaneTest.moc"

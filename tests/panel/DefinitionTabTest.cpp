#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

class DefinitionTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsWithEsri() {
        const PanelOnScreen screen(*PanelRecords::imported(ProjectionMethod::TransverseMercatorScaled),
                                   PanelOnScreen::Definition);
        QCOMPARE(screen.find<QComboBox>("WKT dialect")->currentText(), QString("WKT 1 (ESRI)"));
        QVERIFY(screen.find<QPlainTextEdit>("WKT")->toPlainText().contains("PROJECTION[\"Transverse_Mercator\"]"));
        QVERIFY(screen.find<QPlainTextEdit>("WKT")->toPlainText().contains("D_"));
    }

    void copiesEachText() {
        const PanelOnScreen screen(*PanelRecords::imported(ProjectionMethod::TransverseMercatorScaled),
                                   PanelOnScreen::Definition);
        const QList<QPair<int, QString>> texts = {{0, "PROJ definition"}, {1, "WKT"}};
        QList<QPushButton*> buttons;
        for (QPushButton* button : screen.findAll<QPushButton>()) {
            if (button->text() == "Copy")
                buttons << button;
        }
        QCOMPARE(buttons.size(), 2);
        for (const auto& [index, name] : texts) {
            QTest::mouseClick(buttons[index], Qt::LeftButton);
            QCOMPARE(buttons[index]->text(), QString("Copied"));
            QCOMPARE(QApplication::clipboard()->text(), screen.find<QPlainTextEdit>(name)->toPlainText());
        }
    }
};

ROOM_TEST(DefinitionTabTest)
#include "DefinitionTabTest.moc"

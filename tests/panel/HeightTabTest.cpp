#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

class HeightTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choosesGeoid() {
        const QDir folder(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/GeoidData");
        QFile file(folder.filePath("HeightTabTest.ggf"));
        QVERIFY(folder.mkpath(".") && file.open(QIODevice::WriteOnly) && file.write("model") == 5);
        file.close();
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record, PanelOnScreen::Height);
        auto* box = screen.find<QComboBox>("Geoid model");
        QCOMPARE(box->currentText(), QString("(none)"));
        QCOMPARE(screen.messages(), QStringList());
        screen.catalogue.addTestGeoid("Ours", "HeightTabTest.ggf", "GRS 1980", "0");
        box->showPopup();
        box->hidePopup();
        screen.choose("Geoid model", box->findText("Ours"));
        QCOMPARE(PanelRecords::changedKeys(before, screen.record()), QStringList(CoordParamKey::geoidName));
        QCOMPARE(screen.value(CoordParamKey::geoidName), "Ours");
        QCOMPARE(screen.messages(), QStringList());
        QVERIFY(file.remove());
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(screen.messages(), QStringList("Not in the folder of geoid models."));
        screen.choose("Geoid model", box->findText("EGM2008"));
        QVERIFY(screen.messages().join(' ').contains("another ellipsoid"));
        screen.catalogue.deleteGeoid("EGM2008");
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(box->currentText(), QString("EGM2008"));
        QCOMPARE(screen.messages(), QStringList("Not in the list of geoid models."));
        screen.choose("Geoid model", 0);
        QCOMPARE(recordText(screen.record()), before);
    }
};

ROOM_TEST(HeightTabTest)
#include "HeightTabTest.moc"

#include "panel/field/SearchBox.h"
#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

namespace Key = CoordParamKey;

class EllipsoidTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsWhatFollows() {
        const DictionaryGuard record = PanelRecords::fresh();
        dic_set_value(record.get(), Key::ellipsoidF, "%f", 298.257223563);
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        QCOMPARE(screen.shown("Inverse flattening 1/f"), QString("298.257223563"));
        QCOMPARE(screen.shown("Semi-minor axis b"), QString("6356752.314245")); // as published for WGS 84
        QCOMPARE(screen.shown("Eccentricity e"), QString("0.081819190843"));
        screen.type("Inverse flattening 1/f", "200");
        QVERIFY(screen.messages().contains("Unusual for the Earth."));
        QCOMPARE(screen.shown("Semi-minor axis b"), QString("6346246.315000"));
        screen.type("Inverse flattening 1/f", "0");
        QCOMPARE(screen.shown("Eccentricity e"), QString("0.000000000000"));
    }

    void choosesEllipsoid() {
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        record->setText(Key::ellipsoidName, "Ours");
        PanelOnScreen screen(*record, PanelOnScreen::Ellipsoid);
        auto* box = screen.find<SearchBox>("Ellipsoid");
        QCOMPARE(box->currentText(), QString("Ours"));
        QVERIFY(screen.messages().contains("Not in the list of ellipsoids."));

        // The catalogue's record is taken over, digits and all.
        IDictionary* added = screen.catalogue.addTestEllipsoid("New", "", "", "0");
        dic_set_value(added, Key::ellipsoidA, "%f", 6377483.865280419);
        dic_set_value(added, Key::ellipsoidF, "%f", 299.1528128);
        const QStringList before = recordText(screen.record());
        box->showPopup();
        box->hidePopup();
        QVERIFY(box->findText("New") >= 0);
        screen.choose("Ellipsoid", box->findText("New"));
        QCOMPARE(PanelRecords::changedKeys(before, screen.record()),
                 QStringList({Key::ellipsoidA, Key::ellipsoidF, Key::ellipsoidName}));
        QCOMPARE(screen.value(Key::ellipsoidName), "New");
        QCOMPARE(screen.number(Key::ellipsoidA), 6377483.865280419);
        QCOMPARE(screen.shown("Semi-major axis a"), QString("6377483.865280419"));
        QCOMPARE(screen.messages(), QStringList());
        QCOMPARE(screen.edits.count(), 1);

        screen.type("Semi-major axis a", "6377483");
        QVERIFY(screen.messages().join(' ').contains("differ"));
        screen.catalogue.deleteEllipsoid("New");
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(box->currentText(), QString("New"));
        QCOMPARE(box->findText("New"), -1);
    }

    void keepsNothingTypedHalf() {
        PanelOnScreen screen(*PanelRecords::fresh(), PanelOnScreen::Ellipsoid);
        auto* box = screen.find<SearchBox>("Ellipsoid");
        for (const bool isShownAnew : {false, true}) {
            box->setFocus();
            box->lineEdit()->selectAll();
            QTest::keyClicks(box, "no such");
            if (isShownAnew)
                screen.panel.setCoordParam(*PanelRecords::fresh());
            else
                screen.panel.setCurrentIndex(PanelOnScreen::Height);
            screen.panel.setCurrentIndex(PanelOnScreen::Ellipsoid);
            QCOMPARE(box->currentText(), QString("GRS 1980"));
            QCOMPARE(recordText(screen.record()), recordText(*PanelRecords::fresh()));
        }
    }
};

ROOM_TEST(EllipsoidTabTest)
#include "EllipsoidTabTest.moc"

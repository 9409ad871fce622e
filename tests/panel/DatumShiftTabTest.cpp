#include "support/PanelOnScreen.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"

namespace Key = CoordParamKey;

class DatumShiftTabTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsShift() {
        const DictionaryGuard record = PanelRecords::fresh();
        dic_set_value(record.get(), Key::shiftType, "%d", 0);
        PanelOnScreen screen(*record, PanelOnScreen::Shift);
        QVERIFY(!screen.field("Rotation X"));
        screen.choose("Shift to WGS 84", 1);
        QCOMPARE(screen.value(Key::shiftType), "2");
        QCOMPARE(screen.number(Key::shiftPpm), 0.0);

        screen.type("Translation X", "-87");
        screen.type("Rotation X", "-0.1502");
        screen.type("Rotation Z", "0.50");
        QCOMPARE(screen.value(Key::shiftDx), "-87");
        QCOMPARE(screen.number(Key::shiftRx), -0.1502 / 3600);
        screen.panel.setCoordParam(screen.record());
        QCOMPARE(screen.shown("Rotation X"), QString("-0.1502"));

        const QStringList before = recordText(screen.record());
        auto* reverse = screen.button("Reverse rotation signs");
        QTest::mouseClick(reverse, Qt::LeftButton);
        QCOMPARE(screen.shown("Rotation X"), QString("0.1502"));
        QCOMPARE(screen.shown("Rotation Y"), QString("0"));
        QCOMPARE(screen.shown("Rotation Z"), QString("-0.5"));
        QCOMPARE(PanelRecords::changedKeys(before, screen.record()), QStringList({Key::shiftRx, Key::shiftRz}));
        QVERIFY(screen.messages().join(' ').contains("reversed"));
        QTest::mouseClick(reverse, Qt::LeftButton);
        QCOMPARE(recordText(screen.record()), before);

        screen.choose("Shift to WGS 84", 0);
        QCOMPARE(screen.value(Key::shiftType), "0");
        screen.choose("Shift to WGS 84", 1);
        QCOMPARE(recordText(screen.record()), before);
    }

    void keepsAnUnknownKind() {
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        for (const char* kind : {"5", "grid"}) {
            record->setText(Key::shiftType, kind);
            const PanelOnScreen screen(*record, PanelOnScreen::Shift);
            QCOMPARE(screen.find<QComboBox>("Shift to WGS 84")->currentIndex(), -1);
            QCOMPARE(recordText(screen.record()), recordText(*record));
        }
    }

    void namesDatum() {
        const DictionaryGuard record = PanelRecords::imported(ProjectionMethod::TransverseMercator);
        const QStringList before = recordText(*record);
        PanelOnScreen screen(*record, PanelOnScreen::Shift);
        auto* box = screen.find<QComboBox>("Datum");
        QCOMPARE(box->count(), 0); // read when it is needed
        box->showPopup();
        box->hidePopup();
        QVERIFY(box->findText("Deutsches Hauptdreiecksnetz") >= 0);
        QCOMPARE(recordText(screen.record()), before);

        screen.choose("Datum", box->findText("Deutsches Hauptdreiecksnetz"));
        QCOMPARE(screen.value(Key::datumName), "Deutsches Hauptdreiecksnetz");
        // It is not of the shift or the ellipsoid: they change without it.
        screen.choose("Shift to WGS 84", 0);
        box->lineEdit()->selectAll();
        QTest::keyClicks(box, "Own");
        screen.panel.setCurrentIndex(PanelOnScreen::Ellipsoid);
        screen.choose("Ellipsoid", 2);
        QCOMPARE(screen.value(Key::datumName), "Own");
        screen.panel.setCurrentIndex(PanelOnScreen::Definition);
        QApplication::processEvents();
        QVERIFY(screen.find<QPlainTextEdit>("WKT")->toPlainText().contains("DATUM[\"D_Own\""));
        QTest::mouseClick(screen.button("Back to the values before"), Qt::LeftButton);
        QCOMPARE(recordText(screen.record()), before);
        screen.panel.setCurrentIndex(PanelOnScreen::Shift);
        QCOMPARE(box->currentText(), QString());

        const PanelOnScreen readOnly(*record, PanelOnScreen::Shift, true);
        readOnly.find<QComboBox>("Datum")->showPopup();
        QCOMPARE(readOnly.find<QComboBox>("Datum")->count(), 0);
        QTest::keyClicks(readOnly.find<QComboBox>("Datum"), "x");
        QCOMPARE(recordText(readOnly.record()), before);
    }
};

ROOM_TEST(DatumShiftTabTest)
#include "DatumShiftTabTest.moc"

#include "catalogue/CoordParamKey.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionFields.h"
#include "support/PanelRecords.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

namespace Key = CoordParamKey;

namespace {

const ParamField& field(const QByteArray& key) {
    for (const ParamField& shift : DatumFields::shift()) {
        if (shift.is(key))
            return shift;
    }
    return *ProjectionFields::find(int(ProjectionMethod::TransverseMercatorScaled))->field(key);
}

} // namespace

class ParamFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsItsUnit_data() {
        // stored: empty: refused
        const Rows<QByteArray, QByteArray> row({"key", "stored"});
        row("500000 m", Key::falseEast, "500000");
        row("1,000,000.00m", Key::falseEast, "1000000.00");
        row("12.5 ppm", Key::shiftPpm, "12.5");
        row("12.5PPM", Key::shiftPpm, "12.5");
        row("1.8\"", Key::shiftRx, "0.0005");
        row("-3.6''", Key::shiftRx, "-0.001");
        row("3.6″", Key::shiftRx, "0.001");
        row("45°", Key::orgLat, "45");
        row("500000 ft", Key::falseEast, "");
        row("12.5 m", Key::shiftPpm, "");
        row("m", Key::falseEast, "");
        row("0.9996 m", Key::factor, "");
        row("9 m", Key::orgLon, "");
    }

    void readsItsUnit() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, stored);
        const FieldInput input = field(key).parse(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(input.valid, !stored.isEmpty());
        QCOMPARE(input.valid ? input.text : QByteArray(), stored);
    }

    void showsValues_data() {
        const Rows<QByteArray, QByteArray> row({"key", "stored"});
        row("45.504305555556", Key::orgLat, "45.50430555555555");
        row("49.833333333333", Key::orgLat, "#49.83333333333334");
        row("117.500", Key::orgLon, "117.500");
        row("9.5", Key::orgLon, "9.500000");
        row("12.5", Key::falseNorth, "12.500000");
        row("500000.50", Key::falseEast, "500000.50");
        row("304800.6096012192", Key::falseEast, "#304800.6096012192");
        row("-2.455", Key::shiftRz, "#-0.0006819444444444444");
        row("0.00001", Key::shiftPpm, "#0.00001");
        row("9,5", Key::orgLon, "9,5");
    }

    void showsValues() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, stored); // "#" before a number that is behind the text
        const DictionaryGuard record;
        if (stored.startsWith('#'))
            dic_set_value(record.get(), key, "%f", stored.mid(1).toDouble());
        else
            record->setText(key, stored);
        QCOMPARE(field(key).shownText(*record, AngleNotation::DecimalDegrees),
                 QString::fromUtf8(QTest::currentDataTag()));
    }
};

ROOM_TEST(ParamFieldTest)
#include "ParamFieldTest.moc"

#include "panel/record/AngleText.h"

#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <cmath>

Q_DECLARE_METATYPE(AngleRole)

class AngleTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parses_data() {
        const Rows<AngleRole, double, QString> row({"role", "degrees", "stored"});
        for (const QByteArrayList& line : textTable("angles.txt"))
            row(QByteArray(line[0]).replace('~', ' '),
                line[1] == "lat"   ? AngleRole::Latitude
                : line[1] == "lon" ? AngleRole::Longitude
                                   : AngleRole::Azimuth,
                line[2].toDouble(), line[3]);
    }

    void parses() {
        QFETCH(AngleRole, role);
        QFETCH(double, degrees);
        QFETCH(QString, stored);
        const AngleInput input = AngleText::parse(QTest::currentDataTag(), role);
        QVERIFY2(input.valid, qPrintable(input.reason));
        QVERIFY(qAbs(input.degrees - degrees) <= 1e-13);
        QCOMPARE(std::signbit(input.degrees), std::signbit(degrees));
        QCOMPARE(input.decimal, stored);
        QCOMPARE(input.decimal.toDouble(), input.degrees);
    }

    void refuses_data() {
        const Rows<AngleRole> row({"role"});
        for (const char* typed :
             {"117,5", "45,500",     "117 60 00",      "117 30 60", "117.5 30", "117 30.5 10", "-45S",
              "+45N",  "N45S",       "45 30 20 10",    "45 -30",    "4 5 .",    "1e2",         "nan",
              "inf",   "0x10",       "--45",           "45°°",      "45.5.5",   "forty",       "45 30' 20\" \"",
              "١٢",    "45d30m15 s", "45 d 30 m 15 s", "45m",       "45d30s15m"})
            row(typed, AngleRole::Latitude);
        row("45E", AngleRole::Latitude);
        row("7N", AngleRole::Longitude);
        row("53N", AngleRole::Azimuth);
    }

    void refuses() {
        QFETCH(AngleRole, role);
        const AngleInput input = AngleText::parse(QString::fromUtf8(QTest::currentDataTag()), role);
        QVERIFY(!input.valid);
        QVERIFY(!input.reason.isEmpty());
    }

    void readsTyped_data() {
        const Rows<double> row({"degrees"}); // 1000: refused
        row("117,5", 117.5);
        row("45,500", 45.5);
        row(",5", 0.5);
        row("-7 30,5", -(7 + 30.5 / 60));
        row("117°30'00,5\"", 117 + 1800.5 / 3600);
        row("S 45 30,5", -(45 + 30.5 / 60));
        row("7.5", 7.5);
        for (const char* typed : {"52.1,13.2", "52, 13", "52 ,13", "52,13,10", "52,5 13", ","})
            row(typed, 1000);
    }

    void readsTyped() {
        QFETCH(double, degrees);
        const AngleInput input = AngleText::parseTyped(QString::fromUtf8(QTest::currentDataTag()), AngleRole::Latitude);
        QCOMPARE(input.valid, degrees < 1000);
        QVERIFY(!input.valid || qAbs(input.degrees - degrees) <= 1e-13);
        QCOMPARE(input.reason.isEmpty(), input.valid);
    }

    void formats_data() {
        const Rows<double, QString, QString> row({"degrees", "decimal", "expected"});
        row("half", 117.5, "117.5", "117°30'00\"");
        row("seconds", 45 + 1815.5 / 3600, "45.504305555556", "45°30'15.5\"");
        row("third", 49.83333333333334, "49.833333333333", "49°50'00\"");
        row("carries over", 8.9999999999999, "9", "9°00'00\"");
        row("keeps 1e-11", 9.00000000001, "9.00000000001", "9°00'00.00000004\"");
        row("negative below one", -2730.0 / 3600, "-0.758333333333", "-0°45'30\"");
        row("nearly zero", -1e-14, "0", "0°00'00\"");
        row("hundreds", 300.0, "300", "300°00'00\"");
    }

    void formats() {
        QFETCH(double, degrees);
        QFETCH(QString, decimal);
        QFETCH(QString, expected);
        QCOMPARE(AngleText::format(degrees, AngleNotation::DecimalDegrees), decimal);
        const QString sexagesimal = AngleText::format(degrees, AngleNotation::DegreesMinutesSeconds);
        QCOMPARE(sexagesimal, expected);
        QVERIFY(qAbs(AngleText::parse(sexagesimal, AngleRole::Longitude).degrees - degrees) < 2e-12);
    }
};

ROOM_TEST(AngleTextTest)
#include "AngleTextTest.moc"

#include "panel/record/NumberText.h"

#include "support/RoomTest.h"
#include "support/Rows.h"

class NumberTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parses_data() {
        // stored: empty: refused
        const Rows<QString> row({"stored"});
        row(" 500000.50 ", "500000.50");
        row("+1", "1");
        row("−0.1", "-0.1");
        row("1e6", "1e6");
        row("1 000 000.00", "1000000.00");
        row("-500 000", "-500000");
        row("651\u202f409.903", "651409.903");
        row("1\u00a0000\u00a0000", "1000000");
        row("1'000'000", "1000000");
        row("2’600’000.5", "2600000.5");
        row("1,000,000.00", "1000000.00");
        row("1,000,000", "1000000");
        row("-1,000.5", "-1000.5");
        row("1,000.", "1000.");
        for (const char* typed :
             {"",        "-",        ".",        "500,5",       "1,000",     "45,500",   "500,000",   "1.000.000",
              "1.000,5", "1,00,000", "1,000,00", "1000,000.5",  "1 000,000", "1 00",     "1000 000",  "1 000'000",
              "1  000",  "1'0000",   ",000.5",   "1 000 000e3", "0x10",      "nan",      "inf",       "1e999",
              "1e",      "500000m",  "1.2.3",    "٥",           "1.000 000", "x1,000.0", "1,000,000,"})
            row(*typed ? typed : "nothing", "");
    }

    void parses() {
        QFETCH(QString, stored);
        const QString typed = QString::fromUtf8(QTest::currentDataTag());
        double number = 0;
        QString plain;
        QCOMPARE(NumberText::parse(typed == "nothing" ? QString() : typed, &number, &plain), !stored.isEmpty());
        QCOMPARE(plain, stored);
        QCOMPARE(number, stored.toDouble());
    }

    void readsTyped_data() {
        // stored: empty: refused
        const Rows<QString> row({"stored"});
        row("500,5", "500.5");
        row("-45,5", "-45.5");
        row("0,999", "0.999");
        row("500000,123", "500000.123");
        row("1.234,567", "1234.567");
        row("1.234.567,8", "1234567.8");
        row("651 409,903", "651409.903");
        row("1'000,5", "1000.5");
        row("45,", "45.");
        row(",5", ".5");
        row("1,5e3", "1.5e3");
        row("1,000,000", "1000000");
        row("1,000.5", "1000.5");
        row("45.500", "45.500");
        for (const char* typed :
             {"45,500", "1,000", "500,000", "-7,125", "7,125e3", "1,5,0", "1.5,5", "12.34,5", ",", "1 5,5"})
            row(typed, "");
    }

    void readsTyped() {
        QFETCH(QString, stored);
        const QString typed = QString::fromUtf8(QTest::currentDataTag());
        double number = 0;
        QString plain;
        QCOMPARE(NumberText::parseTyped(typed, &number, &plain), !stored.isEmpty());
        QCOMPARE(plain, stored);
        QCOMPARE(number, stored.toDouble());
    }
};

ROOM_TEST(NumberTextTest)
#include "NumberTextTest.moc"

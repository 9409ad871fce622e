#include "catalogue/DictionaryGuard.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtNumeric>

#include <clocale>
#include <cstring>

/// Switches the process to a locale with a decimal comma, one of the system's or else one compiled into `folder`.
static bool useDecimalComma(const QTemporaryDir& folder) {
    for (const char* name : {"de_DE.UTF-8", "de_DE", "German"}) {
        if (setlocale(LC_ALL, name))
            return true;
    }
    QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", folder.filePath("de_DE.UTF-8")});
    qputenv("LOCPATH", folder.path().toLocal8Bit());
    return setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
}

class DictionaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { alive = dictionary_alive_count(); }
    void cleanup() { QCOMPARE(dictionary_alive_count(), alive); }

    void keysKeepTheirOrder() {
        DictionaryGuard record;
        for (const char* key : {"name", "b", "a", "", "c"})
            record->setText(key, key);
        record->setText("b", "changed");
        record->remove("a");
        record->remove("missing");
        record->setText("a", "again");
        QCOMPARE(recordText(*record), (QStringList{"name=name", "b=changed", "=", "c=c", "a=again"}));
        QCOMPARE(record->getValue("missing"), nullptr);
        QCOMPARE(record->getKey(-1), nullptr);
        QCOMPARE(record->getKey(5), nullptr);
        record->clear();
        QCOMPARE(record->count(), 0);
        QCOMPARE(record->getValue("name"), nullptr);
    }

    void textsStayValidWhileOthersChange() {
        DictionaryGuard record;
        record->setText("first", "x");
        record->setText("second", "kept");
        const char* key = record->getKey(1);
        const char* text = record->getValue("second");
        for (int i = 0; i < 1000; ++i)
            record->setText(QByteArray::number(i).constData(), "filler");
        record->remove("first");
        QCOMPARE(key, "second");
        QCOMPARE(text, "kept");
        record->setText("second", text); // its own text
        record->setText("filler", record->getValue("second"));
        QCOMPARE(record->getValue("second"), "kept");
        QCOMPARE(record->getValue("filler"), "kept");
        record->remove(record->getKey(0)); // its own key
        QCOMPARE(record->getKey(0), "0");
    }

    void nullArgumentsAreHarmless() {
        DictionaryGuard record;
        record->setText("name", nullptr);
        QCOMPARE(record->getValue("name"), "");
        record->setText(nullptr, "x");
        record->remove(nullptr);
        QCOMPARE(record->getValue(nullptr), nullptr);
        QVERIFY(!record->getNumber("name", nullptr));
        dic_set_value(nullptr, "a", "%d", 1);
        dic_set_value(record.get(), nullptr, "%d", 1);
        dictionary_copy(nullptr, record.get(), "name", ',');
        dictionary_copy(record.get(), nullptr, "name", ',');
        dictionary_copy(record.get(), record.get(), nullptr, ',');
        dictionary_assign(nullptr, record.get());
        dictionary_assign(record.get(), nullptr);
        dictionary_assign(record.get(), record.get());
        QCOMPARE(recordText(*record), QStringList("name="));
        IDictionary* none = nullptr;
        dictionary_release_instance(&none);
        dictionary_release_instance(nullptr);
    }

    void formats_data() {
        const Rows<QByteArray, double, QByteArray, bool> row({"format", "number", "text", "keepsNumber"});
        row("%f", "%f", 298.257222101, "298.257222", true);
        row("negative zero", "%f", -0.0, "-0.000000", true);
        row("largest", "%.0f", 1e300, QByteArray::number(1e300, 'f', 0), true);
        row("flags", "%+08.2f", 1.5, "+0001.50", true);
        row("exponent", "%.3e", 1234.5678, "1.235e+03", true);
        row("shortest", "%.17g", 0.1, "0.10000000000000001", true);
        row("blank before", " %f", 1.0, " 1.000000", false);
        row("unit behind", "%f m", 1.0, "1.000000 m", false);
        row("percent behind", "%f%%", 1.0, "1.000000%", false);
    }

    void formats() {
        QFETCH(QByteArray, format);
        QFETCH(double, number);
        QFETCH(QByteArray, text);
        QFETCH(bool, keepsNumber);
        DictionaryGuard record;
        dic_set_value(record.get(), "key", format.constData(), number);
        QCOMPARE(QByteArray(record->getValue("key")), text);
        double kept = 0.0;
        QCOMPARE(record->getNumber("key", &kept), keepsNumber);
        QVERIFY(!keepsNumber || std::memcmp(&kept, &number, sizeof number) == 0);
    }

    void formatsUnderADecimalComma() {
        const QByteArray before = setlocale(LC_ALL, nullptr);
        const QTemporaryDir folder;
        const bool hasComma = useDecimalComma(folder);
        char comma[8];
        std::snprintf(comma, sizeof comma, "%.1f", 0.5);

        DictionaryGuard record;
        dic_set_value(record.get(), "a", "%f", 1234567.891);
        dic_set_value(record.get(), "many", "%s %d %.1f %s", "100 % \"sure\"", -7, 0.5, "\xC3\xA9\xFF%n");
        dic_set_value(record.get(), "star", "%*.*Lf", 9, 2, 3.14159L);
        const QByteArray longText = QByteArray(1000000, 'x') + "%s";
        dic_set_value(record.get(), "long", "%s", longText.constData());
        record->setText("text", "0.5");
        const double read = dictionary_number(*record, "text", 0.0);
        setlocale(LC_ALL, before.constData());

        QCOMPARE(record->getValue("a"), "1234567.891000");
        QCOMPARE(record->getValue("many"), "100 % \"sure\" -7 0.5 \xC3\xA9\xFF%n");
        QCOMPARE(record->getValue("star"), "     3.14");
        QCOMPARE(QByteArray(record->getValue("long")), longText);
        QCOMPARE(dictionary_number(*record, "star", 0.0), double(3.14159L));
        QCOMPARE(read, 0.5);
        if (!hasComma)
            QSKIP("no locale with a decimal comma, and none could be made");
        QCOMPARE(comma, "0,5");
    }

    void numbersNeverKept() {
        DictionaryGuard record;
        double number = 7.0;
        for (const double bad : {qQNaN(), qInf(), -qInf()}) {
            dic_set_value(record.get(), "key", "%f", bad);
            QVERIFY(!record->getNumber("key", &number));
            record->setNumber("key", "1", bad);
            QVERIFY(!record->getNumber("key", &number));
        }
        dic_set_value(record.get(), "key", "%d", 3);
        QVERIFY(!record->getNumber("key", &number));
        dic_set_value(record.get(), "text", "%f", 1.0 / 3.0);
        QCOMPARE(dictionary_number(*record, "text", 0.0), 1.0 / 3.0);
        record->setText("text", record->getValue("text"));
        QCOMPARE(dictionary_number(*record, "text", 0.0), 0.333333);
        QVERIFY(!record->getNumber("missing", &number));
        QCOMPARE(number, 7.0);
    }

    void numberOfAText() {
        const DictionaryGuard record;
        const auto numberOf = [&](const char* text) {
            record->setText("key", text);
            return dictionary_number(*record, "key", -1.0);
        };
        QCOMPARE(numberOf("6378137.000"), 6378137.0);
        QCOMPARE(numberOf(" \t-0.5\n"), -0.5);
        QCOMPARE(numberOf("1e3"), 1000.0);
        for (const char* bad :
             {"", " ", "1,5", "1.5 m", "1 000", "0x10", "nan", "inf", "-inf", "1e999", "1.5.2", "--1"})
            QVERIFY2(numberOf(bad) == -1.0, bad);
        QCOMPARE(dictionary_number(*record, "missing", -1.0), -1.0);
    }

    void copyTakesNumbers() {
        DictionaryGuard source, destination;
        dic_set_value(source.get(), "ellipsoid_a", "%f", 6378137.0000004);
        dic_set_value(source.get(), "ellipsoid_name", "%s", "100 %s");
        dic_set_value(source.get(), "factor", "%f", 0.9996);
        destination->setText("name", "kept");
        destination->setText("ellipsoid_f", "kept too");
        dictionary_copy(destination.get(), source.get(), ",ellipsoid_name,,ellipsoid_a,ellipsoid_f,", ',');
        QCOMPARE(recordText(*destination), (QStringList{"name=kept", "ellipsoid_f=kept too", "ellipsoid_name=100 %s",
                                                        "ellipsoid_a=6378137.000000[6378137.0000003995]"}));
    }

    void manyKeys() {
        DictionaryGuard record, copy;
        constexpr int count = 100000;
        const auto key = [](int i) { return QByteArray::number(i); };
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < count; ++i)
            record->setText(key(i).constData(), "first");
        for (int i = 0; i < count; ++i)
            record->setText(key(i).constData(), key(i).constData());
        record->remove("0");
        dictionary_assign(copy.get(), record.get());
        for (int i = 1; i < count; ++i)
            QCOMPARE(QByteArray(copy->getValue(key(i).constData())), key(i));
        QVERIFY2(timer.elapsed() < 5000, "the time grows with the square of the keys"); // 0.1 s against half a minute
        QCOMPARE(copy->count(), count - 1);
        QCOMPARE(copy->getValue("0"), nullptr);
        QCOMPARE(copy->getKey(0), "1");
        copy->remove("5");
        copy->setText("new", "x");
        copy->setText("5", "last");
        QCOMPARE(copy->getValue("5"), "last");
        QCOMPARE(copy->getKey(copy->count() - 1), "5");
        copy->clear();
        QCOMPARE(copy->getValue("7"), nullptr);
    }

    void assignMakesEqual() {
        DictionaryGuard source, destination;
        source->setText("b", "");
        source->setNumber("a", "one", 1.0);
        destination->setText("a", "old");
        destination->setText("old", "old");
        dictionary_assign(destination.get(), source.get());
        source->setText("a", "changed");
        QCOMPARE(recordText(*destination), (QStringList{"b=", "a=one[1]"}));
    }

private:
    int alive = 0;
};

ROOM_TEST(DictionaryTest)
#include "DictionaryTest.moc"

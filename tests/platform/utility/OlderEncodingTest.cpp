#include "catalogue/OlderEncoding.h"

#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>
#include <QTextCodec>

class OlderEncodingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ofALanguage_data() {
        const Rows<QString, QByteArray, QString> row({"language", "bytes", "text"});
        row("German", "de_DE", "H\xF6he 5 \x80", "Höhe 5 €");
        row("of no country", "C", "\xE9", "é");
        row("Polish", "pl_PL", "\xA3\xF3\x9F", "Łóź");
        row("Russian", "ru_RU", "\xCF\xF3\xEB", "Пул");
        row("Serbian, Latin letters", "sr_Latn_RS", "\xE8", "č");
        row("Serbian, Cyrillic letters", "sr_Cyrl_RS", "\xF7", "ч");
        row("Greek", "el_GR", "\xC1\xE8", "Αθ");
        row("Turkish", "tr_TR", "\xDD\xFE", "İş");
        row("Chinese", "zh_CN", "\xB1\xB1\xBE\xA9", "北京");
        row("Chinese of Taiwan", "zh_TW", "\xA5\x78\xA5\x5F", "台北");
        row("Japanese", "ja_JP", "\x93\x8C\x8B\x9E", "東京");
        row("Western degree sign, Chinese", "zh_CN", "52\xB0\x33\x30'", "52°30'");
        row("Western degree sign, Taiwan", "zh_TW", "52\xB0\x33\x30'", "52°30'");
        row("Korean", "ko_KR", "\xBC\xAD\xBF\xEF", "서울");
    }

    void ofALanguage() {
        QFETCH(QString, language);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        if (QSysInfo::kernelType() == "winnt")
            QSKIP("Windows itself says which encoding it is, whatever the language.");
        QCOMPARE(olderText(bytes, QLocale(language)), text);
    }
};

ROOM_TEST(OlderEncodingTest)
#include "OlderEncodingTest.moc"

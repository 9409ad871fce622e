#include "panel/record/GeoidFile.h"

#include "support/RoomTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

class GeoidFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhatIsWrong() {
        const QDir folder(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/GeoidData");
        QVERIFY(folder.mkpath("."));
        QFile file(folder.filePath("GeoidFileTest.ggf"));
        file.remove(); // what a run that failed left behind
        folder.rmdir("GeoidFileTest.ggf");
        QVERIFY(GeoidFile::problem(QString()).contains("no file"));
        QVERIFY(GeoidFile::problem("GeoidFileTest.ggf").contains("Not in the folder"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(GeoidFile::problem("GeoidFileTest.ggf").contains("empty"));
        QVERIFY(file.write("model") == 5 && file.flush());
        QCOMPARE(GeoidFile::problem("GeoidFileTest.ggf"), QString());
        if (!QFile::exists(folder.filePath("geoidfiletest.GGF"))) // the names of this disk tell cases apart
            QVERIFY(GeoidFile::problem("geoidfiletest.GGF").contains("\"GeoidFileTest.ggf\" instead"));
        QVERIFY(file.remove());
        QVERIFY(folder.mkdir("GeoidFileTest.ggf"));
        QVERIFY(GeoidFile::problem("GeoidFileTest.ggf").contains("Not a file"));
        QVERIFY(folder.rmdir("GeoidFileTest.ggf"));
    }
};

ROOM_TEST(GeoidFileTest)
#include "GeoidFileTest.moc"

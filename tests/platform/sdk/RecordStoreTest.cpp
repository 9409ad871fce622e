#include "Session.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"

#include <QTest>
#include <QTextCodec>

static void shipEllipsoids(const Folders& folders) {
    RecordFile file(ellipsoidFile);
    for (const char* name : {"WGS 84", "Bessel 1841"}) {
        DictionaryGuard record;
        record->setText("ellipsoid_name", name);
        record->setText("ellipsoid_a", "shipped");
        record->setText("ellipsoid_flag", "1");
        QVERIFY(file.records.append(record.get()));
    }
    QVERIFY(CatalogueFile::write(folders.shipped + "Ellipsoid.xml", file));
}

class RecordStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        alive = dictionary_alive_count();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void cleanup() { QCOMPARE(dictionary_alive_count(), alive); }

    void ellipsoidsOfTheUserAndShippedOnes() {
        const Folders folders;
        shipEllipsoids(folders);
        Session session(folders);
        QCOMPARE(session.getEllipsoidNames(), "WGS 84,Bessel 1841");
        for (const char* name : {"z", "a", "m"})
            session.addEllipsoidOf(name, "6378137.000", "0");
        session.addEllipsoidOf("a", "6378137.50", "0");
        QCOMPARE(session.getEllipsoidNames(), "WGS 84,Bessel 1841,z,a,m");
        session.deleteEllipsoid("z");
        session.saveRecords();
        Session next(folders);
        QCOMPARE(next.getEllipsoidNames(), "WGS 84,Bessel 1841,a,m");
        QCOMPARE(recordText(*next.getEllipsoid("a")),
                 (QStringList{"ellipsoid_name=a", "ellipsoid_a=6378137.50", "ellipsoid_flag=0"}));
        QCOMPARE(next.getEllipsoid("WGS 84")->getValue("ellipsoid_flag"), "1");
        QCOMPARE(next.getGeoidNames(), "");
    }

    void coveredEllipsoidReturns() {
        const Folders folders;
        Session first(folders);
        first.addEllipsoidOf("x", "own", "0");
        first.addEllipsoidOf("Bessel 1841", "own", "0");
        first.saveRecords();
        shipEllipsoids(folders); // the next version ships one of that name
        Session second(folders);
        QCOMPARE(second.getEllipsoidNames(), "WGS 84,x,Bessel 1841");
        QCOMPARE(second.getEllipsoid("Bessel 1841")->getValue("ellipsoid_a"), "own");
        second.deleteEllipsoid("Bessel 1841");
        QCOMPARE(second.getEllipsoidNames(), "WGS 84,x");
        second.saveRecords();
        Session third(folders);
        QCOMPARE(third.getEllipsoidNames(), "WGS 84,Bessel 1841,x");
        QCOMPARE(third.getEllipsoid("Bessel 1841")->getValue("ellipsoid_a"), "shipped");
    }

    void onlyTheUsersOwnAreWritten() {
        const Folders folders;
        shipEllipsoids(folders);
        Session session(folders);
        session.addEllipsoidOf("own", "1", "0");
        session.addEllipsoidOf("flagless", "1", nullptr);
        session.addEllipsoidOf("foreign", "1", "1");
        session.addEllipsoidOf("no longer own", "1", "0");
        session.addEllipsoidOf("no longer own", "2", "1");
        const DictionaryGuard geoid;
        for (const char* key : {"geoid_name", "geoid_file", "geoid_ellipsoid"})
            geoid->setText(key, key);
        geoid->setText("geoid_flag", "0");
        session.addGeoid(geoid.get());
        session.saveRecords();
        const RecordFile ellipsoids = CatalogueFile::readRecords(folders.user + ellipsoidsName, ellipsoidFile);
        QCOMPARE(ellipsoids.records.names(), QByteArray("own"));
        const Session next(folders);
        const RecordFile geoids = CatalogueFile::readRecords(folders.user + geoidsName, geoidFile);
        QCOMPARE(geoids.records.names(), QByteArray("geoid_name"));
        QCOMPARE(geoids.records.find("geoid_name")->values()->getValue("geoid_ellipsoid"), "geoid_ellipsoid");
    }

private:
    int alive = 0;
};

ROOM_TEST(RecordStoreTest)
#include "RecordStoreTest.moc"

#include "../Session.h"
#include "support/HeldFile.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

/// Another program, a synchronizing or scanning one say, has a file of the user's open.
class HeldCatalogueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSaveLosesNothing_data() {
        const Rows<QString, int> row({"name", "sharing"});
        row("the catalogue", systemsName, HeldFile::WithNobody);
        row("the catalogue, to be read", systemsName, HeldFile::ForReading);
        row("the previous generation", QString(systemsName) + ".bak", HeldFile::WithNobody);
    }

    void aSaveLosesNothing() {
        QFETCH(QString, name);
        QFETCH(int, sharing);
        const Folders folders;
        Session session(folders);
        session.saveWith({"1", "2"});
        HeldFile held(folders.user + name, HeldFile::Sharing(sharing));
        QVERIFY(held.isHeld());
        session.saveWith({"3"});
        QCOMPARE(folders.shown(), QByteArray("3,2,1"));
        session.saveWith({"4"});
        QCOMPARE(folders.shown(), QByteArray("4,3,2,1"));
        held.release();
        QCOMPARE(folders.shown(), QByteArray("4,3,2,1"));
        session.saveWith({"5"});
        QVERIFY(folders.rescued().isEmpty());
        QCOMPARE(CatalogueFile::readSystems(folders.systems()).groups.names(), QByteArray("5,4,3,2,1"));
        QVERIFY(folders.setAside("damaged").isEmpty());
    }
};

ROOM_TEST(HeldCatalogueTest)
#include "HeldCatalogueTest.moc"

#include "Session.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"

#include <QFile>
#include <QTest>
#include <QTextCodec>

class CatalogueTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        alive = dictionary_alive_count();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void cleanup() { QCOMPARE(dictionary_alive_count(), alive); }

    void newEntriesComeFirst() {
        const Folders folders;
        Session session(folders);
        QCOMPARE(session.getGroupNames(), "");
        session.addGroup("b");
        QCOMPARE(session.getGroupNames(), "b");
        session.addGroup("a");
        QCOMPARE(session.systems("a"), QByteArray());
        QCOMPARE(session.add("b", "1"), 1);
        QCOMPARE(session.add("b", "2"), 1);
        QCOMPARE(session.add("b", "1"), 0);
        QCOMPARE(session.systems("b"), QByteArray("2,1"));
        session.getGroup("b")->deleteCoordSystem("2");
        session.add("b", "3");
        session.saveSystems();
        Session next(folders);
        QCOMPARE(next.getGroupNames(), "a,b");
        QCOMPARE(next.systems("a"), QByteArray());
        QCOMPARE(next.systems("b"), QByteArray("3,1"));
        next.deleteGroup("b");
        QCOMPARE(next.getGroupNames(), "a");
        QVERIFY(!next.hasGroup("b"));
        QCOMPARE(next.getGroup("b"), nullptr);
    }

    void renamingKeepsThePlace() {
        const Folders folders;
        Session session(folders);
        for (const char* name : {"c", "b", "a"})
            session.add(name, "system");
        QVERIFY(session.renameGroup("b", "B") != 0);
        QCOMPARE(session.getGroupNames(), "a,B,c");
        session.add("B", "2");
        session.add("B", "3");
        ICoordSysGroup* group = session.getGroup("B");
        // The name that is handed in may be the record's own.
        QVERIFY(group->renameCoordSystem(group->getCoordSystem("2")->getValue("name"), "two") != 0);
        QCOMPARE(group->getCoordSystemNames(), "3,two,system");
        QCOMPARE(group->getCoordSystem("two")->getValue("name"), "two");
        QVERIFY(!group->hasCoordSystem("2"));
    }

    void namesThatAreRefused() {
        const Folders folders;
        Session session(folders);
        session.add("taken", "taken");
        session.add("group", "system");
        session.add("group", "taken");
        const QByteArray before = session.getGroupNames();
        QVERIFY(session.hasGroup("taken") && !session.hasGroup("Taken")); // exactly
        QCOMPARE(session.renameGroup("missing", "new"), 0);
        for (const char* name : {"", "UTM, zone 33", "taken"}) {
            session.addGroup(name);
            QCOMPARE(session.renameGroup("group", name), 0);
            QCOMPARE(QByteArray(session.getGroupNames()), before);
            QCOMPARE(session.add("group", name), 0);
            QCOMPARE(session.getGroup("group")->renameCoordSystem("system", name), 0);
            QCOMPARE(session.systems("group"), QByteArray("taken,system"));
            QCOMPARE(session.getGroup("group")->getCoordSystem("system")->getValue("name"), "system");
        }
        for (const char* name : {"", "UTM, zone 33"})
            session.addEllipsoidOf(name, "1", "0");
        QCOMPARE(session.getEllipsoidNames(), "");
    }

    void recordsAreCopiesAndBearTheirName() {
        const Folders folders;
        Session session(folders);
        session.add("group", "system");
        ICoordSysGroup* group = session.getGroup("group");
        {
            DictionaryGuard record;
            record->setText("name", "another");
            record->setText("extra", "kept");
            dic_set_value(record.get(), "org_lat", "%f", 1.0 / 3.0);
            group->setCoordSystem("system", record.get());
            group->setCoordSystem("missing", record.get());
            record->setText("extra", "changed afterwards");
        }
        QCOMPARE(group->getCoordSystemNames(), "system");
        IDictionary* stored = group->getCoordSystem("system");
        QCOMPARE(recordText(*stored),
                 (QStringList{"name=system", "extra=kept", "org_lat=0.333333[0.33333333333333331]"}));
        group->setCoordSystem(stored->getValue("name"), stored); // its own record under its own name
        QCOMPARE(group->getCoordSystem("system")->getValue("extra"), "kept");
    }

    void nullArgumentsAreHarmless() {
        const Folders folders;
        Session session(folders);
        session.add("group", "system");
        session.saveSystems();
        const QByteArray saved = contentOf(folders.systems());
        for (const auto call :
             {&Session::load, &Session::saveCoordSystems, &Session::saveEllipsoids, &Session::saveGeoids,
              &Session::addGroup, &Session::deleteGroup, &Session::deleteEllipsoid, &Session::deleteGeoid})
            (session.*call)(nullptr);
        QCOMPARE(session.renameGroup(nullptr, "x"), 0);
        QCOMPARE(session.renameGroup("group", nullptr), 0);
        QVERIFY(!session.hasGroup(nullptr));
        QCOMPARE(session.getGroup(nullptr), nullptr);
        session.addEllipsoid(nullptr);
        QCOMPARE(session.getEllipsoid(nullptr), nullptr);
        session.addGeoid(nullptr);
        QCOMPARE(session.getGeoid(nullptr), nullptr);
        ICoordSysGroup* group = session.getGroup("group");
        QCOMPARE(group->addCoordSystem(nullptr), 0);
        group->setCoordSystem("system", nullptr);
        group->setCoordSystem(nullptr, group->getCoordSystem("system"));
        QCOMPARE(group->renameCoordSystem(nullptr, nullptr), 0);
        group->deleteCoordSystem(nullptr);
        QVERIFY(!group->hasCoordSystem(nullptr));
        QCOMPARE(group->getCoordSystem(nullptr), nullptr);
        QCOMPARE(session.getGroupNames(), "group");
        session.saveSystems();
        QCOMPARE(contentOf(folders.systems()), saved);
    }

    void starterCatalogue() {
        const Folders folders;
        SystemFile starter;
        QVERIFY(starter.groups.append("UTM"));
        QVERIFY(CatalogueFile::write(folders.shipped + "CoordinateSystem.vcs", starter));
        Session first(folders);
        QCOMPARE(first.getGroupNames(), "UTM");
        first.deleteGroup("UTM");
        first.saveSystems();
        QCOMPARE(folders.shown(), QByteArray("")); // an empty catalogue is the user's own, too
        QVERIFY(QFile::rename(folders.systems(), folders.previous()));
        QCOMPARE(folders.shown(), QByteArray(""));
        QVERIFY(QFile::rename(folders.previous(), folders.systems() + ".damaged-20240229-120000"));
        QCOMPARE(folders.shown(), QByteArray(""));
    }

private:
    int alive = 0;
};

ROOM_TEST(CatalogueTest)
#include "CatalogueTest.moc"

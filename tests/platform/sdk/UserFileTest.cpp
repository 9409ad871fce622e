#include "Session.h"
#include "platform/utility/DiskCalls.h"
#include "support/DiskLimits.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QSet>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

/// Saves the groups from "1" to the last, one after another.
static void saveGroups(const Folders& folders, int last) {
    Session session(folders);
    for (int i = 1; i <= last; ++i) {
        session.addGroup(QByteArray::number(i).constData());
        session.saveSystems();
    }
}

/// The groups that the next start shows.
static QByteArray shown(const Folders& folders) {
    return Session(folders).getGroupNames();
}

static QByteArray groupsIn(const QString& path) {
    const SystemFile file = CatalogueFile::readSystems(path);
    return file.condition == FileCondition::Whole ? file.groups.names() : QByteArray("(not whole)");
}

/// Every file that holds `groups` and can be read whole, wherever it lies.
static int filesWith(const Folders& folders, const QByteArray& groups) {
    int found = 0;
    QDirIterator file(folders.dir.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (file.hasNext())
        found += groupsIn(file.next()) == groups ? 1 : 0;
    return found;
}

static QStringList unfinished(const Folders& folders) {
    QStringList files;
    QDirIterator file(folders.dir.path(), {"*.unfinished-*"}, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext())
        files << file.next();
    return files;
}

/// Lets the call at `place` fail, counted from 0, or that one and all behind it; says which it was.
class Fault {
public:
    Fault(int place, bool forGood) {
        DiskCalls::setFault([this, place, forGood](const char* call, const QString& path) {
            const bool fails = calls == place || (forGood && calls > place);
            if (calls++ == place)
                failed = QByteArray(call) + ' ' + path.toUtf8();
            return fails;
        });
    }
    ~Fault() { DiskCalls::setFault({}); }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    QByteArray failed; ///< empty while no call has come so far

private:
    int calls = 0;
};

class UserFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void generations() {
        const Folders folders;
        QVERIFY(QDir(folders.user).removeRecursively()); // the save makes the folder
        Session session(folders);
        QByteArray last = "(missing)";
        QByteArray older = "(missing)";
        for (const char* group : {"1", "2", "3"}) {
            session.addGroup(group);
            session.saveCoordSystems("");
            QCOMPARE(contentOf(folders.systems()), last); // it stays
            session.saveCoordSystems(QFile::encodeName(folders.systems()).constData());
            QCOMPARE(contentOf(folders.previous()), last);
            older = last;
            last = contentOf(folders.systems());
        }
        session.saveSystems(); // nothing new
        QCOMPARE(contentOf(folders.systems()), last);
        QCOMPARE(contentOf(folders.previous()), older);
        QCOMPARE(folders.generations().size(), 1);
        QCOMPARE(groupsIn(folders.user + "generations/" + folders.generations()[0]), QByteArray("1"));
        QVERIFY(QFile::remove(folders.systems()));
        QCOMPARE(shown(folders), QByteArray("2,1"));
        for (int i = 4; i < 20; ++i) {
            session.addGroup(QByteArray::number(i).constData());
            session.saveSystems();
        }
        QCOMPARE(folders.generations().size(), 10);
        QVERIFY(QDir(folders.user).entryList({"*.other-*", "*.damaged-*"}).isEmpty());
        QVERIFY(folders.rescued().isEmpty());
    }

    void otherContent_data() {
        // What lies there: "same size" is the file with another name in it, a digit of which is "#" in the table.
        const Rows<QByteArray, bool> row({"content", "isRewritten"});
        row("another whole file", "<coordinate_systems version=\"1\"><group name=\"theirs\"/></coordinate_systems>",
            true);
        row("damaged", "<coordinate_systems version=\"1\"><group", true);
        row("of the same size", "same size", true);
        row("empty", "", true);
        row("the same again", "same", false);
    }

    void otherContent() {
        QFETCH(QByteArray, content);
        QFETCH(bool, isRewritten);
        for (const bool hasLoadedIt : {true, false}) {
            // Either this program wrote the file, or it was not there when it started.
            const Folders folders;
            if (hasLoadedIt)
                saveGroups(folders, 2);
            Session session(folders);
            session.addGroup("mine");
            if (hasLoadedIt)
                session.saveSystems();
            QByteArray theirs = content;
            if (content.startsWith("same"))
                theirs = hasLoadedIt ? contentOf(folders.systems()) : QByteArray("<coordinate_systems/>");
            if (content == "same size")
                theirs.replace("mine", "mind");
            QVERIFY(setContent(folders.systems(), theirs));
            const int others = isRewritten || !hasLoadedIt ? 1 : 0;
            for (int save = 0; save < 3; ++save) {
                session.addGroup(QByteArray::number(10 + save).constData());
                session.saveSystems();
            }
            QCOMPARE(folders.setAside("other").size(), others);
            if (others)
                QCOMPARE(contentOf(folders.user + folders.setAside("other")[0]), theirs);
            QVERIFY(folders.setAside("damaged").isEmpty());
            QVERIFY(shown(folders).startsWith("12,11,10,mine"));
        }
    }

    void touchedFileIsNoOther() {
        const Folders folders;
        saveGroups(folders, 2);
        Session session(folders);
        QFile file(folders.systems());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-3), QFileDevice::FileModificationTime));
        file.close();
        session.addGroup("3");
        session.saveSystems();
        QVERIFY(folders.setAside("other").isEmpty());
        QCOMPARE(groupsIn(folders.previous()), QByteArray("2,1"));
    }

    // An old file is not read again for a save: that would be half of what the save costs.
    void loadedFileIsReadOnce() {
        const Folders folders;
        saveGroups(folders, 2);
        QFile file(folders.systems());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-3), QFileDevice::FileModificationTime));
        file.close();
        Session session(folders);
        int reads = 0;
        DiskCalls::setFault([&](const char* call, const QString&) {
            reads += qstrcmp(call, "read") == 0 ? 1 : 0;
            return false;
        });
        session.addGroup("3");
        session.saveSystems();
        DiskCalls::setFault({});
        QCOMPARE(reads, 0);
        QCOMPARE(shown(folders), QByteArray("3,2,1"));
    }

    // One call of a save fails, or the disk fails from there on: the next start shows the new content, in the first
    // case, and the old or the new in the second; what was there before is there still.
    void everyCallOfASaveFails_data() {
        const Rows<QByteArray, bool> row({"before", "forGood"});
        for (const bool forGood : {false, true}) {
            const QByteArray end = forGood ? ", for good" : ", once";
            row("known" + end, "known", forGood);
            row("first save" + end, "missing", forGood);
            row("another's" + end, "other", forGood);
            row("damaged" + end, "damaged", forGood);
            row("rescued" + end, "rescued", forGood);
        }
    }

    void everyCallOfASaveFails() {
        QFETCH(QByteArray, before);
        QFETCH(bool, forGood);
        bool hasFailed = true;
        int places = 0;
        for (int place = 0; hasFailed; ++place) {
            const Folders folders;
            if (before != "missing")
                saveGroups(folders, 3);
            if (before == "damaged")
                QVERIFY(QFile::resize(folders.systems(), 50));
            if (before == "rescued") {
                Session session(folders);
                session.addGroup("4");
                const Fault full(0, true);
                session.saveSystems();
            }
            Session session(folders);
            const QByteArray old = session.getGroupNames();
            if (before == "other")
                QVERIFY(setContent(folders.systems(), contentOf(folders.systems()).replace("\"3\"", "\"theirs\"")));
            session.addGroup("new");
            const QByteArray next = session.getGroupNames();
            QByteArray failed;
            {
                const Fault fault(place, forGood);
                session.saveSystems();
                failed = fault.failed;
            }
            hasFailed = !failed.isEmpty();
            places += hasFailed ? 1 : 0;
            const QByteArray found = shown(folders);
            const QByteArray theirs = "theirs,2,1";
            QVERIFY2(found == next || (forGood && (found == old || found == theirs)), found.constData());
            // Both generations before, but for the one that just could not be kept.
            if (before == "known" && !failed.contains(".bak"))
                QVERIFY(filesWith(folders, "3,2,1") > 0);
            if (before == "known" && !failed.contains("generations"))
                QVERIFY(filesWith(folders, "2,1") > 0);
            if (before == "other")
                QVERIFY(filesWith(folders, theirs) > 0);
            if (before == "damaged")
                QVERIFY(filesWith(folders, "(not whole)") > 0);
            // It recovers: the next save of the same program reaches the folder, and nothing is left behind.
            session.addGroup("last");
            session.saveSystems();
            QCOMPARE(groupsIn(folders.systems()), "last," + next);
            QVERIFY(folders.rescued().isEmpty());
            QCOMPARE(shown(folders), "last," + next);
            QVERIFY2(unfinished(folders).isEmpty(), qPrintable(unfinished(folders).join(' ')));
            QByteArrayList generations = {contentOf(folders.systems()), contentOf(folders.previous())};
            for (const QString& name : folders.generations())
                generations << contentOf(folders.user + "generations/" + name);
            QVERIFY(QSet<QByteArray>(generations.begin(), generations.end()).size() == generations.size());
        }
        qInfo("%d calls", places);
        QVERIFY(places >= 5); // folder, create, write, sync, rename
    }

    // The start that finds a rescued save brings it home; whatever fails there, it is shown, and what was in the file's
    // place is there still.
    void everyCallOfARescueFails() {
        bool hasFailed = true;
        for (int place = 0; hasFailed; ++place) {
            const Folders folders;
            saveGroups(folders, 2);
            Session before(folders);
            before.addGroup("rescued");
            DiskCalls::setFault([&](const char*, const QString& path) { return path.startsWith(folders.user); });
            before.saveSystems();
            DiskCalls::setFault({});
            QCOMPARE(folders.rescued().size(), 1);
            QCOMPARE(groupsIn(folders.systems()), QByteArray("2,1"));
            {
                const Fault fault(place, false);
                Session next(folders);
                hasFailed = !fault.failed.isEmpty();
                if (!fault.failed.startsWith("read"))
                    QCOMPARE(next.getGroupNames(), "rescued,2,1");
            }
            QVERIFY(filesWith(folders, "2,1") > 0);
            QCOMPARE(shown(folders), QByteArray("rescued,2,1"));
        }
    }

    void rescue() {
        const Folders folders;
        saveGroups(folders, 2);
        QTest::qWait(5); // the later save has a later time
        // The data folder can't be reached: a file lies in its place.
        const QString away = folders.dir.filePath("away");
        const auto unreachable = [&](bool is) {
            const QString user = folders.dir.filePath("user");
            return is ? QFile::rename(user, away) && setContent(user, "a file")
                      : QFile::remove(user) && QFile::rename(away, user);
        };
        QVERIFY(unreachable(true));
        Session session(folders);
        QCOMPARE(session.getGroupNames(), "");
        session.addGroup("a");
        session.saveSystems();
        session.addEllipsoidOf("e", "1", "0");
        session.saveRecords();
        QCOMPARE(folders.rescued().size(), 3);
        QCOMPARE(contentOf(folders.dir.filePath("user")), QByteArray("a file"));
        session.addGroup("b");
        session.saveSystems(); // the next one takes the rescued one's place
        QCOMPARE(folders.rescued().size(), 3);
        QCOMPARE(shown(folders), QByteArray("b,a")); // still unreachable

        // Another data folder of the same user has saves of its own.
        Folders another;
        another.rescue = folders.rescue;
        QCOMPARE(shown(another), QByteArray(""));

        QVERIFY(unreachable(false));
        {
            Session next(folders);
            QCOMPARE(next.getGroupNames(), "b,a");
            QCOMPARE(next.getEllipsoidNames(), "e");
        }
        QVERIFY(folders.rescued().isEmpty());
        QCOMPARE(groupsIn(folders.systems()), QByteArray("b,a"));
        QCOMPARE(folders.setAside("other").size(), 1);
        QCOMPARE(groupsIn(folders.user + folders.setAside("other")[0]), QByteArray("2,1"));
        QCOMPARE(shown(folders), QByteArray("b,a"));
    }

    void rescueThatIsNoLongerTheLatest() {
        const Folders folders;
        saveGroups(folders, 1);
        Session session(folders);
        session.addGroup("rescued");
        DiskCalls::setFault([&](const char*, const QString& path) { return path.startsWith(folders.user); });
        session.saveSystems();
        DiskCalls::setFault({});
        // Meanwhile another machine has saved to the folder.
        QVERIFY(setContent(folders.systems(), contentOf(folders.systems()).replace("\"1\">", "\"1\"> ")));
        QFile file(folders.systems());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
        file.close();
        Session next(folders);
        QCOMPARE(next.getGroupNames(), "1");
        next.addGroup("2");
        next.saveSystems();
        QVERIFY(folders.rescued().isEmpty());
        QCOMPARE(folders.setAside("other").size(), 1);
        QCOMPARE(groupsIn(folders.user + folders.setAside("other")[0]), QByteArray("rescued,1"));
        QCOMPARE(shown(folders), QByteArray("2,1"));
    }

    // Two saves that could not reach the folder, the second of which knew nothing of the first: both are kept.
    void rescueBesideAnother() {
        const Folders folders;
        saveGroups(folders, 1);
        Session first(folders);
        Session second(folders); // on another machine
        DiskCalls::setFault([&](const char*, const QString& path) { return path.startsWith(folders.user); });
        first.addGroup("first");
        first.saveSystems();
        second.addGroup("second");
        second.saveSystems();
        DiskCalls::setFault({});
        QCOMPARE(folders.rescued().size(), 2);
        QCOMPARE(shown(folders), QByteArray("second,1"));
        QVERIFY(filesWith(folders, "first,1") > 0);
    }

    // What may lie in the file's place, with what the next start must show after a save, and what must be there still.
    void oddPlaces_data() {
        const Rows<QByteArray, bool> row({"place", "isInFolder"});
        row("pipe", "pipe", false);
        row("folder", "folder", false);
        row("link to a device", "device", false);
        row("link to nothing", "dangling", true);
        row("link to nowhere", "nowhere", false);
        row("link to a file", "link", true);
        row("link in a circle", "circle", true);
        row("read-only file", "read-only", true);
        row("unreadable file", "unreadable", true);
        row("read-only folder", "read-only folder", false);
        row("unreadable previous one", "unreadable previous", true);
        row("link as previous one", "previous link", true);
        row("folder as previous one", "previous folder", true);
        row("pipe as previous one", "previous pipe", true);
        row("file as folder of the generations", "generations", true);
    }

    void oddPlaces() {
#ifdef Q_OS_UNIX
        QFETCH(QByteArray, place);
        QFETCH(bool, isInFolder);
        const OrdinaryUser user;
        if (!user.works)
            QSKIP("permissions can't be tried here");
        const Folders folders;
        const QString file = folders.systems();
        const QString target = folders.dir.filePath("target.vcs");
        if (place != "pipe" && place != "folder" && place != "device" && place != "circle")
            saveGroups(folders, 3);
        const QByteArray content = contentOf(file);
        const auto replaceBy = [&](const QString& path, const QString& link) {
            QFile::remove(path);
            return QFile::link(link, path);
        };
        const auto pipe = [](const QString& path) {
            QFile::remove(path);
            return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
        };
        bool isMade = true;
        if (place == "pipe")
            isMade = pipe(file);
        else if (place == "folder")
            isMade = QDir().mkpath(file + "/inside");
        else if (place == "device")
            isMade = replaceBy(file, "/dev/null");
        else if (place == "dangling")
            isMade = replaceBy(file, target);
        else if (place == "nowhere")
            isMade = replaceBy(file, folders.dir.filePath("nowhere/target.vcs"));
        else if (place == "link")
            isMade = QFile::rename(file, target) && replaceBy(file, target);
        else if (place == "circle")
            isMade = replaceBy(file, file);
        else if (place == "read-only")
            isMade = QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadUser);
        else if (place == "unreadable")
            isMade = QFile::setPermissions(file, {});
        else if (place == "read-only folder")
            isMade = QFile::setPermissions(folders.user, QFile::ReadOwner | QFile::ExeOwner);
        else if (place == "unreadable previous")
            isMade = QFile::setPermissions(folders.previous(), {});
        else if (place == "previous link")
            isMade = setContent(target, "theirs") && replaceBy(folders.previous(), target);
        else if (place == "previous folder")
            isMade = QFile::remove(folders.previous()) && QDir().mkpath(folders.previous() + "/inside");
        else if (place == "previous pipe")
            isMade = pipe(folders.previous());
        else if (place == "generations")
            isMade =
                QDir(folders.user + "generations").removeRecursively() && setContent(folders.user + "generations", "");
        QVERIFY(isMade);

        Session session(folders);
        session.addGroup("new");
        session.saveSystems();
        session.addGroup("newer");
        session.saveSystems();
        QCOMPARE(folders.rescued().isEmpty(), isInFolder);
        if (place == "read-only folder")
            QFile::setPermissions(folders.user, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray next = shown(folders);
        QVERIFY2(next.startsWith("newer,new"), next.constData());
        if (place == "pipe" || place == "folder" || place == "device")
            QVERIFY(!QFileInfo(file).isFile());
        if (place == "link" || place == "dangling")
            QVERIFY(QFileInfo(file).isSymLink() && groupsIn(target).startsWith("newer,new"));
        if (place == "read-only")
            QCOMPARE(QFileInfo(file).permissions(), QFileInfo(folders.previous()).permissions());
        if (place == "unreadable") {
            const QString aside = folders.user + folders.setAside("other").value(0);
            QCOMPARE(QFileInfo(aside).permissions(), QFile::Permissions());
            QFile::setPermissions(aside, QFile::ReadOwner);
            QCOMPARE(contentOf(aside), content);
        }
        if (place == "previous link")
            QVERIFY(contentOf(target) == "theirs" && !QFileInfo(folders.previous()).isSymLink());
        if (place == "previous folder")
            QVERIFY(QFileInfo(folders.previous() + "/inside").isDir());
        if (place == "unreadable previous" || place == "generations")
            QCOMPARE(groupsIn(folders.previous()), QByteArray("new,3,2,1"));
#endif
    }

    void fileThatCouldNotBeReadAtTheStart() {
        for (const bool forGood : {false, true}) {
            const Folders folders;
            saveGroups(folders, 2);
            DiskCalls::setFault([&](const char*, const QString& path) { return path == folders.systems(); });
            Session session(folders);               // another program holds the file
            QCOMPARE(session.getGroupNames(), "1"); // of the previous generation
            // What can neither be read nor have a second name can still be moved.
            DiskCalls::setFault([&](const char* call, const QString& path) {
                return forGood && (path == folders.systems() ? qstrcmp(call, "read") == 0 : qstrcmp(call, "link") == 0);
            });
            session.addGroup("a");
            session.saveSystems();
            DiskCalls::setFault({});
            QCOMPARE(folders.setAside("other").size(), 1);
            QCOMPARE(groupsIn(folders.user + folders.setAside("other")[0]), QByteArray("2,1"));
            for (const char* group : {"b", "c"}) {
                session.addGroup(group);
                session.saveSystems();
            }
            QCOMPARE(folders.setAside("other").size(), 1);
            QCOMPARE(shown(folders), QByteArray("c,b,a,1"));
        }
    }

    void fileThatGrowsNoFurther() {
        const Folders folders;
        saveGroups(folders, 2);
        const QByteArray saved = contentOf(folders.systems());
        const QByteArray previous = contentOf(folders.previous());
        Session session(folders);
        for (int i = 0; i < 200; ++i)
            session.add("new", QByteArray::number(i).constData());
        for (int limit = 0; limit < 30000; limit += 2900) {
            const FileSizeLimit full(limit);
            if (!full.works)
                QSKIP("no limit for files here");
            session.saveSystems(); // the rescue folder is as full
            QCOMPARE(contentOf(folders.systems()), saved);
            QCOMPARE(contentOf(folders.previous()), previous);
            QVERIFY(folders.rescued().isEmpty() && unfinished(folders).isEmpty());
        }
        session.saveSystems();
        QCOMPARE(shown(folders), QByteArray("new,2,1"));
    }

    void fullDisk() {
        const Folders folders;
        const SmallDisk disk(folders.user, 1024);
        if (!disk.works)
            QSKIP("no disk may be mounted here");
        {
            Session session(folders);
            for (int i = 0; i < 200; ++i)
                session.add("new", QByteArray::number(-i).constData());
            session.saveSystems();
        }
        int reached = 0;
        for (int free = 0; free <= 80; free += 8) {
            Session session(folders);
            session.add("new", QByteArray::number(free).constData());
            const QByteArray next = session.systems("new");
            // All but so many kilobytes are taken.
            QFile filler(folders.user + "filler");
            QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (filler.write(QByteArray(4096, 'x')) == 4096)
                ;
            QVERIFY(filler.resize(filler.size() - free * qint64(1024)));
            const QByteArray before = contentOf(folders.systems());
            session.saveSystems();
            const bool isReached = contentOf(folders.systems()) != before;
            QCOMPARE(folders.rescued().size(), isReached ? 0 : 1);
            QVERIFY(filler.remove());
            QCOMPARE(Session(folders).systems("new"), next);
            reached += isReached ? 1 : 0;
        }
        QVERIFY2(reached > 2 && reached < 9, qPrintable(QString::number(reached)));
    }
};

ROOM_TEST(UserFileTest)
#include "UserFileTest.moc"

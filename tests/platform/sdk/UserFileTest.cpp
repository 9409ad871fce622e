#include "Session.h"
#include "platform/utility/DiskCalls.h"
#include "support/DiskLimits.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

static QByteArray groupsIn(const QString& path) {
    const SystemFile file = CatalogueFile::readSystems(path);
    return file.condition == FileCondition::Whole ? file.groups.names() : QByteArray("(not whole)");
}

/// What the files hold that were set aside as "damaged" or "other".
static QByteArrayList groupsAside(const Folders& folders, const char* as = "other") {
    QByteArrayList groups;
    for (const QString& name : folders.setAside(as))
        groups << groupsIn(folders.user + name);
    return groups;
}

/// Whether any file that can be read whole holds `groups`, wherever it lies.
static bool isKept(const Folders& folders, const QByteArray& groups) {
    const QStringList files = Folders::filesBelow(folders.dir.path());
    return std::any_of(files.begin(), files.end(), [&](const QString& file) { return groupsIn(file) == groups; });
}

/// Lets calls fail while it lives.
class Fault {
public:
    /// The call at `place`, counted from 0, or that one and all behind it.
    Fault(int place, bool forGood) {
        DiskCalls::setFault([this, place, forGood](const char* call, const QString& path) {
            const bool fails = calls == place || (forGood && calls > place);
            if (calls++ == place)
                failed = QByteArray(call) + ' ' + path.toUtf8();
            return fails;
        });
    }
    /// All calls on paths that begin so.
    explicit Fault(const QString& start) {
        DiskCalls::setFault([start](const char*, const QString& path) { return path.startsWith(start); });
    }
    ~Fault() { DiskCalls::setFault({}); }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    QByteArray failed; ///< which it was at `place`; empty while no call has come so far

private:
    int calls = 0;
};

class UserFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { DiskCalls::setFault({}); }

    void generations() {
        const Folders folders;
        QVERIFY(QDir(folders.user).removeRecursively()); // the save makes the folder
        Session session(folders);
        QByteArray last = "(missing)", older = last;
        for (const char* group : {"1", "2", "3"}) {
            session.addGroup(group);
            session.saveCoordSystems("");
            QCOMPARE(contentOf(folders.systems()), last); // it stays
            session.saveCoordSystems(QFile::encodeName(folders.systems()).constData());
            QCOMPARE(contentOf(folders.previous()), last);
            older = std::exchange(last, contentOf(folders.systems()));
        }
        session.saveSystems(); // nothing new
        QCOMPARE(contentOf(folders.systems()), last);
        QCOMPARE(contentOf(folders.previous()), older);
        QCOMPARE(folders.generations().size(), 1);
        QCOMPARE(groupsIn(folders.user + "generations/" + folders.generations()[0]), QByteArray("1"));
        QVERIFY(QFile::remove(folders.systems()));
        QCOMPARE(folders.shown(), QByteArray("2,1"));
        for (int i = 4; i < 20; ++i)
            session.saveWith({QByteArray::number(i)});
        QCOMPARE(folders.generations().size(), 10);
        QVERIFY(folders.setAside("other").isEmpty() && folders.setAside("damaged").isEmpty());
        QVERIFY(folders.rescued().isEmpty());
    }

    void otherContent_data() {
        // What lies there: "same size" is the file with another letter in it.
        const Rows<QByteArray, bool> row({"content", "isRewritten"});
        row("another whole file", R"(<coordinate_systems version="1"><group name="theirs"/></coordinate_systems>)",
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
                Session(folders).saveWith({"1", "2"});
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
            session.saveWith({"10", "11", "12"});
            const QStringList others = folders.setAside("other");
            QCOMPARE(others.size(), isRewritten || !hasLoadedIt ? 1 : 0);
            QVERIFY(others.isEmpty() || contentOf(folders.user + others[0]) == theirs);
            QVERIFY(folders.setAside("damaged").isEmpty());
            QVERIFY(folders.shown().startsWith("12,11,10,mine"));
        }
    }

    // A file that was only touched is no other, and an old one is not read again for a save: that would be half of what
    // the save costs.
    void oldFile() {
        for (const bool isTouchedLater : {true, false}) {
            const Folders folders;
            Session(folders).saveWith({"1", "2"});
            const auto touch = [&] { return setChanged(folders.systems(), QDateTime::currentDateTime().addDays(-3)); };
            QVERIFY(isTouchedLater || touch());
            Session session(folders);
            QVERIFY(!isTouchedLater || touch());
            int reads = 0;
            DiskCalls::setFault([&](const char* call, const QString&) {
                reads += qstrcmp(call, "read") == 0 ? 1 : 0;
                return false;
            });
            session.saveWith({"3"});
            DiskCalls::setFault({});
            QVERIFY(isTouchedLater || reads == 0);
            QVERIFY(folders.setAside("other").isEmpty());
            QCOMPARE(groupsIn(folders.previous()), QByteArray("2,1"));
            QCOMPARE(folders.shown(), QByteArray("3,2,1"));
        }
    }

    // One call of a save fails, or the disk fails from there on: the next start shows the new content, in the first
    // case, and the old or the new in the second; what was there before is there still.
    void everyCallOfASaveFails_data() {
        const Rows<QByteArray, bool> row({"before", "forGood"});
        for (const QByteArray before : {"known", "missing", "other", "damaged", "rescued"}) {
            row(before + ", once", before, false);
            row(before + ", for good", before, true);
        }
    }

    void everyCallOfASaveFails() {
        QFETCH(QByteArray, before);
        QFETCH(bool, forGood);
        int places = 0;
        for (bool hasFailed = true; hasFailed; ++places) {
            const Folders folders;
            if (before != "missing")
                Session(folders).saveWith({"1", "2", "3"});
            if (before == "damaged")
                QVERIFY(QFile::resize(folders.systems(), 50));
            if (before == "rescued") {
                Session session(folders);
                const Fault full(0, true);
                session.saveWith({"4"});
            }
            Session session(folders);
            const QByteArray old = session.getGroupNames(), theirs = "theirs,2,1";
            if (before == "other")
                QVERIFY(setContent(folders.systems(), contentOf(folders.systems()).replace("\"3\"", "\"theirs\"")));
            session.addGroup("new");
            const QByteArray next = session.getGroupNames();
            QByteArray failed;
            {
                const Fault fault(places, forGood);
                session.saveSystems();
                failed = fault.failed;
            }
            hasFailed = !failed.isEmpty();
            const QByteArray found = folders.shown();
            QVERIFY2(found == next || (forGood && (found == old || found == theirs)), found.constData());
            // Both generations before, but for the one that just could not be kept.
            if (before == "known")
                QVERIFY((failed.contains(".bak") || isKept(folders, "3,2,1")) &&
                        (failed.contains("generations") || isKept(folders, "2,1")));
            QVERIFY(before != "other" || isKept(folders, theirs));
            QVERIFY(before != "damaged" || isKept(folders, "(not whole)"));
            // It recovers: the next save of the same program reaches the folder, and nothing is left behind.
            session.saveWith({"last"});
            QCOMPARE(groupsIn(folders.systems()), "last," + next);
            QVERIFY(folders.rescued().isEmpty());
            QCOMPARE(folders.shown(), "last," + next);
            QCOMPARE(Folders::filesBelow(folders.dir.path(), "*.unfinished-*"), QStringList());
            QSet<QByteArray> contents = {contentOf(folders.systems()), contentOf(folders.previous())};
            for (const QString& name : folders.generations())
                contents << contentOf(folders.user + "generations/" + name);
            QCOMPARE(contents.size(), 2 + folders.generations().size());
        }
        qInfo("%d calls", places - 1);
        QVERIFY(places > 5); // folder, create, write, sync, rename
    }

    // The start that finds a rescued save brings it home; whatever fails there, it is shown, and what was in the file's
    // place is there still.
    void everyCallOfARescueFails() {
        bool hasFailed = true;
        for (int place = 0; hasFailed; ++place) {
            const Folders folders;
            Session(folders).saveWith({"1", "2"});
            Session before(folders);
            {
                const Fault unreachable(folders.user);
                before.saveWith({"rescued"});
            }
            QCOMPARE(folders.rescued().size(), 1);
            QCOMPARE(groupsIn(folders.systems()), QByteArray("2,1"));
            {
                const Fault fault(place, false);
                Session next(folders);
                hasFailed = !fault.failed.isEmpty();
                if (!fault.failed.startsWith("read"))
                    QCOMPARE(next.getGroupNames(), "rescued,2,1");
            }
            QVERIFY(isKept(folders, "2,1"));
            QCOMPARE(folders.shown(), QByteArray("rescued,2,1"));
        }
    }

    void rescue() {
        const Folders folders;
        Session(folders).saveWith({"1", "2"});
        QTest::qWait(5); // the later save has a later time
        // The data folder can't be reached: a file lies in its place.
        const QString user = folders.dir.filePath("user"), away = folders.dir.filePath("away");
        QVERIFY(QFile::rename(user, away) && setContent(user, "a file"));
        Session session(folders);
        QCOMPARE(session.getGroupNames(), "");
        session.saveWith({"a"});
        session.addEllipsoidOf("e", "1", "0");
        session.saveRecords();
        QCOMPARE(folders.rescued().size(), 3);
        QCOMPARE(contentOf(user), QByteArray("a file"));
        session.saveWith({"b"}); // the next one takes the rescued one's place
        QCOMPARE(folders.rescued().size(), 3);
        QCOMPARE(folders.shown(), QByteArray("b,a")); // still unreachable

        // Another data folder of the same user has saves of its own.
        Folders another;
        another.rescue = folders.rescue;
        QCOMPARE(another.shown(), QByteArray(""));

        QVERIFY(QFile::remove(user) && QFile::rename(away, user));
        {
            Session next(folders);
            QCOMPARE(next.getGroupNames(), "b,a");
            QCOMPARE(next.getEllipsoidNames(), "e");
        }
        QVERIFY(folders.rescued().isEmpty());
        QCOMPARE(groupsIn(folders.systems()), QByteArray("b,a"));
        QCOMPARE(groupsAside(folders), QByteArrayList{"2,1"});
        QCOMPARE(folders.shown(), QByteArray("b,a"));
    }

    void rescueThatIsNoLongerTheLatest() {
        const Folders folders;
        Session(folders).saveWith({"1"});
        Session session(folders);
        {
            const Fault unreachable(folders.user);
            session.saveWith({"rescued"});
        }
        // Meanwhile another machine has saved to the folder.
        QVERIFY(setContent(folders.systems(), contentOf(folders.systems()).replace("\"1\">", "\"1\"> ")) &&
                setChanged(folders.systems(), QDateTime::currentDateTime().addSecs(60)));
        Session next(folders);
        QCOMPARE(next.getGroupNames(), "1");
        next.saveWith({"2"});
        QVERIFY(folders.rescued().isEmpty());
        QCOMPARE(groupsAside(folders), QByteArrayList{"rescued,1"});
        QCOMPARE(folders.shown(), QByteArray("2,1"));
    }

    // Two saves that could not reach the folder, the second of which knew nothing of the first: both are kept.
    void rescueBesideAnother() {
        const Folders folders;
        Session(folders).saveWith({"1"});
        Session first(folders), second(folders); // on another machine
        {
            const Fault unreachable(folders.user);
            first.saveWith({"first"});
            second.saveWith({"second"});
        }
        QCOMPARE(folders.rescued().size(), 2);
        QCOMPARE(folders.shown(), QByteArray("second,1"));
        QVERIFY(isKept(folders, "first,1"));
    }

    // What may lie in the file's place, with whether a save still reaches the folder.
    void oddPlaces_data() {
        const Rows<bool> row({"isInFolder"});
        for (const char* place : {"pipe", "folder", "device", "link to nowhere", "read-only folder"})
            row(place, false);
        for (const char* place :
             {"link to nothing", "link", "circle", "read-only", "unreadable", "unreadable previous", "previous link",
              "previous folder", "previous pipe", "file as folder of the generations"})
            row(place, true);
    }

    void oddPlaces() {
#ifdef Q_OS_UNIX
        QFETCH(bool, isInFolder);
        const QByteArray place = QTest::currentDataTag();
        const OrdinaryUser user;
        if (!user.works)
            QSKIP("permissions can't be tried here");
        const Folders folders;
        const QString file = folders.systems(), previous = folders.previous();
        const QString target = folders.dir.filePath("target.vcs"), generations = folders.user + "generations";
        if (place != "pipe" && place != "folder" && place != "device" && place != "circle")
            Session(folders).saveWith({"1", "2", "3"});
        const QByteArray content = contentOf(file);
        const auto link = [](const QString& path, const QString& to) {
            QFile::remove(path);
            return QFile::link(to, path);
        };
        const auto pipe = [](const QString& path) {
            QFile::remove(path);
            return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
        };
        const std::map<QByteArray, std::function<bool()>> make{
            {"pipe", [&] { return pipe(file); }},
            {"folder", [&] { return QDir().mkpath(file + "/inside"); }},
            {"device", [&] { return link(file, "/dev/null"); }},
            {"link to nothing", [&] { return link(file, target); }},
            {"link to nowhere", [&] { return link(file, folders.dir.filePath("nowhere/target.vcs")); }},
            {"link", [&] { return QFile::rename(file, target) && link(file, target); }},
            {"circle", [&] { return link(file, file); }},
            {"read-only", [&] { return QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadUser); }},
            {"unreadable", [&] { return QFile::setPermissions(file, {}); }},
            {"read-only folder",
             [&] { return QFile::setPermissions(folders.user, QFile::ReadOwner | QFile::ExeOwner); }},
            {"unreadable previous", [&] { return QFile::setPermissions(previous, {}); }},
            {"previous link", [&] { return setContent(target, "theirs") && link(previous, target); }},
            {"previous folder", [&] { return QFile::remove(previous) && QDir().mkpath(previous + "/inside"); }},
            {"previous pipe", [&] { return pipe(previous); }},
            {"file as folder of the generations",
             [&] { return QDir(generations).removeRecursively() && setContent(generations, ""); }},
        };
        QVERIFY(make.at(place)());

        Session(folders).saveWith({"new", "newer"});
        QCOMPARE(folders.rescued().isEmpty(), isInFolder);
        if (place == "read-only folder")
            QFile::setPermissions(folders.user, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QByteArray next = folders.shown();
        QVERIFY2(next.startsWith("newer,new"), next.constData());
        if (place == "pipe" || place == "folder" || place == "device")
            QVERIFY(!QFileInfo(file).isFile());
        if (place == "link" || place == "link to nothing")
            QVERIFY(QFileInfo(file).isSymLink() && groupsIn(target).startsWith("newer,new"));
        if (place == "read-only")
            QCOMPARE(QFileInfo(file).permissions(), QFileInfo(previous).permissions());
        if (place == "unreadable") {
            const QString aside = folders.user + folders.setAside("other").value(0);
            QCOMPARE(QFileInfo(aside).permissions(), QFile::Permissions());
            QFile::setPermissions(aside, QFile::ReadOwner);
            QCOMPARE(contentOf(aside), content);
        }
        if (place == "previous link")
            QVERIFY(contentOf(target) == "theirs" && !QFileInfo(previous).isSymLink());
        if (place == "previous folder")
            QVERIFY(QFileInfo(previous + "/inside").isDir());
        if (place == "unreadable previous" || place.endsWith("generations"))
            QCOMPARE(groupsIn(previous), QByteArray("new,3,2,1"));
#endif
    }

    void fileThatCouldNotBeReadAtTheStart() {
        for (const bool forGood : {false, true}) {
            const Folders folders;
            Session(folders).saveWith({"1", "2"});
            DiskCalls::setFault([&](const char*, const QString& path) { return path == folders.systems(); });
            Session session(folders);               // another program holds the file
            QCOMPARE(session.getGroupNames(), "1"); // of the previous generation
            // What can neither be read nor have a second name can still be moved.
            DiskCalls::setFault([&](const char* call, const QString& path) {
                return forGood && (path == folders.systems() ? qstrcmp(call, "read") == 0 : qstrcmp(call, "link") == 0);
            });
            session.saveWith({"a"});
            DiskCalls::setFault({});
            QCOMPARE(groupsAside(folders), QByteArrayList{"2,1"});
            session.saveWith({"b", "c"});
            QCOMPARE(folders.setAside("other").size(), 1);
            QCOMPARE(folders.shown(), QByteArray("c,b,a,1"));
        }
    }

    void fileThatGrowsNoFurther() {
        const Folders folders;
        Session(folders).saveWith({"1", "2"});
        const QByteArray saved = contentOf(folders.systems()), previous = contentOf(folders.previous());
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
            QCOMPARE(folders.rescued() + Folders::filesBelow(folders.user, "*.unfinished-*"), QStringList());
        }
        session.saveSystems();
        QCOMPARE(folders.shown(), QByteArray("new,2,1"));
    }

    void fullDisk() {
        const Folders folders;
        const SmallDisk disk(folders.user, 1024);
        if (!disk.works)
            QSKIP("no disk may be mounted here");
        Session first(folders);
        for (int i = 0; i < 200; ++i)
            first.add("new", QByteArray::number(-i).constData());
        first.saveSystems();
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

#include "catalogue/Sdk.h"

#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ISystemConfig.h"
#include "platform/sdk/Catalogue.h"
#include "support/Files.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QXmlStreamReader>
#include <QtTest>

#include <cstring>
#include <limits>
#include <memory>

static const char* const systemsName = "CoordinateSystem_custom.vcs";
static const char* const ellipsoidsName = "Ellipsoid_custom.xml";
static const char* const geoidsName = "Geoid_custom.xml";

/// A user's data folder and a folder of shipped data; every Session is one start of the tool on them.
struct Folders {
    QTemporaryDir dir;
    QString user = dir.filePath("user/");
    QString shipped = dir.filePath("shipped/");

    Folders() {
        QDir().mkpath(user);
        QDir().mkpath(shipped);
    }
    QString systems() const { return user + systemsName; }
    QString previous() const { return systems() + ".bak"; }
    QStringList setAside() const { return QDir(user).entryList({"*.damaged-*"}); }
};

struct Session : Catalogue {
    explicit Session(const Folders& folders) : Catalogue(folders.shipped), user(folders.user) {
        load(QFile::encodeName(user).constData());
    }
    void saveSystems() {
        saveCoordSystems("");
        saveCoordSystems(QFile::encodeName(user + systemsName).constData());
    }
    void saveRecords() {
        saveEllipsoids("");
        saveEllipsoids(QFile::encodeName(user + ellipsoidsName).constData());
        saveGeoids("");
        saveGeoids(QFile::encodeName(user + geoidsName).constData());
    }
    int add(const char* group, const char* system) {
        if (!hasGroup(group))
            addGroup(group);
        DictionaryGuard record;
        record->setText("ellipsoid_name", "GRS 1980");
        record->setText("name", system);
        dic_set_value(record.get(), "org_lon", "%f", 100.0 / 3.0);
        return getGroup(group)->addCoordSystem(record.get());
    }
    void addEllipsoidOf(const char* name, const char* a, const char* flag) {
        DictionaryGuard record;
        record->setText("ellipsoid_name", name);
        record->setText("ellipsoid_a", a);
        if (flag)
            record->setText("ellipsoid_flag", flag);
        addEllipsoid(record.get());
    }
    QByteArray systems(const char* group) { return getGroup(group)->getCoordSystemNames(); }

    QString user;
};

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

/// For any XML reader, not only for ours.
static bool isWellFormed(const QString& path) {
    QXmlStreamReader reader(contentOf(path));
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

/// Three groups of three systems; all but the last is the previous generation.
static void saveNineSystems(const Folders& folders) {
    Session session(folders);
    for (const char* group : {"c", "b", "a"}) {
        for (const char* system : {"3", "2", "1"}) {
            session.add(group, system);
            session.saveSystems();
        }
    }
}

static QByteArray describe(Catalogue& catalogue) {
    QByteArray text;
    const QList<QByteArray> groups = QByteArray(catalogue.getGroupNames()).split(',');
    for (const QByteArray& group : groups) {
        if (!catalogue.hasGroup(group.constData()))
            continue;
        const QList<QByteArray> systems = QByteArray(catalogue.getGroup(group)->getCoordSystemNames()).split(',');
        for (const QByteArray& system : systems) {
            const IDictionary* record = catalogue.getGroup(group)->getCoordSystem(system);
            if (!record)
                continue;
            text += group + '/' + system + ':' + recordText(*record).join(' ').toUtf8() + '\n';
        }
    }
    return text;
}

static QString helperPath() {
    return QCoreApplication::applicationDirPath() + "/sdk_helper";
}

/// Starts of the tool by a user whose home is `home`.
static std::unique_ptr<QProcess> startInstance(const QString& home) {
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home);
    environment.remove("XDG_DATA_HOME");
    environment.insert("LANG", "C");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process->setProcessEnvironment(environment);
    process->start(helperPath(), QStringList());
    return process;
}

static void end(QProcess& process) {
    process.kill();
    QVERIFY(process.waitForFinished());
}

static QByteArray answerOf(QProcess& process) {
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(30000))
            return "nothing";
    }
    return process.readLine().trimmed();
}

class SdkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        get_system_config_parameter(); // it lives until the end
    }

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

    void namesThatAreRefused_data() {
        const Rows<QByteArray> row({"name"});
        row("empty", "");
        row("comma", "UTM, zone 33");
        row("taken", "taken");
    }

    void namesThatAreRefused() {
        QFETCH(QByteArray, name);
        const Folders folders;
        Session session(folders);
        session.add("taken", "taken");
        session.add("group", "system");
        session.add("group", "taken");
        const QByteArray before = session.getGroupNames();
        session.addGroup(name.constData());
        QCOMPARE(session.renameGroup("group", name.constData()), 0);
        QCOMPARE(session.renameGroup("missing", "new"), 0);
        QCOMPARE(QByteArray(session.getGroupNames()), before);
        QCOMPARE(session.add("group", name.constData()), 0);
        QCOMPARE(session.getGroup("group")->renameCoordSystem("system", name.constData()), 0);
        QCOMPARE(session.systems("group"), QByteArray("taken,system"));
        QCOMPARE(session.getGroup("group")->getCoordSystem("system")->getValue("name"), "system");
        session.addEllipsoidOf(name == "taken" ? "" : name.constData(), "1", "0");
        QCOMPARE(session.getEllipsoidNames(), "");
        QVERIFY(session.hasGroup("taken") && !session.hasGroup("Taken")); // exactly
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
        DictionaryGuard geoid;
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
        QCOMPARE(geoids.records.find("geoid_name")->values->getValue("geoid_ellipsoid"), "geoid_ellipsoid");
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
        QCOMPARE(Session(folders).getGroupNames(), ""); // an empty catalogue is the user's own, too
        QVERIFY(QFile::rename(folders.systems(), folders.previous()));
        QCOMPARE(Session(folders).getGroupNames(), "");
        QVERIFY(QFile::rename(folders.previous(), folders.systems() + ".damaged-20240229-120000"));
        QCOMPARE(Session(folders).getGroupNames(), "");
    }

    void textsSurvive_data() {
        const Rows<QByteArray, QByteArray> row({"codec", "text"});
        const QByteArray utf8("UTF-8");
        row("quotes", utf8, "\"a\" 'b' `c`");
        row("markup", utf8, "<a href=\"x\">&amp;&#65;</a>]]>-->");
        row("percent", utf8, "100 %s %n %01 %");
        row("blanks around", utf8, "  a  b  ");
        row("a blank", utf8, " ");
        row("line breaks", utf8, "\na\r\nb\rc\td\n");
        row("controls", utf8, "%\x01 \x1b[1m\x7f \xC3\xA9");
        row("emoji", utf8, "M\xC3\xBCnchen \xE6\x96\xB0 \xF0\x9F\x97\xBA");
        row("byte-order mark", utf8, "\xEF\xBB\xBFname");
        row("no character", utf8, "\xEF\xBF\xBF \xEF\xBF\xBE");
        row("broken UTF-8", utf8, "M\xFCnchen \xC3");
        row("surrogate", utf8, "\xED\xA0\x80");
        row("Latin-1", "ISO-8859-1", "M\xFCnchen \xC3\xA9");
        row("Windows-1252", "windows-1252", "\x80 \x81 M\xFCnchen");
        row("GBK", "GBK", "\xD0\xC2 | \x81\x5C"); // a backslash as second byte
    }

    void textsSurvive() {
        QFETCH(QByteArray, codec);
        QFETCH(QByteArray, text);
        QTextCodec* local = QTextCodec::codecForName(codec);
        QVERIFY(local);
        QTextCodec::setCodecForLocale(local);
        const Folders folders;
        Session session(folders);
        const char* const name = text.constData();
        QCOMPARE(session.add(name, name), 1);
        session.getGroup(name)->getCoordSystem(name)->setText(name, name);
        session.addEllipsoidOf(name, name, "0");
        for (int generation = 0; generation < 2; ++generation) {
            Session next(folders);
            (generation == 0 ? session : next).saveSystems();
            (generation == 0 ? session : next).saveRecords();
            QVERIFY(isWellFormed(folders.systems()) && isWellFormed(folders.user + ellipsoidsName));
        }
        Session last(folders);
        QCOMPARE(QByteArray(last.getGroupNames()), text);
        QCOMPARE(last.systems(name), text);
        IDictionary* record = last.getGroup(name)->getCoordSystem(name);
        QCOMPARE(record->getValue(name), name);
        QCOMPARE(record->count(), 4);
        QCOMPARE(record->getKey(0), "ellipsoid_name");
        QCOMPARE(last.getEllipsoid(name)->getValue("ellipsoid_a"), name);
    }

    void numbersSurviveBitForBit() {
        QVector<double> numbers = {0.0, -0.0, 1.0, 1.0 / 3.0, 298.257222101, 6378137.0, 1e300, -1e-300};
        numbers << std::numeric_limits<double>::denorm_min() << std::numeric_limits<double>::max();
        QRandomGenerator random(7);
        while (numbers.size() < 2000) {
            const quint64 bits = random.generate64();
            double number;
            std::memcpy(&number, &bits, sizeof number);
            if (qIsFinite(number))
                numbers << number;
            numbers << random.generateDouble() * 360.0 - 180.0;
        }
        const Folders folders;
        Session session(folders);
        session.add("group", "system");
        IDictionary* saved = session.getGroup("group")->getCoordSystem("system");
        for (int i = 0; i < numbers.size(); ++i)
            dic_set_value(saved, QByteArray::number(i).constData(), "%f", numbers[i]);
        session.saveSystems();
        Session(folders).saveSystems();
        Session next(folders);
        const IDictionary* record = next.getGroup("group")->getCoordSystem("system");
        for (int i = 0; i < numbers.size(); ++i) {
            const QByteArray key = QByteArray::number(i);
            const double read = dictionary_number(*record, key.constData(), qQNaN());
            QVERIFY2(std::memcmp(&read, &numbers[i], sizeof read) == 0,
                     qPrintable(QString::number(numbers[i], 'g', 17)));
            QCOMPARE(record->getValue(key.constData()), saved->getValue(key.constData()));
        }
        // Where the text says it all there is no number beside it.
        const QByteArray content = contentOf(folders.systems());
        QVERIFY(content.contains("<value key=\"2\" text=\"1.000000\"/>"));
        QVERIFY(content.contains("<value key=\"3\" text=\"0.333333\" number=\"0.3333333333333333\"/>"));
    }

    void unknownContentSurvives() {
        const Folders folders;
        const QByteArrayList kept = {
            "<coordinate_systems version=\"1\" site=\"Ulm &amp; &#10;Neu-Ulm\">",
            "<group name=\"g\" colour=\"red\">",
            "<system checked=\"2024-02-29\">",
            "<value key=\"org_lon\" text=\"9\" unit=\"deg\">",
            "<source> EPSG <b>1</b></source>",
            "<!-- measured twice -->",
            "<history><entry at=\"1\"/>  text\n of two lines </history>",
            "<!-- of the group -->",
            "<group name=\"g\"><system><value key=\"name\" text=\"in a second g\"/></system></group>",
            "<group name=\"a,b\"/>",
            "<group/>",
            "<system><value key=\"name\" text=\"s\"/><value key=\"second s\" text=\"1\"/></system>",
            "<system><value key=\"name\" text=\"no text\"/><value key=\"factor\"/></system>",
            R"(<system><value key="name" text="no number"/><value key="factor" text="1" number="one"/></system>)",
            "<system><value key=\"name\" text=\"lost\"/>value key=\"factor\" text=\"0.9996\"/&gt;</system>",
            "<system><value key=\"nameless\" text=\"1\"/></system>",
        };
        setContent(folders.systems(), kept[0] + kept[1] + kept[2] + "<value key=\"name\" text=\"s\"/>" + kept[3] +
                                          kept[4] + "</value>" + kept[5] + kept[6] + "</system>" + kept[11] + kept[12] +
                                          kept[13] + kept[14] + kept[15] + kept[7] + "</group>" + kept[8] + kept[9] +
                                          kept[10] + "</coordinate_systems>");
        Session first(folders);
        QCOMPARE(first.getGroupNames(), "g");
        QCOMPARE(first.systems("g"), QByteArray("s"));
        // An edit of the record, a new name and a new system leave the rest alone.
        DictionaryGuard edited;
        dictionary_assign(edited.get(), first.getGroup("g")->getCoordSystem("s"));
        edited->setText("org_lon", "9");
        first.getGroup("g")->setCoordSystem("s", edited.get());
        first.getGroup("g")->renameCoordSystem("s", "t");
        first.add("g", "new");
        first.getGroup("g")->renameCoordSystem("t", "s");
        first.saveSystems();
        QVERIFY(folders.setAside().isEmpty());
        const QByteArray saved = contentOf(folders.systems());
        for (const QByteArray& piece : kept)
            QVERIFY2(saved.contains(piece), piece.constData());
        Session(folders).saveSystems();
        QCOMPARE(contentOf(folders.systems()), saved);
    }

    void generations() {
        const Folders folders;
        QVERIFY(QDir(folders.user).removeRecursively()); // the save makes the folder
        Session session(folders);
        QByteArray last;
        for (const char* group : {"1", "2", "3"}) {
            session.addGroup(group);
            session.saveCoordSystems("");
            QCOMPARE(contentOf(folders.systems()), last.isEmpty() ? QByteArray("(missing)") : last); // it stays
            session.saveCoordSystems(QFile::encodeName(folders.systems()).constData());
            QCOMPARE(contentOf(folders.previous()), last.isEmpty() ? QByteArray("(missing)") : last);
            last = contentOf(folders.systems());
        }
        session.addGroup("4");
        session.saveCoordSystems(QFile::encodeName(folders.systems()).constData()); // without opening the save
        QCOMPARE(contentOf(folders.previous()), last);
        QCOMPARE(QDir(folders.user).entryList(QDir::Files).size(), 2);
        QVERIFY(QFile::remove(folders.systems()));
        QCOMPARE(Session(folders).getGroupNames(), "3,2,1");
    }

    void truncatedFile() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        const QByteArray wholePrevious = contentOf(folders.previous());
        Session intact(folders);
        const QByteArray described = describe(intact);
        QCOMPARE(described.count('\n'), 9);

        for (int length = 0; length < whole.trimmed().size(); length += 11) {
            const QByteArray cut = whole.left(length);
            // With a previous generation, that is what the user sees ...
            QVERIFY(setContent(folders.systems(), cut));
            Session withPrevious(folders);
            QCOMPARE(describe(withPrevious).count('\n'), 8);
            // ... without one, every system that is complete, and none that is not.
            QVERIFY(QFile::remove(folders.previous()));
            Session session(folders);
            const QByteArray read = describe(session);
            QVERIFY(described.startsWith(read));
            QCOMPARE(read.count('\n'), cut.count("</system>"));
            // The save puts the damaged file aside and does not let it become the previous generation.
            QVERIFY(setContent(folders.previous(), wholePrevious));
            session.saveSystems();
            const QStringList aside = folders.setAside();
            QCOMPARE(aside.size(), 1);
            QCOMPARE(contentOf(folders.user + aside[0]), cut);
            QCOMPARE(contentOf(folders.previous()), wholePrevious);
            QVERIFY(QFile::remove(folders.user + aside[0]));
            Session next(folders);
            QCOMPARE(describe(next), read);
        }
    }

    void damagedFile_data() {
        // The content, with "%" for a good file's content without its root element, and how many systems can be read.
        const Rows<QByteArray, int> row({"content", "systems"});
        const QByteArray root = "<coordinate_systems version=\"1\">%";
        row("empty", "", 0);
        row("zeros", QByteArray(3000, '\0'), 0);
        row("no XML", QByteArray::fromHex("7f454c4620fffe"), 0);
        row("another file", "<html>%</html>", 0);
        row("newer format", "<coordinate_systems version=\"2\">%</coordinate_systems>", 9);
        row("no version", "<coordinate_systems>%</coordinate_systems>", 9);
        row("version 0", "<coordinate_systems version=\"0\">%</coordinate_systems>", 9);
        row("two roots", root + "</coordinate_systems><x/>", 9);
        row("group not closed", "<coordinate_systems version=\"1\"><group name=\"x\">%", 0);
        row("zeros behind", root + QByteArray(100, '\0'), 9);
        row("a bit flipped in an end", root + "</coordinatu_systems>", 9);
    }

    void damagedFile() {
        QFETCH(QByteArray, content);
        QFETCH(int, systems);
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray good = contentOf(folders.systems());
        const int start = good.indexOf("<group");
        content.replace("%", good.mid(start, good.indexOf("</coordinate_systems>") - start));
        QVERIFY(setContent(folders.systems(), content));
        Session session(folders);
        QCOMPARE(describe(session).count('\n'), 8);
        QVERIFY(setContent(folders.previous(), "<")); // no help from there
        Session alone(folders);
        QCOMPARE(describe(alone).count('\n'), systems);
        alone.add("new", "new");
        alone.saveSystems();
        alone.saveSystems();
        QCOMPARE(folders.setAside().size(), 1);
        QCOMPARE(contentOf(folders.user + folders.setAside().constFirst()), content);
        Session next(folders);
        QCOMPARE(describe(next).count('\n'), systems + 1);
    }

    void unwritableFolder() {
        // Permissions don't stop an administrator, but nobody can make a folder where a file is, or a file where a
        // folder is.
        const Folders folders;
        Session session(folders);
        session.add("group", "system");
        const QString file = folders.dir.filePath("file");
        QVERIFY(setContent(file, "content"));
        session.saveCoordSystems(QFile::encodeName(file + "/Data/" + systemsName).constData());
        QCOMPARE(contentOf(file), QByteArray("content"));
        QVERIFY(QDir().mkpath(folders.systems() + "/inside"));
        session.saveSystems();
        QVERIFY(QFileInfo(folders.systems() + "/inside").isDir());
        QCOMPARE(QDir(folders.user).entryList(QDir::Files).size(), 0);
        QCOMPARE(Session(folders).getGroupNames(), "");
        QVERIFY(QDir(folders.systems()).removeRecursively());
        session.saveSystems();
        QCOMPARE(Session(folders).getGroupNames(), "group");
    }

    void killedWhileSaving() {
        QRandomGenerator random(11);
        for (int i = 0; i < 15; ++i) {
            const Folders folders;
            QProcess helper;
            helper.start(helperPath(), {"save", folders.user});
            QVERIFY(helper.waitForReadyRead(30000));
            QTest::qWait(random.bounded(60));
            end(helper);
            for (const QString& path : {folders.systems(), folders.previous()}) {
                if (QFileInfo::exists(path))
                    QVERIFY(CatalogueFile::condition(path, systemFile) == FileCondition::Whole);
            }
            QCOMPARE(Session(folders).getGroupNames(), "group");
            QVERIFY(folders.setAside().isEmpty());
        }
    }

    void configuration() {
        ISystemConfig* config = get_system_config_parameter();
        QCOMPARE(config, get_system_config_parameter());
        QCOMPARE(config->getParameters()->getValue("name"), "Coordinate System Manager");
        config->getParameters()->setText("name", "changed");
        config->reload();
        QCOMPARE(config->getParameters()->getValue("name"), "Coordinate System Manager");
        QCOMPARE(get_instance_ICoordSystem("", 0), get_instance_ICoordSystem("", 0));
    }

    void instances_data() {
        const Rows<QString> row({"name"});
        row("plain", "home");
        row("not ASCII", QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                                           "e \xE6\x96\xB0"));
        row("too long for a socket", QString(150, QLatin1Char('x')));
    }

    void instances() {
        QFETCH(QString, name);
        const QTemporaryDir dir;
        const QString home = dir.filePath(name);
        for (int round = 0; round < 3; ++round) {
            const auto first = startInstance(home);
            QCOMPARE(answerOf(*first), QByteArray("running"));
            const auto second = startInstance(home);
            QCOMPARE(answerOf(*second), QByteArray("refused"));
            QVERIFY(second->waitForFinished());
            QCOMPARE(second->exitCode(), 0);
            QCOMPARE(answerOf(*first), QByteArray("front"));
            const auto anotherUser = startInstance(dir.filePath("another"));
            QCOMPARE(answerOf(*anotherUser), QByteArray("running"));
            // Whatever it leaves behind, the next round starts.
            end(*anotherUser);
            end(*first);
        }
    }

    void startsAtTheSameMoment() {
        const QTemporaryDir dir;
        const QString data = dir.filePath(".local/share/ArvelaGnss/CoordSystemManager/");
        for (int round = 0; round < 6; ++round) {
            // After the first round there is a killed instance's lock; in the last two there is one that holds nothing
            // at all.
            const QStringList locks = QDir(data).entryList({"*.lock"});
            QCOMPARE(locks.size(), round == 0 ? 0 : 1);
            if (round >= 4)
                QVERIFY(setContent(data + locks[0], QByteArray()));
            std::vector<std::unique_ptr<QProcess>> processes;
            processes.reserve(6);
            for (int i = 0; i < 6; ++i)
                processes.push_back(startInstance(dir.path()));
            int running = 0;
            for (const auto& process : processes)
                running += answerOf(*process) == "running" ? 1 : 0;
            QCOMPARE(running, 1);
            for (const auto& process : processes)
                end(*process);
        }
    }

private:
    int alive = 0;
};

ROOM_TEST(SdkTest)
#include "SdkTest.moc"

#include "Session.h"
#include "platform/sdk/FileMark.h"
#include "support/RecordText.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>
#include <QTextCodec>
#include <QXmlStreamReader>
#include <QtNumeric>

#include <cstring>
#include <limits>

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
    for (const QByteArray& group : QByteArray(catalogue.getGroupNames()).split(',')) {
        ICoordSysGroup* const systems = catalogue.getGroup(group);
        for (const QByteArray& system : QByteArray(systems ? systems->getCoordSystemNames() : "").split(',')) {
            if (const IDictionary* record = systems ? systems->getCoordSystem(system) : nullptr)
                text += group + '/' + system + ':' + recordText(*record).join(' ').toUtf8() + '\n';
        }
    }
    return text;
}

/// The content with the line behind it that says that this program wrote it.
static QByteArray marked(const QByteArray& content) {
    return content + FileMark::behind(ContentHash(content));
}

/// Where a file's mark begins.
static int markOf(const QByteArray& file) {
    return file.lastIndexOf(QByteArray("<?") + FileMark::target);
}

class CatalogueFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        alive = dictionary_alive_count();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void cleanup() { QCOMPARE(dictionary_alive_count(), alive); }

    void textsSurvive_data() { textRows("texts.txt"); }
    void textsSurvive() {
        const auto [title, codec, quoted] = textRow<3>();
        const QByteArray text = quoted.mid(1, quoted.size() - 2);
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
        QByteArray content;
        QByteArrayList kept;
        for (const QByteArrayList& piece : textTable("unknown.txt")) {
            content += piece.join();
            kept << piece[0];
        }
        QVERIFY(setContent(folders.systems(), content));
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
        QVERIFY(folders.setAside("damaged").isEmpty() && folders.setAside("other").isEmpty());
        const QByteArray saved = contentOf(folders.systems());
        for (const QByteArray& piece : kept)
            QVERIFY2(saved.contains(piece), piece.constData());
        QVERIFY(saved.contains("<note><b/></note>")); // nothing that reads as blank the next time
        Session(folders).saveSystems();
        QCOMPARE(contentOf(folders.systems()), saved);
    }

    // Loading and saving again gives the same bytes, whatever stood where.
    void surroundings_data() { textRows("surroundings.txt"); }
    void surroundings() {
        auto [title, content, kept] = textRow<3>();
        content.replace("<root>", "<coordinate_systems version=\"1\">").replace("</root>", "</coordinate_systems>");
        content.replace("<s/>", "<system><value key=\"name\" text=\"s\"/></system>");
        if (title == "UTF-16")
            content = QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromLatin1(content));
        const Folders folders;
        QVERIFY(setContent(folders.systems(), content));
        Session first(folders);
        first.saveSystems();
        QVERIFY(folders.setAside("damaged").isEmpty()); // it is whole
        const QByteArray saved = contentOf(folders.systems());
        for (const QByteArray& piece : kept.split('~'))
            QVERIFY2(saved.contains(piece), saved.constData());
        QVERIFY(isWellFormed(folders.systems()));
        Session(folders).saveSystems();
        QCOMPARE(contentOf(folders.systems()), saved);
        QVERIFY(!saved.contains("\n\n"));
    }

    // Every bit of a file in turn: what is shown may differ by the flipped character, but what can't be understood is
    // never overwritten without a copy.
    void flippedBits() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        for (int bit = 0; bit < whole.size() * 8; bit += 53) {
            QByteArray flipped = whole;
            flipped[bit / 8] = char(flipped[bit / 8] ^ (1 << bit % 8));
            QVERIFY(setContent(folders.systems(), flipped));
            QFile::remove(folders.previous());
            Session session(folders), scanned(folders);
            QVERIFY(setContent(folders.systems(), flipped + '\n')); // read as XML in any case
            Session parsed(folders);
            QCOMPARE(describe(scanned), describe(parsed));
            QVERIFY(setContent(folders.systems(), flipped));
            session.saveSystems();
            // The bytes are the file's still, the previous generation's, or set aside.
            bool isKept = contentOf(folders.systems()) == flipped || contentOf(folders.previous()) == flipped;
            for (const QString& file : folders.setAside("damaged")) {
                isKept = isKept || contentOf(folders.user + file) == flipped;
                QVERIFY(QFile::remove(folders.user + file));
            }
            QVERIFY2(isKept, qPrintable(QString::number(bit)));
            QVERIFY(QDir(folders.user + "generations").removeRecursively());
        }
    }

    void truncatedFile() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        const QByteArray wholePrevious = contentOf(folders.previous());
        Session intact(folders);
        const QByteArray described = describe(intact);
        QCOMPARE(described.count('\n'), 9);

        for (int length = 0; length < markOf(whole) - 1; length += 11) {
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
            const QStringList aside = folders.setAside("damaged");
            QCOMPARE(aside.size(), 1);
            QCOMPARE(contentOf(folders.user + aside[0]), cut);
            QCOMPARE(contentOf(folders.previous()), wholePrevious);
            QVERIFY(QFile::remove(folders.user + aside[0]));
            Session next(folders);
            QCOMPARE(describe(next), read);
        }
    }

    // A record that nobody asked for is saved as the bytes that it was, even where they say the same in another way.
    void untouchedRecords() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray odd = "number=\"33.3333333333333357000\"";
        QByteArray content = contentOf(folders.systems());
        content.truncate(markOf(content));
        content.replace("number=\"33.333333333333336\"", odd);
        QCOMPARE(content.count(odd), 9);
        QVERIFY(setContent(folders.systems(), marked(content)));
        Session session(folders);
        session.getGroup("a")->getCoordSystem("1");
        session.getGroup("a")->renameCoordSystem("2", "two");
        session.getGroup("b")->setCoordSystem("1", session.getGroup("b")->getCoordSystem("3"));
        session.getGroup("b")->deleteCoordSystem("2");
        session.add("b", "2");
        session.deleteGroup("c");
        session.saveSystems();
        const QByteArray saved = contentOf(folders.systems());
        QCOMPARE(saved.count(odd), 1);
        const int start = content.indexOf("    <system>", content.indexOf("text=\"2\"")); // the group's third
        QVERIFY(saved.contains(content.mid(start, content.indexOf("  </group>") - start)));
        QCOMPARE(saved, marked(saved.left(markOf(saved))));
        Session scanned(folders);
        QVERIFY(setContent(folders.systems(), saved + '\n'));
        Session parsed(folders);
        QCOMPARE(describe(scanned), describe(parsed));
        QCOMPARE(describe(scanned).count('\n'), 6);
    }

    // As many as are written in several pieces, with one between them that is not as it was.
    void manyUntouchedRecords() {
        const Folders folders;
        Session first(folders);
        for (int i = 0; i < 4000; ++i)
            first.add("g", QByteArray::number(i).constData());
        first.saveSystems();
        QByteArray expected = contentOf(folders.systems());
        QVERIFY(expected.size() > 200000);
        Session session(folders);
        session.getGroup("g")->renameCoordSystem("300", "three hundred");
        session.saveSystems();
        expected.truncate(markOf(expected));
        QCOMPARE(contentOf(folders.systems()), marked(expected.replace("\"300\"", "\"three hundred\"")));
    }

    // What may become of a file's mark and the text around it.
    void marks_data() { textRows("marks.txt"); }
    void marks() {
        auto [title, content, isAsBefore] = textRow<3>();
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        content.replace("@", whole.mid(markOf(whole))).replace("%", whole.left(markOf(whole)));
        content.replace("^", "\xEF\xBB\xBF");
        if (title == "line ends")
            content.replace("\n", "\r\n");
        QVERIFY(setContent(folders.systems(), content));
        Session session(folders);
        QCOMPARE(describe(session).count('\n'), 9);
        session.saveSystems();
        QVERIFY(folders.setAside("damaged").isEmpty());
        const QByteArray saved = contentOf(folders.systems());
        QCOMPARE(saved == whole, isAsBefore == "yes");
        QCOMPARE(saved.count(FileMark::target), isAsBefore == "yes" ? 1 : 0); // what is not understood gets none
        Session next(folders);
        QCOMPARE(describe(next).count('\n'), 9);
    }

    // A mark that fits, behind something that this program would not write so: it is read as XML.
    void marksOfOthers() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        const QByteArray content = whole.left(markOf(whole));
        const QVector<QPair<QByteArray, QByteArray>> changes = {{"text=\"2\"", "text=\"1\""},
                                                                {"\"a\"", "\"b\""},
                                                                {"  </group>\n", "<!-- x -->\n  </group>\n"},
                                                                {"<system>", "<system checked=\"x\">"},
                                                                {"\"name\"", "\"nama\""},
                                                                {"name=\"a\"", "name=\"a\" b=\"c\""},
                                                                {"</coordinate_systems>", "<x/></coordinate_systems>"},
                                                                {"\"1\">", "\"2\">"},
                                                                {"    </system>\n", ""}};
        for (const auto& [before, after] : changes) {
            QByteArray changed = content;
            const int place = changed.indexOf(before);
            QVERIFY2(place > 0, before);
            changed.replace(place, before.size(), after);
            QVERIFY(setContent(folders.systems(), marked(changed)) && setContent(folders.previous(), "<"));
            Session scanned(folders);
            QVERIFY(setContent(folders.systems(), marked(changed) + '\n'));
            Session parsed(folders);
            QCOMPARE(describe(scanned), describe(parsed));
        }
        // A mark of another local encoding, which may have had other characters.
        QByteArray foreign = content;
        foreign.replace(foreign.indexOf("GRS"), 3, "\xE6\x96\xB0");
        QVERIFY(setContent(folders.systems(), marked(foreign)));
        Session readable(folders);
        QCOMPARE(describe(readable).count('\n'), 9);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        Session unreadable(folders);
        QCOMPARE(describe(unreadable).count('\n'), 8); // and the rest stays in the file
        unreadable.saveSystems();
        QVERIFY(contentOf(folders.systems()).contains("\xE6\x96\xB0"));
    }

    // Cut off anywhere, a file shows what is complete in it, and is whole only where nothing but the mark is missing.
    void cutOffAnywhere() {
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray whole = contentOf(folders.systems());
        const int mark = markOf(whole);
        for (int length = 0; length <= whole.size(); ++length) {
            const QByteArray cut = whole.left(length);
            QVERIFY(setContent(folders.systems(), cut));
            const SystemFile read = CatalogueFile::readSystems(folders.systems());
            int systems = 0;
            for (const CoordSysGroup& group : read.groups)
                systems += group.systems.names().count(',') + (group.systems.isEmpty() ? 0 : 1);
            QCOMPARE(systems, cut.count("</system>"));
            const bool isWhole = length == mark - 1 || length == mark || length >= whole.size() - 1;
            QCOMPARE(read.condition == FileCondition::Whole, isWhole);
        }
    }

    void damagedFile_data() { textRows("damaged.txt"); }
    void damagedFile() {
        auto [title, content, systems] = textRow<3>();
        const Folders folders;
        saveNineSystems(folders);
        const QByteArray good = contentOf(folders.systems());
        const int start = good.indexOf("<group");
        content.replace("%", good.mid(start, good.indexOf("</coordinate_systems>") - start))
            .replace("<root>", "<coordinate_systems version=\"1\">");
        QVERIFY(setContent(folders.systems(), content));
        Session session(folders);
        QCOMPARE(describe(session).count('\n'), 8);
        QVERIFY(setContent(folders.previous(), "<")); // no help from there
        Session alone(folders);
        QCOMPARE(describe(alone).count('\n'), systems.toInt());
        alone.add("new", "new");
        alone.saveSystems();
        alone.saveSystems();
        QCOMPARE(folders.setAside("damaged").size(), 1);
        QCOMPARE(contentOf(folders.user + folders.setAside("damaged").constFirst()), content);
        Session next(folders);
        QCOMPARE(describe(next).count('\n'), systems.toInt() + 1);
        // Whatever was taken over of it, what is written is whole.
        const SystemFile read = CatalogueFile::readSystems(folders.user + folders.setAside("damaged").constFirst());
        QVERIFY(CatalogueFile::write(folders.user + "again", read));
        QCOMPARE(int(CatalogueFile::readSystems(folders.user + "again").condition), int(FileCondition::Whole));
    }

private:
    int alive = 0;
};

ROOM_TEST(CatalogueFileTest)
#include "CatalogueFileTest.moc"

#include "platform/utility/FileReplacement.h"

#include "catalogue/File.h"
#include "platform/utility/DiskCalls.h"
#include "platform/utility/FileHold.h"
#include "support/DiskLimits.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class FileReplacementTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { DiskCalls::setFault({}); }

    void replaces() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        const QByteArray large(300000, 'x');
        QString error;
        for (const QByteArray& content : {QByteArray("first"), QByteArray(), large}) {
            QVERIFY(process_replace_file(path, content, &error));
            QCOMPARE(contentOf(path), content);
        }
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList("a.prj"));
    }

    void piecesMakeNoDifference() {
        QByteArray content;
        for (int i = 0; i < 100; ++i)
            content += char(i);
        for (int first = 0; first <= 40; ++first) {
            ContentHash hash(content.left(first));
            hash.add(content.mid(first, 35));
            hash.add({});
            hash.add(content.mid(first + 35));
            QVERIFY(hash == ContentHash(content));
        }
        for (int i = 0; i < content.size() * 8; ++i) {
            QByteArray flipped = content;
            flipped[i / 8] = char(flipped[i / 8] ^ (1 << i % 8));
            QVERIFY(!(ContentHash(flipped) == ContentHash(content)));
        }
        QVERIFY(!(ContentHash(content + '\0') == ContentHash(content)));
    }

    void everyCallFailsOnce() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        bool hasFailed = true;
        int failures = 0;
        for (int place = 0; hasFailed; ++place) {
            hasFailed = false;
            int calls = 0;
            QByteArray failed;
            DiskCalls::setFault([&](const char* call, const QString&) {
                if (calls++ != place)
                    return false;
                failed = call;
                return hasFailed = true;
            });
            QString error;
            const bool isReplaced = process_replace_file(path, "new", &error);
            DiskCalls::setFault({});
            QCOMPARE(isReplaced, !hasFailed);
            QCOMPARE(contentOf(path), QByteArray(hasFailed ? "old" : "new"));
            QVERIFY2(!hasFailed || !error.isEmpty(), failed);
            QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 1);
            failures += hasFailed ? 1 : 0;
        }
        QCOMPARE(failures, 4); // create, write, sync, rename
    }

    void sizeOnDiskCounts() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        // Every call says that all is well, and yet the last block is not there.
        DiskCalls::setFault([](const char* call, const QString& file) {
            if (qstrcmp(call, "sync") == 0)
                QFile::resize(file, 2);
            return false;
        });
        QString error;
        QVERIFY(!process_replace_file(path, "new", &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(contentOf(path), QByteArray("old"));
    }

    void fullDisk() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        for (const int limit : {0, 1, 700, 16384, 19999}) {
            const FileSizeLimit full(limit);
            if (!full.works)
                QSKIP("no limit for files here");
            QString error;
            QVERIFY(!process_replace_file(path, QByteArray(20000, 'x'), &error));
            QVERIFY(!error.isEmpty());
            QCOMPARE(contentOf(path), QByteArray("old"));
            QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 1);
        }
    }

    void permissionsAndLinks() {
        const QTemporaryDir dir;
        const QString target = dir.filePath("target.prj");
        const QString link = dir.filePath("link.prj");
        const QString dangling = dir.filePath("dangling.prj");
        const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QVERIFY(setContent(target, "old") && QFile::setPermissions(target, own));
        QVERIFY(QFile::link("target.prj", link) && QFile::link(dir.filePath("later.prj"), dangling));
        QString error;
        QVERIFY(process_replace_file(link, "new", &error) && process_replace_file(dangling, "later", &error));
        QVERIFY(QFileInfo(link).isSymLink() && QFileInfo(dangling).isSymLink());
        QCOMPARE(contentOf(target), QByteArray("new"));
        QCOMPARE(QFile::permissions(target), own);
        QCOMPARE(contentOf(dir.filePath("later.prj")), QByteArray("later"));
        // A replacement itself does not follow.
        FileReplacement replacement(link);
        QVERIFY(replacement.prepareCopyOf(target) && replacement.commit());
        QVERIFY(!QFileInfo(link).isSymLink());
        QCOMPARE(QFile::permissions(link), own);
    }

    void nothingButFiles_data() {
        const Rows<QString> row({"place"});
        row("a folder", "folder");
        row("a device", "device");
        row("no folder", "missing/a.prj");
        row("a file as folder", "file/a.prj");
    }

    void nothingButFiles() {
        QFETCH(QString, place);
        const QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("folder/inside") && QFile::link("/dev/null", dir.filePath("device")));
        QVERIFY(setContent(dir.filePath("file"), "content"));
        QString error;
        QVERIFY(!process_replace_file(dir.filePath(place), "new", &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 (QStringList{"device", "file", "folder"}));
        QVERIFY(QFileInfo::exists("/dev/null") && !QFileInfo("/dev/null").isFile());
    }

    void leftovers() {
        const QTemporaryDir dir;
        const auto file = [&](const char* name) { return dir.filePath(name); };
        for (const char* name : {"a.unfinished-abcdef", "a.backup", "a.unfinished-held", "b.unfinished-abcdef", "a"})
            QVERIFY(setContent(file(name), "x"));
        QFile held(file("a.unfinished-heldon"));
        QVERIFY(held.open(QIODevice::WriteOnly));
        const bool isHeld = FileHold::take(held);
        FileReplacement::removeLeftovers(dir.path(), "a");
        QCOMPARE(QFileInfo::exists(held.fileName()), isHeld);
        QStringList left = {"a", "a.backup", "a.unfinished-held", "b.unfinished-abcdef"};
        held.remove();
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files, QDir::Name), left);
    }
};

ROOM_TEST(FileReplacementTest)
#include "FileReplacementTest.moc"

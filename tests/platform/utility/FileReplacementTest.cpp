#include "platform/utility/FileReplacement.h"

#include "catalogue/File.h"
#include "platform/utility/DiskCalls.h"
#include "platform/utility/FileHold.h"
#include "support/DiskLimits.h"
#include "support/Files.h"
#include "support/RoomTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class FileReplacementTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        dir = std::make_unique<QTemporaryDir>();
        path = dir->filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        error.clear();
    }
    void cleanup() { DiskCalls::setFault({}); }

    void replaces() {
        for (const QByteArray& content : {QByteArray("first"), QByteArray(), QByteArray(300000, 'x')}) {
            QVERIFY(process_replace_file(path, content, &error));
            QCOMPARE(contentOf(path), content);
        }
        QCOMPARE(files(), QStringList("a.prj"));
    }

    void piecesMakeNoDifference() {
        QByteArray content;
        for (int i = 0; i < 600; ++i)
            content += char(i);
        for (int first = 0; first <= 300; ++first) {
            ContentHasher hasher;
            for (const QByteArray& piece : {content.left(first), content.mid(first, 35), content.mid(first + 35)})
                hasher.add(piece);
            QVERIFY(hasher.hash() == ContentHash(content));
        }
        // As the algorithm's publication has it.
        QCOMPARE(ContentHash().toHex(), QByteArray("99aa06d3014798d86001c324468d497f"));
        for (int i = 0; i < content.size() * 8; ++i) {
            QByteArray flipped = content;
            flipped[i / 8] = char(flipped[i / 8] ^ (1 << i % 8));
            QVERIFY(!(ContentHash(flipped) == ContentHash(content)));
        }
        QVERIFY(!(ContentHash(content + '\0') == ContentHash(content)));
    }

    void everyCallFailsOnce() {
        int failures = 0;
        for (bool hasFailed = true; hasFailed; failures += hasFailed ? 1 : 0) {
            int calls = 0;
            hasFailed = false;
            DiskCalls::setFault([&](const char*, const QString&) {
                hasFailed = hasFailed || calls == failures;
                return calls++ == failures;
            });
            const bool isReplaced = process_replace_file(path, "new", &error);
            DiskCalls::setFault({});
            QCOMPARE(isReplaced, !hasFailed);
            QCOMPARE(contentOf(path), QByteArray(hasFailed ? "old" : "new"));
            QCOMPARE(error.isEmpty(), !hasFailed);
            QCOMPARE(files(), QStringList("a.prj"));
            error.clear();
        }
        QCOMPARE(failures, 4); // create, write, sync, rename
    }

    void sizeOnDiskCounts() {
        // Every call says that all is well, and yet the last block is not there.
        DiskCalls::setFault([](const char* call, const QString& file) {
            if (qstrcmp(call, "sync") == 0)
                QFile::resize(file, 2);
            return false;
        });
        stays(path, "new");
    }

    void fullDisk() {
        for (const int limit : {0, 1, 700, 16384, 19999}) {
            const FileSizeLimit full(limit);
            if (!full.works)
                QSKIP("no limit for files here");
            stays(path, QByteArray(20000, 'x'));
        }
    }

    void permissionsAndLinks() {
        const QString link = dir->filePath("link.prj"), dangling = dir->filePath("dangling.prj");
        const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QVERIFY(QFile::setPermissions(path, own));
        QVERIFY(QFile::link("a.prj", link) && QFile::link(dir->filePath("later.prj"), dangling));
        QVERIFY(process_replace_file(link, "new", &error) && process_replace_file(dangling, "later", &error));
        QVERIFY(QFileInfo(link).isSymLink() && QFileInfo(dangling).isSymLink());
        QCOMPARE(contentOf(path), QByteArray("new"));
        QCOMPARE(QFile::permissions(path), own);
        QCOMPARE(contentOf(dir->filePath("later.prj")), QByteArray("later"));
        // A replacement itself does not follow.
        FileReplacement replacement(link);
        QVERIFY(replacement.prepareCopyOf(path) && replacement.commit());
        QVERIFY(!QFileInfo(link).isSymLink());
        QCOMPARE(QFile::permissions(link), own);
    }

    void nothingButFiles() {
        QVERIFY(QDir(dir->path()).mkpath("folder/inside") && QFile::link("/dev/null", dir->filePath("device")));
        for (const char* place : {"folder", "device", "no folder/a.prj", "a.prj/file as folder"})
            stays(dir->filePath(place), "new");
        QVERIFY(QFileInfo::exists("/dev/null") && !QFileInfo("/dev/null").isFile());
        QVERIFY(QFileInfo(dir->filePath("folder/inside")).isDir() && QFileInfo(dir->filePath("device")).isSymLink());
        QVERIFY(!QFileInfo::exists(dir->filePath("no folder")));
    }

    void leftovers() {
        for (const char* name : {"a.unfinished-abcdef", "a.backup", "a.unfinished-held", "b.unfinished-abcdef", "a"})
            QVERIFY(setContent(dir->filePath(name), "x"));
        QFile held(dir->filePath("a.unfinished-heldon"));
        QVERIFY(held.open(QIODevice::WriteOnly));
        const bool isHeld = FileHold::take(held);
        FileReplacement::removeLeftovers(dir->path(), "a");
        QCOMPARE(QFileInfo::exists(held.fileName()), isHeld);
        held.remove();
        QCOMPARE(files(), (QStringList{"a", "a.backup", "a.prj", "a.unfinished-held", "b.unfinished-abcdef"}));
    }

private:
    QStringList files() const { return QDir(dir->path()).entryList(QDir::Files, QDir::Name); }

    /// A replacement at `place` fails, with a reason, and changes nothing.
    void stays(const QString& place, const QByteArray& content) {
        const QStringList before = files();
        error.clear();
        QVERIFY2(!process_replace_file(place, content, &error), qPrintable(place));
        QVERIFY(!error.isEmpty());
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(files(), before);
    }

    std::unique_ptr<QTemporaryDir> dir;
    QString path, error;
};

ROOM_TEST(FileReplacementTest)
#include "FileReplacementTest.moc"

#include "catalogue/File.h"
#include "platform/utility/FileHold.h"
#include "platform/utility/FileReplacement.h"
#include "platform/utility/LongPath.h"
#include "support/Files.h"
#include "support/HeldFile.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

class WindowsDiskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void heldByAnotherProgram_data() {
        const Rows<int> row({"sharing"});
        row("for itself", HeldFile::WithNobody);
        row("others may read", HeldFile::ForReading);
    }

    void heldByAnotherProgram() {
        QFETCH(int, sharing);
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        HeldFile held(path, HeldFile::Sharing(sharing));
        QVERIFY(held.isHeld());
        QVERIFY(FileHold::of(path) == FileHold::State::Held);
        QString error;
        QVERIFY(!process_replace_file(path, "new", &error));
        QVERIFY(!error.isEmpty());
        held.release();
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList("a.prj"));
        QVERIFY(process_replace_file(path, "new", &error));
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void heldForAMoment() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old"));
        HeldFile scanned(path, HeldFile::WithNobody);
        std::thread scanner([&] {
            Sleep(20);
            scanned.release();
        });
        QString error;
        const bool isReplaced = process_replace_file(path, "new", &error);
        scanner.join();
        QVERIFY2(isReplaced, qPrintable(error));
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void leftoversThatAreWorkedOn() {
        const QTemporaryDir dir;
        for (const char* name : {"a.unfinished-abcdef", "a.unfinished-ghijkl"})
            QVERIFY(setContent(dir.filePath(name), "x"));
        const HeldFile held(dir.filePath("a.unfinished-abcdef"), HeldFile::ForReading);
        FileReplacement::removeLeftovers(dir.path(), "a");
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList("a.unfinished-abcdef"));
    }

    void readOnly() {
        const QTemporaryDir dir;
        const QString path = dir.filePath("a.prj");
        QVERIFY(setContent(path, "old") && QFile::setPermissions(path, QFile::ReadOwner));
        QString error;
        QVERIFY2(process_replace_file(path, "new", &error), qPrintable(error));
        QCOMPARE(contentOf(path), QByteArray("new"));
        QVERIFY(!QFileInfo(path).isWritable()); // whoever set it so finds it so
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
    }

    void paths_data() {
        const Rows<QString> row({"path"});
        row("of 300 characters", QString(150, 'x') + '/' + QString(150, QChar(0x6d4b)) + "/a.prj");
        row("Chinese", QString::fromUtf8("测量/北京 54.prj"));
        row("of the other case", "A.PRJ");
        row("in a drive's root", "C:/coordsystem_manager_test.prj");
    }

    void paths() {
        QFETCH(QString, path);
        const QTemporaryDir dir;
        QString place = dir.path() + '/' + path;
        if (path.startsWith("C:"))
            place = path;
        QVERIFY(QDir().mkpath(QFileInfo(place).path()) && setContent(dir.filePath("a.prj"), "old"));
        QString error;
        for (const char* content : {"first", "second"}) {
            QVERIFY2(process_replace_file(place, content, &error), qPrintable(error));
            QCOMPARE(contentOf(place), QByteArray(content));
        }
        QCOMPARE(contentOf(dir.filePath("a.prj")), QByteArray(path == "A.PRJ" ? "second" : "old"));
        QVERIFY(QFile::remove(place));
    }

    void longForms() {
        const QString tail = QString(300, 'x');
        const auto formOf = [](const QString& path) { return QString::fromStdWString(longPath(path)); };
        QCOMPARE(formOf("C:/short/a.prj"), QString(R"(C:\short\a.prj)"));
        QCOMPARE(formOf("//server/share/a.prj"), QString(R"(\\server\share\a.prj)"));
        QCOMPARE(formOf("C:/some/../" + tail), R"(\\?\C:\)" + tail);
        QCOMPARE(formOf("//server/share/" + tail), R"(\\?\UNC\server\share\)" + tail);
        QCOMPARE(formOf(R"(\\?\C:\)" + tail), R"(\\?\C:\)" + tail);
        QCOMPARE(formOf(tail), R"(\\?\)" + QDir::toNativeSeparators(QDir::currentPath()) + '\\' + tail);
    }
};

ROOM_TEST(WindowsDiskTest)
#include "WindowsDiskTest.moc"

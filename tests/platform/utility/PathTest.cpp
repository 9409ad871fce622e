#include "catalogue/Path.h"

#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QCoreApplication>
#include <QTest>

static QByteArray resolvedPath() {
    char path[4096];
    process_resolve_path(path, sizeof path, "$(APP_DIR)/%s", "x");
    return path;
}

static const QByteArray pathBeforeTheApplication = resolvedPath();

class PathTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void resolvePath_data() {
        const Rows<QByteArray, QByteArray, QByteArray> row({"format", "value", "path"});
        const QByteArray folder = QCoreApplication::applicationDirPath().toLocal8Bit();
        QVERIFY(!folder.isEmpty());
        row("folder", "$(APP_DIR)/../etc/%s", {}, folder + "/../etc/");
        row("file", "$(APP_DIR)/%s", "egm 100%.ggf", folder + "/egm 100%.ggf");
        row("never in a value", "/x/%s", "$(APP_DIR)", "/x/$(APP_DIR)");
        row("no folder at all", "/%s", "\xC3\xA9", "/\xC3\xA9");
        row("twice", "$(APP_DIR)%s$(APP_DIR)", ":", folder + ":" + folder);
    }

    void resolvePath() {
        QFETCH(QByteArray, format);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, path);
        char buffer[1000];
        process_resolve_path(buffer, sizeof buffer, format.constData(), value.constData());
        QCOMPARE(QByteArray(buffer), path);
    }

    void resolvePathNeverCuts() {
        const QByteArray guard(64, '#');
        const QByteArray path = "/abc/def";
        for (int size = 0; size <= path.size() + 2; ++size) {
            QByteArray buffer = guard;
            process_resolve_path(buffer.data(), size, "/abc/%s", "def");
            QCOMPARE(buffer.mid(size), guard.mid(size));
            if (size > 0)
                QCOMPARE(QByteArray(buffer.constData()), size > path.size() ? path : QByteArray());
        }
        process_resolve_path(nullptr, 10, "%s", "x");
        QByteArray buffer = guard;
        process_resolve_path(buffer.data(), -5, "/abc/%s", "def");
        QCOMPARE(buffer, guard);
    }

    void folderIsKnownBeforeTheApplication() {
        QVERIFY(!pathBeforeTheApplication.isEmpty());
        QCOMPARE(resolvedPath(), pathBeforeTheApplication);
    }
};

ROOM_TEST(PathTest)
#include "PathTest.moc"

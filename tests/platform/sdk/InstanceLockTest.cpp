#include "support/DiskLimits.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

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

class InstanceLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

    // What may lie in a lock's place without a living owner: the start goes on, and soon.
    void oddLocks_data() {
        const Rows<QByteArray, QByteArray> row({"suffix", "what"});
        for (const QByteArray suffix : {".lock", ".lock.start"}) {
            row(suffix + ": empty", suffix, "empty");
            row(suffix + ": a folder", suffix, "folder");
            row(suffix + ": a folder with files", suffix, "full folder");
            row(suffix + ": nonsense", suffix, "nonsense");
            row(suffix + ": of a dead instance", suffix, "dead");
            row(suffix + ": of a dead instance with a number that is in use", suffix, "reused");
            row(suffix + ": of another user", suffix, "foreign");
        }
    }

    void oddLocks() {
        QFETCH(QByteArray, suffix);
        QFETCH(QByteArray, what);
        std::unique_ptr<QTemporaryDir> dir;
        QString path;
        {
            const OrdinaryUser user;
            dir = std::make_unique<QTemporaryDir>();
            const QString data = dir->filePath(".local/share/ArvelaGnss/CoordSystemManager/");
            QVERIFY(QDir().mkpath(data));
            path = data + "instance-" + QSysInfo::machineHostName() + suffix;
            if (what.endsWith("folder"))
                QVERIFY(QDir().mkpath(what == "full folder" ? path + "/inside" : path));
        }
        const QByteArray owner = "\nsdk_helper\n" + QSysInfo::machineHostName().toUtf8() + '\n';
        if (what == "empty")
            QVERIFY(setContent(path, ""));
        else if (what == "nonsense")
            QVERIFY(setContent(path, QByteArray(5000, '7')));
        else if (what == "reused")
            QVERIFY(setContent(path, QByteArray::number(QCoreApplication::applicationPid()) + owner));
        else if (!what.endsWith("folder"))
            QVERIFY(setContent(path, "999999999" + owner));
        // Else the lock's file, which an administrator made here, is the user's own.
        const OrdinaryUser user;
        if (what == "foreign" && (!user.works || QFileInfo(path).isWritable()))
            QSKIP("no second user can be had here");
        if (what != "foreign" && !what.endsWith("folder") && !QFileInfo(path).isWritable())
            QVERIFY(QFile::copy(path, path + 'x') && QFile::remove(path) && QFile::rename(path + 'x', path));
        if (!QFileInfo(helperPath()).isExecutable())
            QSKIP("the helper can't be started by this user");
        QElapsedTimer timer;
        timer.start();
        const auto first = startInstance(dir->path());
        QCOMPARE(answerOf(*first), QByteArray("running"));
        QVERIFY2(timer.elapsed() < 8000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(suffix == ".lock" || !QFileInfo::exists(path)); // else every start would wait for it
        const auto second = startInstance(dir->path());
        QCOMPARE(answerOf(*second), QByteArray("refused"));
        QVERIFY(second->waitForFinished());
        end(*first);
    }

    // The lock decides, even when the one that runs can't answer.
    void runningWithoutSocket() {
        const QTemporaryDir dir;
        const auto first = startInstance(dir.path());
        QCOMPARE(answerOf(*first), QByteArray("running"));
        const QDir data(dir.filePath(".local/share/ArvelaGnss/CoordSystemManager"));
        const QString socket = data.filePath(data.entryList({"*.socket"}, QDir::System).value(0));
        QVERIFY(QFile::remove(socket));
        const auto second = startInstance(dir.path());
        QCOMPARE(answerOf(*second), QByteArray("refused"));
        QVERIFY(second->waitForFinished());
        end(*first);
    }

    // A home that two machines share: neither takes the other's socket away.
    void namesBearTheMachine() {
        const QTemporaryDir dir;
        const auto first = startInstance(dir.path());
        QCOMPARE(answerOf(*first), QByteArray("running"));
        const QString name = "instance-" + QSysInfo::machineHostName();
        QCOMPARE(QDir(dir.filePath(".local/share/ArvelaGnss/CoordSystemManager")).entryList(QDir::Files | QDir::System),
                 (QStringList{name + ".lock", name + ".socket"}));
        end(*first);
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
};

ROOM_TEST(InstanceLockTest)
#include "InstanceLockTest.moc"

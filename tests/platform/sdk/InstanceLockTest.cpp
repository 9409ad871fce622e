#include "support/DiskLimits.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <deque>
#include <memory>

static QString helperPath() {
    return QCoreApplication::applicationDirPath() + "/sdk_helper";
}

static QDir dataFolder(const QTemporaryDir& home) {
    return QDir(home.filePath("Data/ArvelaGnss/CoordSystemManager"));
}

/// A start of the tool by a user whose home is `home`; killed at the end.
class Instance {
public:
    explicit Instance(const QString& home) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("COORDSYSTEM_MANAGER_HOME", home);
        environment.insert("LANG", "C");
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        process.start(helperPath(), QStringList());
    }
    ~Instance() {
        process.kill();
        process.waitForFinished();
    }

    QByteArray answer() {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(30000))
                return "nothing";
        }
        return process.readLine().trimmed();
    }

    bool isRefused() { return answer() == "refused" && process.waitForFinished() && process.exitCode() == 0; }

private:
    QProcess process;
};

class InstanceLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void instances_data() {
        const Rows<QString> row({"name"});
        row("plain", "home");
        row("not ASCII", QString::fromUtf8("Größe 新"));
        row("too long for a socket", QString(150, QLatin1Char('x')));
    }

    void instances() {
        QFETCH(QString, name);
        const QTemporaryDir dir;
        for (int round = 0; round < 3; ++round) {
            Instance first(dir.filePath(name));
            QCOMPARE(first.answer(), QByteArray("running"));
            Instance second(dir.filePath(name));
            QVERIFY(second.isRefused());
            QCOMPARE(first.answer(), QByteArray("front"));
            Instance anotherUser(dir.filePath("another"));
            QCOMPARE(anotherUser.answer(), QByteArray("running"));
            // Whatever they leave behind, the next round starts.
        }
    }

    // What may lie in a lock's place without a living owner: the start goes on, and soon.
    void oddLocks_data() {
        const Rows<QByteArray, QByteArray> row({"suffix", "what"});
        for (const QByteArray suffix : {".lock", ".lock.start"}) {
            for (const QByteArray what : {"empty", "folder", "full folder", "nonsense", "of a dead instance",
                                          "of a number that is in use", "of another user"})
                row(suffix + ": " + what, suffix, what);
        }
    }

    void oddLocks() {
        QFETCH(QByteArray, suffix);
        QFETCH(QByteArray, what);
        const bool isFolder = what.endsWith("folder"), isForeign = what == "of another user";
        std::unique_ptr<QTemporaryDir> dir;
        QString path;
        {
            const OrdinaryUser user;
            dir = std::make_unique<QTemporaryDir>();
            path = dataFolder(*dir).filePath("instance-" + QSysInfo::machineHostName() + suffix);
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            if (isFolder)
                QVERIFY(QDir().mkpath(what == "full folder" ? path + "/inside" : path));
        }
        const auto ownedBy = [](qint64 process) {
            return QByteArray::number(process) + "\nsdk_helper\n" + QSysInfo::machineHostName().toUtf8() + '\n';
        };
        if (!isFolder)
            QVERIFY(setContent(path, what == "empty"      ? ""
                                     : what == "nonsense" ? QByteArray(5000, '7')
                                     : what == "of a number that is in use"
                                         ? ownedBy(QCoreApplication::applicationPid())
                                         : ownedBy(999999999)));
        // Else the lock's file, which an administrator made here, is the user's own.
        const OrdinaryUser user;
        if (isForeign && (!user.works || QFileInfo(path).isWritable()))
            QSKIP("no second user can be had here");
        if (!isForeign && !isFolder && !QFileInfo(path).isWritable())
            QVERIFY(QFile::copy(path, path + 'x') && QFile::remove(path) && QFile::rename(path + 'x', path));
        if (!QFileInfo(helperPath()).isExecutable())
            QSKIP("the helper can't be started by this user");
        QElapsedTimer timer;
        timer.start();
        Instance first(dir->path());
        QCOMPARE(first.answer(), QByteArray("running"));
        QVERIFY2(timer.elapsed() < 8000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(suffix == ".lock" || !QFileInfo::exists(path)); // else every start would wait for it
        Instance second(dir->path());
        QVERIFY(second.isRefused());
    }

    // Both names bear the machine, so that of two that share a home neither takes the other's socket away, which is the
    // user's alone. The lock decides, even when the one that runs can't answer.
    void runningWithoutSocket() {
        const QTemporaryDir home;
        Instance first(home.path());
        QCOMPARE(first.answer(), QByteArray("running"));
        const QString name = "instance-" + QSysInfo::machineHostName();
        QCOMPARE(dataFolder(home).entryList(QDir::Files | QDir::System),
                 (QStringList{name + ".lock", name + ".socket"}));
        const QString socket = dataFolder(home).filePath(name + ".socket");
        const auto ofOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFile::permissions(socket) & ofOthers, QFile::Permissions());
        QVERIFY(QFile::remove(socket));
        Instance second(home.path());
        QVERIFY(second.isRefused());
    }

    void startsAtTheSameMoment() {
        const QTemporaryDir home;
        for (int round = 0; round < 6; ++round) {
            // After the first round there is a killed instance's lock; in the last two there is one that holds nothing
            // at all.
            const QStringList locks = dataFolder(home).entryList({"*.lock"});
            QCOMPARE(locks.size(), round == 0 ? 0 : 1);
            if (round >= 4)
                QVERIFY(setContent(dataFolder(home).filePath(locks[0]), QByteArray()));
            std::deque<Instance> instances;
            for (int i = 0; i < 6; ++i)
                instances.emplace_back(home.path());
            QCOMPARE(std::count_if(instances.begin(), instances.end(),
                                   [](Instance& instance) { return instance.answer() == "running"; }),
                     1);
        }
    }
};

ROOM_TEST(InstanceLockTest)
#include "InstanceLockTest.moc"

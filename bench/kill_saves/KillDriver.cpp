#include "KillDriver.h"

#include "platform/sdk/CatalogueFile.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

namespace {

constexpr int patience = 20000;    // milliseconds, for a machine that does much else
constexpr int longestWork = 60000; // microseconds that a victim works on after its first save

bool isWhole(const QString& path) {
    const FileCondition condition = path.contains(QLatin1String(".vcs"))
                                        ? CatalogueFile::readSystems(path).condition
                                        : CatalogueFile::readRecords(path, ellipsoidFile).condition;
    return condition == FileCondition::Whole;
}

} // namespace

KillDriver::KillDriver() {
    QDir().mkpath(Victim::dataFolder(folder.path()));
}

void KillDriver::check(bool holds, const QString& complaint) {
    if (!holds)
        lost += QStringLiteral("kill %1: %2").arg(round).arg(complaint);
}

int KillDriver::runVictim(Victim::Work work, int lastCall) {
    QProcess victim;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("COORDSYSTEM_MANAGER_HOME"), folder.path());
    victim.setProcessEnvironment(environment);
    victim.start(QCoreApplication::applicationFilePath(),
                 {QStringLiteral("victim"), QString::number(int(work)), folder.path(), QString::number(lastCall)});
    victim.waitForStarted(patience);
    if (lastCall >= 0) {
        check(victim.waitForFinished(patience), QStringLiteral("the victim never came to call %1").arg(lastCall));
    } else {
        // Half of them die on the way to their first save or to being the running instance.
        if (random.bounded(2) == 0)
            victim.waitForReadyRead(patience);
        QThread::usleep(random.bounded(longestWork));
    }
    victim.kill();
    victim.waitForFinished(patience);
    int last = 0;
    for (const QByteArray& line : victim.readAllStandardOutput().split('\n')) {
        if (line.startsWith("done ")) {
            last = line.mid(5).toInt();
            ++saves;
        }
    }
    return last;
}

/// Whatever a killed start left behind, the next one goes on.
void KillDriver::checkStart() {
    QElapsedTimer timer;
    timer.start();
    QProcess next;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("COORDSYSTEM_MANAGER_HOME"), folder.path());
    next.setProcessEnvironment(environment);
    next.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("victim"), QString::number(int(Victim::Work::Start)), folder.path(), QStringLiteral("-1")});
    const bool isRunning = next.waitForReadyRead(patience);
    check(isRunning && timer.elapsed() < patience / 4, QStringLiteral("the next start was blocked"));
    next.kill();
    next.waitForFinished(patience);
}

void KillDriver::checkFiles(Victim::Work work, int done) {
    // Whatever bears its final name is whole.
    QDirIterator files(folder.path(), {QStringLiteral("CoordinateSystem*"), QStringLiteral("Ellipsoid*")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.contains(QLatin1String(".unfinished-")))
            ++leftovers;
        else
            check(isWhole(path), path + QLatin1String(" is not whole"));
    }

    // The next start shows the last save that was done, or the one that was just being made.
    const Victim::Saved before = shown;
    shown = Victim::load(folder.path());
    const int last = qMax(done, before.systems);
    check(shown.systems == last || shown.systems == last + 1,
          QStringLiteral("save %1 was done, %2 is shown").arg(last).arg(shown.systems));
    check(shown.ellipsoids >= qMax(done, before.ellipsoids) && shown.ellipsoids <= shown.systems,
          QStringLiteral("save %1 was done, the ellipsoids of %2 are shown").arg(done).arg(shown.ellipsoids));

    QDirIterator left(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (left.hasNext()) {
        const QString path = left.next();
        check(!path.contains(QLatin1String(".unfinished-")), path + QLatin1String(" stays"));
        check(!path.contains(QLatin1String(".damaged-")), path + QLatin1String(" was taken for damaged"));
        // A rescued save's older file is set aside; else there is nothing to be.
        const bool isOther = path.contains(QLatin1String(".other-"));
        check(!isOther || work == Victim::Work::Rescue, path + QLatin1String(" was taken for another's"));
        if (isOther)
            QFile::remove(path);
    }
}

bool KillDriver::kill(int number) {
    round = number;
    const int before = lost.size();
    // One in ten is a start; of the saves, every third goes to the rescue, and every second dies at a disk call.
    if (number % 10 == 9) {
        runVictim(Victim::Work::Start, -1);
        checkStart();
        return lost.size() == before;
    }
    const Victim::Work work = number % 3 == 2 ? Victim::Work::Rescue : Victim::Work::Save;
    checkFiles(work, runVictim(work, number % 2 == 0 ? number / 2 % 60 : -1));
    return lost.size() == before;
}

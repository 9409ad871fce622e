#include "platform/sdk/Generations.h"

#include "Session.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTime>

class GenerationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thinning_data() {
        // How many saves there were on each day, the latest day first; how many of each stay.
        const Rows<QVector<int>, int, QVector<int>> row({"saves", "megabytes", "stay"});
        row("few", {3, 4}, 0, {3, 4});
        row("many on a day", {14}, 0, {10});
        row("one a day", QVector<int>(50, 1), 0, QVector<int>(40, 1));
        row("many a day", {4, 4, 4, 4, 4}, 0, {4, 4, 2, 1, 1});
        row("large ones", {5, 5}, 30, {3, 0});
        row("too large even for one", {2}, 101, {1});
    }

    void thinning() {
        QFETCH(QVector<int>, saves);
        QFETCH(int, megabytes);
        QFETCH(QVector<int>, stay);
        const QTemporaryDir dir{quickFolder()};
        const Generations generations(dir.filePath("a.vcs"));
        const QString previous = dir.filePath("a.vcs.bak");
        const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0));
        const auto timeOf = [&](int day, int save) { return noon.addDays(-day).addSecs(-save); };
        QVERIFY(QDir(dir.path()).mkpath("generations"));
        const QStringList foreign = {"a.vcs.mine", "b.vcs.20240229-120000-000"};
        for (const QString& name : foreign)
            QVERIFY(setContent(dir.filePath("generations/" + name), "x"));
        for (int day = 0; day < saves.size(); ++day) {
            for (int save = 0; save < saves[day]; ++save) {
                QVERIFY(setContent(previous, "") && QFile::resize(previous, megabytes * qint64(1000000)) &&
                        setChanged(previous, timeOf(day, save)));
                QVERIFY(generations.take(previous) && !QFileInfo::exists(previous));
            }
        }
        generations.thin();
        QStringList expected = foreign;
        for (int day = 0; day < stay.size(); ++day) {
            for (int save = 0; save < stay[day]; ++save)
                expected << timeOf(day, save).toString("'a.vcs.'yyyyMMdd-HHmmss-zzz");
        }
        expected.sort();
        QCOMPARE(QDir(dir.filePath("generations")).entryList(QDir::Files, QDir::Name), expected);
    }

    void savesOfTheSameMoment() {
        const QTemporaryDir dir{quickFolder()};
        const Generations generations(dir.filePath("a.vcs"));
        const QString previous = dir.filePath("a.vcs.bak");
        for (const char* content : {"1", "2", "3"})
            QVERIFY(setContent(previous, content) && setChanged(previous, QDate(2024, 2, 29).startOfDay()) &&
                    generations.take(previous));
        generations.thin();
        QCOMPARE(QDir(dir.filePath("generations")).entryList(QDir::Files).size(), 3);
    }
};

ROOM_TEST(GenerationsTest)
#include "GenerationsTest.moc"

#include "panel/check/PointSaving.h"

#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QTemporaryDir>

class PointSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commit_data() {
        const Rows<bool> row({"isTaken"});
        row("the place is free", false);
        row("a folder has come to lie there", true);
    }

    /// What goes wrong at the last step, too, is told.
    void commit() {
        QFETCH(bool, isTaken);
        const QTemporaryDir folder;
        const QString path = folder.filePath("points.csv");
        PointTable points;
        points.append("A", "");
        PointSaving saving(points, path, PointWriter::Digits::Full);
        QVERIFY(!saving.hasFailed());
        if (isTaken)
            QVERIFY(QDir().mkpath(path + "/inside"));
        while (saving.write() < 1.0) {
        }
        QCOMPARE(saving.hasFailed(), isTaken);
        QCOMPARE(QFileInfo(path).isFile(), !isTaken);
    }
};

ROOM_TEST(PointSavingTest)
#include "PointSavingTest.moc"

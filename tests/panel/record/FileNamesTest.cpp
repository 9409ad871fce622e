#include "panel/record/FileNames.h"

#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

class FileNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesOfNames_data() { textRows("file_names.txt"); }

    void filesOfNames() {
        const auto [title, names, expected] = textRow<3>();
        FileNames files(".prj");
        QStringList found;
        for (const QString& name : QString::fromUtf8(names).split(';'))
            found << files.add(name).chopped(4);
        QCOMPARE(found.join("; "), QString::fromUtf8(expected));
    }

    /// Names of any length and letters are cut between letters, and stay apart.
    void longNames() {
        FileNames files(".prj");
        const QString heap = QString::fromUtf8("e") + QString(200, QChar(0x301));
        QSet<QString> found;
        for (const QString& letter :
             {QString("x"), QString::fromUtf8("京"), QString::fromUtf8("𝔊"), heap, QString(".")}) {
            for (const char* end : {"1", "2", "3"}) {
                const QString file = files.add(letter.repeated(300) + end);
                const QString stem = file.section(" (", 0, 0).remove(".prj");
                QVERIFY2(file.endsWith(".prj") && file.toUtf8().size() <= 150, qPrintable(file));
                QVERIFY2(letter == heap || letter == "." || letter.repeated(300).startsWith(stem), qPrintable(file));
                QVERIFY2(letter == heap || letter == "." || file.toUtf8().size() > 140, qPrintable(file));
                found << file;
            }
        }
        QCOMPARE(found.size(), 15);
    }
};

ROOM_TEST(FileNamesTest)
#include "FileNamesTest.moc"

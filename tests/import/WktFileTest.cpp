#include "import/WktFile.h"

#include "ProjectionLibraryDouble.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTemporaryDir>
#include <QTextCodec>

class WktFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        library.reset();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void textOfAFile_data() {
        const Rows<QByteArray, QByteArray> row({"content", "text"});
        row("plain", "PROJCS[]", "PROJCS[]");
        row("Windows line ends", "PROJCS[\r\n]\r\n", "PROJCS[\n]");
        row("byte-order mark", "\xEF\xBB\xBFPROJCS[]", "PROJCS[]");
        row("trailing blanks", "PROJCS[] \n\t \n", "PROJCS[]");
        row("up to the first NUL", QByteArray("PROJCS[]\0GEOGCS[]", 17), "PROJCS[]");
        row("NUL first", QByteArray("\0PROJCS[]", 9), "");
        row("empty", "", "");
        row("UTF-8", "PROJCS[\"\xC3\x96 \xE6\xB8\xAC\"]", "PROJCS[\"\xC3\x96 \xE6\xB8\xAC\"]");
        row("Windows-1252", "PROJCS[\"\xD6 \x96\"]", "PROJCS[\"\xC3\x96 \xE2\x80\x93\"]");
        row("UTF-8 cut in two", "PROJCS[\xC3", "PROJCS[\xC3\x83");
        row("UTF-16", QByteArray("\xFF\xFEP\0[\0\xD6\0\r\0\n\0]\0\n\0", 16), "P[\xC3\x96\n]");
        row("UTF-16, high byte first", QByteArray("\xFE\xFF\0P\0[\x0D\x0A\0]\0\r\0\n", 14), "P[\xE0\xB4\x8A]");
        row("UTF-16 up to the first NUL", QByteArray("\xFF\xFEP\0\0\0[\0", 8), "P");
        row("UTF-16 cut in two", QByteArray("\xFF\xFEP\0[", 5), "P");
    }

    void textOfAFile() {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, text);
        QVERIFY(setContent(path, content));
        WktFile::read(path);
        QCOMPARE(library.readText, text);
    }

    void localEncodingOfAFile_data() {
        const Rows<QByteArray, QByteArray, QByteArray> row({"encoding", "content", "text"});
        row("no UTF-8", "GBK", "P[\xB1\xB1\xBE\xA9]", "P[北京]");
        row("UTF-8 as well", "GBK", "P[\xCD\xA8]", "P[通]");
        row("UTF-8 of three bytes", "GBK", "P[\xE6\xB5\x8B\xC3\x96]", "P[测Ö]");
        row("UTF-8 only", "Big5", "P[\xC3\x96]", "P[Ö]");
        row("Korean", "EUC-KR", "P[\xC7\xB9]", "P[퓜]");
        row("Taiwanese", "Big5", "P[\xC4\xA9]", "P[藺]");
        row("Japanese", "Shift_JIS", "P[\xC4\xA9]", "P[ﾄｩ]");
        row("of one byte", "ISO-8859-1", "P[\xC3\x96]", "P[Ö]");
        row("ASCII", "GBK", "P[]", "P[]");
    }

    void localEncodingOfAFile() {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, text);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(encoding));
        QVERIFY(setContent(path, content));
        WktFile::read(path);
        QCOMPARE(QString::fromUtf8(library.readText), QString::fromUtf8(text));
    }

    void answersOfAFile() {
        QVERIFY(setContent(path, "text"));
        for (const auto content :
             {WktSystem::Content::Unreadable, WktSystem::Content::NotProjected, WktSystem::Content::Projected}) {
            library.system = {content, "name", "+proj=cass"};
            const WktSystem system = WktFile::read(path);
            QVERIFY(system.content == content && system.name == "name" && system.definition == "+proj=cass");
        }
        library.moduleIsMissing = true;
        QVERIFY(WktFile::read(path).content == WktSystem::Content::Unreadable);
    }

    void whatIsNoFile() {
        QStringList paths{folder.path(), folder.filePath("none.prj"), QString()};
#ifdef Q_OS_UNIX
        paths << "/dev/zero"; // It can be opened, and never ends.
#endif
        for (const QString& none : paths)
            QVERIFY(WktFile::read(none).content == WktSystem::Content::NotOpened);
    }

    void hugeFileIsReadInPart() {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(5 << 20, 'x')) > 0);
        QVERIFY(file.resize(qint64(1) << 30));
        file.close();
        WktFile::read(path);
        QVERIFY(library.readText.startsWith('x') && library.readText.size() <= 1 << 20);
    }

private:
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    const QTemporaryDir folder;
    const QString path = folder.filePath("file.prj");
};

ROOM_TEST(WktFileTest)
#include "WktFileTest.moc"

#include "import/WktToCoordParam.h"

#include "ProjectionLibraryDouble.h"
#include "RecordItems.h"
#include "catalogue/DictionaryGuard.h"
#include "support/RoomTest.h"

#include <QTest>
#include <QTextCodec>

class WktToCoordParamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        library.reset();
        library.definition = "+proj=cass +lat_0=3";
        library.system = {WktSystem::Content::Projected, QByteArray("\xC3\x84,B,,C"), "+proj=other"};
    }

    /// The handle of the text's definition is the one that is converted.
    void projectedSystem() {
        QVERIFY(WktToCoordParam::write("text", record.get()));
        QCOMPARE(library.readText, QByteArray("text"));
        QCOMPARE(library.calls.mid(0, 4),
                 QByteArrayList({"InitializeProj +proj=other", "GetTowgs84", "GetProjEllipsoid", "GetProjDefine"}));
        const QByteArray items = "project_type=11 org_lat=3.000000 name=\xC3\x84-B--C";
        QCOMPARE(inRecord(*record, items), items);
        QCOMPARE(record->getKey(record->count() - 1), "name");
    }

    void nameInTheLocalEncoding() {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        QCOMPARE(WktToCoordParam::nameInCatalogue(library.system), QByteArray("\xC4-B--C"));
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void nothingElseTouchesTheRecord() {
        record->clear();
        record->setText("key", "text");
        for (const auto content : {WktSystem::Content::Unreadable, WktSystem::Content::NotProjected}) {
            library.system.content = content;
            QVERIFY(!WktToCoordParam::write("text", record.get()));
        }
        library.system.content = WktSystem::Content::Projected;
        library.moduleIsMissing = true;
        QVERIFY(!WktToCoordParam::write("text", record.get()));
        QCOMPARE(record->count(), 1);
        QCOMPARE(library.calls, QByteArrayList());
    }

private:
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    const DictionaryGuard record;
};

ROOM_TEST(WktToCoordParamTest)
#include "WktToCoordParamTest.moc"

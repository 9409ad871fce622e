#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

class DefinitionLibraryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void unreadable_data() {
        const Rows<QByteArray> row({"given"});
        for (const char* text : {"", " ", "hello world", "+", "=", "+=", "+proj=", "+proj=tmerc +ellps=unheard",
                                 "+proj=tmerc +datum=unheard", "+proj=tmerc +towgs84=1,2", "+proj=tmerc +towgs84=1,2,x",
                                 "+proj=tmerc +towgs84=1,2,3,4,5,6,7,8", "+proj=tmerc +a=0",
                                 "+proj=tmerc +a=-1 +rf=300", "+proj=tmerc +rf=300", "+proj=tmerc +a=6378137 +rf=0.5",
                                 "+proj=tmerc +a=1 +b=nan", "+proj=tmerc +a=6378137 +b=6378138", "\xFF\xFE"})
            row(text, text);
    }

    void unreadable() {
        QFETCH(QByteArray, given);
        const ProjHandle handle = InitializeProj(given.isEmpty() ? nullptr : given.constData());
        QCOMPARE(QByteArray(GetProjDefine(handle)), QByteArray());
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(handle);
        QCOMPARE(QByteArray(ellipsoid.name), QByteArray("GRS 1980"));
        QCOMPARE(ellipsoid.a, 6378137.0);
        QCOMPARE(ellipsoid.b, 6356752.314140356);
        QCOMPARE(shiftOf(given), (QList<double>{0, 0, 0, 0, 0, 0, 0}));
    }

    void equalDefinitionsShareAHandle() {
        const ProjHandle one = InitializeProj("+proj=tmerc +lon_0=11");
        QCOMPARE(InitializeProj(" +proj=tmerc\n +lon_0=11 "), one);
        const char* const text = GetProjDefine(one);
        for (int i = 0; i < 1000; ++i)
            InitializeProj(("+proj=tmerc +lon_0=" + QByteArray::number(i % 100)).constData());
        QCOMPARE(InitializeProj("+proj=tmerc +lon_0=11"), one);
        QCOMPARE(GetProjDefine(one), text);
        QVERIFY(InitializeProj("+proj=tmerc +lon_0=12") != one);
        QCOMPARE(QByteArray(GetProjDefine(nullptr)), QByteArray());
    }
};

ROOM_TEST(DefinitionLibraryTest)
#include "DefinitionLibraryTest.moc"

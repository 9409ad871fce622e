#include "import/CoordParamToProjDefine.h"

#include "ProjectionLibraryDouble.h"
#include "RecordItems.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

class CoordParamToProjDefineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { library.reset(); }

    void thereAndBack_data() { textRows("there_and_back.txt"); }
    void thereAndBack() {
        const auto [title, definition] = textRow<2>();
        library.shift = {446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894};
        const QByteArray scaled = definition.contains("k_0") ? definition : definition + " +k_0=1";
        const DictionaryGuard record = library.converted(scaled);
        QCOMPARE(coordParamToProjDefine(*record),
                 definition +
                     " +a=6378137 +rf=298.257222101 +towgs84=446.448,-125.157,542.06,0.1502,0.247,0.8421,-20.4894 "
                     "+units=m +no_defs");
        QVERIFY(coordParamDefinesProjection(*record));
        record->setText(CoordParamKey::shiftType, "0");
        record->setText(CoordParamKey::ellipsoidF, "0");
        QCOMPARE(coordParamToProjDefine(*record), definition + " +a=6378137 +b=6378137 +units=m +no_defs");
    }

    void withoutAProjection_data() { textRows("records_without_projection.txt"); }
    void withoutAProjection() {
        const auto [title, items] = textRow<2>();
        const DictionaryGuard record = library.converted("+proj=tmerc +lat_0=0 +lon_0=117 +k=1 +x_0=500000 +y_0=0");
        QVERIFY(coordParamDefinesProjection(*record));
        setItems(record.get(), items);
        QCOMPARE(coordParamToProjDefine(*record), QByteArray());
        QVERIFY(!coordParamDefinesProjection(*record));
    }

    void recordFromTextsAlone() {
        const DictionaryGuard record = library.converted("+proj=lcc +lat_1=49 +lat_2=46");
        setItems(record.get(), "ellipsoid_a=6377397.155 ellipsoid_f=299.152813 false_east=4e5 factor=0.000000 _7type=2 "
                               "_7rz=0.001");
        record->setText(CoordParamKey::orgLon, " 13.333333 ");
        // Two parallels need no factor, and what a shift does not say is 0.
        QCOMPARE(coordParamToProjDefine(*record),
                 QByteArray("+proj=lcc +lat_1=49 +lat_2=46 +lat_0=0 +lon_0=13.333333 +k_0=1 +x_0=400000 +y_0=0 "
                            "+a=6377397.155 +rf=299.152813 +towgs84=0,0,0,0,0,3.6,0 +units=m +no_defs"));
    }

    /// Only 2 is a shift of seven parameters.
    void shiftsOfOtherKinds() {
        library.shift.dx = 1;
        const DictionaryGuard record = library.converted("+proj=cass");
        QVERIFY(coordParamToProjDefine(*record).contains("+towgs84=1,0,0,0,0,0,0"));
        for (const char* kind :
             {"_7type=0", "_7type=1", "_7type=3", "_7type=-2", "_7type=2.5", "_7type=two", "_7type=", "_7type"}) {
            setItems(record.get(), kind);
            QVERIFY2(coordParamToProjDefine(*record).contains("+rf=298.257222101 +units"), kind);
        }
    }

private:
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
};

ROOM_TEST(CoordParamToProjDefineTest)
#include "CoordParamToProjDefineTest.moc"

#include "import/CoordParamToProjDefine.h"

#include "ProjectionLibraryDouble.h"
#include "RecordItems.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/ProjDefineToCoordParam.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

class CoordParamToProjDefineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { library.reset(); }

    void thereAndBack_data() {
        const Rows<QByteArray> row({"definition"});
        for (const QByteArrayList& columns : textTable("there_and_back.txt"))
            row(columns[0], columns[1]);
    }

    void thereAndBack() {
        QFETCH(QByteArray, definition);
        library.shift = {446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894};
        convert(definition.contains("k_0") ? definition : definition + " +k_0=1");
        QCOMPARE(coordParamToProjDefine(*record),
                 definition +
                     " +a=6378137 +rf=298.257222101 +towgs84=446.448,-125.157,542.06,0.1502,0.247,0.8421,-20.4894 "
                     "+units=m +no_defs");
        QVERIFY(coordParamDefinesProjection(*record));
        record->setText(CoordParamKey::shiftType, "0");
        record->setText(CoordParamKey::ellipsoidF, "0");
        QCOMPARE(coordParamToProjDefine(*record), definition + " +a=6378137 +b=6378137 +units=m +no_defs");
    }

    void withoutAProjection_data() {
        const Rows<QByteArray> row({"items"});
        for (const QByteArrayList& columns : textTable("records_without_projection.txt"))
            row(columns[0], columns[1]);
    }

    void withoutAProjection() {
        QFETCH(QByteArray, items);
        convert("+proj=tmerc +lat_0=0 +lon_0=117 +k=1 +x_0=500000 +y_0=0");
        QVERIFY(coordParamDefinesProjection(*record));
        setItems(record.get(), items);
        QCOMPARE(coordParamToProjDefine(*record), QByteArray());
        QVERIFY(!coordParamDefinesProjection(*record));
    }

    void recordFromTextsAlone() {
        convert("+proj=lcc +lat_1=49 +lat_2=46");
        const QList<QPair<const char*, const char*>> texts{{"ellipsoid_a", "6377397.155"},
                                                           {"ellipsoid_f", "299.152813"},
                                                           {"org_lon", " 13.333333 "},
                                                           {"false_east", "4e5"},
                                                           {"factor", "0.000000"},
                                                           {"_7type", "2"},
                                                           {"_7rz", "0.001"}};
        for (const auto& text : texts)
            record->setText(text.first, text.second);
        // Two parallels need no factor, and what a shift does not say is 0.
        QCOMPARE(coordParamToProjDefine(*record),
                 QByteArray("+proj=lcc +lat_1=49 +lat_2=46 +lat_0=0 +lon_0=13.333333 +k_0=1 +x_0=400000 +y_0=0 "
                            "+a=6377397.155 +rf=299.152813 +towgs84=0,0,0,0,0,3.6,0 +units=m +no_defs"));
    }

    /// Only 2 is a shift of seven parameters.
    void shiftsOfOtherKinds_data() {
        const Rows<QByteArray> row({"kind"});
        for (const char* kind : {"0", "1", "3", "-2", "2.5", "two", ""})
            row(kind, kind);
        row("missing", QByteArray());
    }
    void shiftsOfOtherKinds() {
        QFETCH(QByteArray, kind);
        library.shift.dx = 1;
        convert("+proj=cass");
        QVERIFY(coordParamToProjDefine(*record).contains("+towgs84=1,0,0,0,0,0,0"));
        if (kind.isNull())
            record->remove(CoordParamKey::shiftType);
        else
            record->setText(CoordParamKey::shiftType, kind);
        QVERIFY2(coordParamToProjDefine(*record).contains("+rf=298.257222101 +units"), coordParamToProjDefine(*record));
    }

private:
    void convert(const QByteArray& definition) {
        library.definition = definition;
        record->clear();
        projDefineToCoordParam(&library, record.get());
    }

    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    const DictionaryGuard record;
};

ROOM_TEST(CoordParamToProjDefineTest)
#include "CoordParamToProjDefineTest.moc"

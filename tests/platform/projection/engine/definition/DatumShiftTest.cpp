#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QTest>

class DatumShiftTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void shifts_data() { textRows("shifts.txt"); }
    void shifts() {
        const auto [items, shift] = textRow<2>();
        QCOMPARE(shiftOf("+proj=tmerc " + items), numbersOf(shift));
        QVERIFY(define("+proj=tmerc " + items).startsWith("+proj=tmerc"));
    }

    void everyDatum_data() {
        const Rows<QByteArray> row({"name"});
        for (const char* name :
             {"WGS84", "NAD83", "NAD27", "potsdam", "GGRS87", "carthage", "hermannskogel", "ire65", "nzgd49", "OSGB36"})
            row(name, name);
    }

    void everyDatum() {
        QFETCH(QByteArray, name);
        const QByteArray text = "+proj=tmerc +datum=" + name;
        // PROJ spells out what it takes the datum for.
        const ProjObject datum(proj_create(nullptr, text.constData()));
        const QByteArray definition = proj_pj_info(datum.get()).definition;
        const int at = definition.indexOf("towgs84=");
        const QByteArray shift = at < 0 ? "towgs84=0,0,0" // for NAD27 and potsdam PROJ has grids only
                                        : definition.mid(at).split(' ').first();
        QCOMPARE(shiftOf(text), shiftOf("+proj=tmerc +ellps=GRS80 +" + shift));
        QVERIFY(definition.split(' ').contains(QByteArray("ellps=") + GetProjEllipsoid(InitializeProj(text)).id));
    }
};

ROOM_TEST(DatumShiftTest)
#include "DatumShiftTest.moc"

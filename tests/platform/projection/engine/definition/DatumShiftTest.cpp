#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

class DatumShiftTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void shifts_data() {
        const Rows<QByteArray, QList<double>> rows({"items", "shift"});
        const auto row = [&rows](const char* items, const QList<double>& shift) { rows(items, items, shift); };
        const QList<double> none{0, 0, 0, 0, 0, 0, 0};
        row("+ellps=GRS80", none);
        row("+towgs84=598.1,73.7,418.2", {598.1, 73.7, 418.2, 0, 0, 0, 0});
        row("+towgs84=598.1,73.7,418.2,0.202,0.045,-2.455,6.7", {598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7});
        row("+towgs84=0,0,0,0,0,0,-20.4889999999569", {0, 0, 0, 0, 0, 0, -20.489}); // 0.999979511, as WKT 2 has it
        row("+towgs84=0,0,0,0,0,0,1.123456789", {0, 0, 0, 0, 0, 0, 1.123456789});
        row("+towgs84=1e2,+2,-3", {100, 2, -3, 0, 0, 0, 0});
        row("+datum=OSGB36 +towgs84=1,2,3", {1, 2, 3, 0, 0, 0, 0});
        row("+ellps=bessel +nadgrids=BETA2007.gsb", none);
        row("+datum=OSGB36 +nadgrids=@null", none);
    }

    void shifts() {
        QFETCH(QByteArray, items);
        QFETCH(QList<double>, shift);
        QCOMPARE(shiftOf("+proj=tmerc " + items), shift);
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
        const QByteArrayList items = QByteArray(proj_pj_info(datum.get()).definition).split(' ');
        const QByteArray shift = [&items]() -> QByteArray {
            for (const QByteArray& item : items) {
                if (item.startsWith("towgs84="))
                    return item;
            }
            return "towgs84=0,0,0"; // for NAD27 and potsdam PROJ has grids only
        }();
        QCOMPARE(shiftOf(text), shiftOf("+proj=tmerc +ellps=GRS80 +" + shift));
        QVERIFY(items.contains(QByteArray("ellps=") + GetProjEllipsoid(InitializeProj(text.constData())).id));
    }
};

ROOM_TEST(DatumShiftTest)
#include "DatumShiftTest.moc"

#include "import/ProjDefineToCoordParam.h"

#include "ProjectionLibraryDouble.h"
#include "RecordItems.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <limits>

static QByteArray keysOf(const IDictionary& record) {
    QByteArrayList keys;
    for (int i = 0; i < record.count(); ++i)
        keys.append(record.getKey(i));
    return keys.join(' ');
}

class ProjDefineToCoordParamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { library.reset(); }

    void callsOfOneConversion() {
        const QByteArrayList calls{"GetTowgs84", "GetProjEllipsoid", "GetProjDefine"};
        library.angleFactor = 0.5;
        convert("+proj=tmerc +lat_0=3 +lon_0=117 +lat_0=4 +lat_1=5");
        QCOMPARE(library.calls, calls + QByteArrayList({"Radian2Angle", "Radian2Angle"}));
        const QByteArray halved = "org_lat=2.000000 org_lon=117.000000 parallel_1_lat=5.000000";
        QCOMPARE(inRecord(*record, halved), halved);
        library.calls.clear();
        convert("+proj=tmerc +lon_0=117");
        QCOMPARE(library.calls, calls);
    }

    void keysInOrder() {
        const QByteArray keys =
            "ellipsoid_name ellipsoid_a ellipsoid_f project_type org_lon org_lat false_north false_east factor "
            "cutting_radius parallel_1_lat parallel_2_lat p_r lon1 lon2 lat1 lat2 _7type";
        convert("+proj=tmerc +lon_0=117 +k=1");
        QCOMPARE(keysOf(*record), keys);
        library.definitionIsNull = true;
        convert("");
        QCOMPARE(keysOf(*record), keys);
        QCOMPARE(inRecord(*record, "project_type factor"), QByteArray("project_type=0 factor=0.000000"));
        library.shift.ppm = -1e-9;
        convert("");
        QCOMPARE(keysOf(*record), keys + " _7dx _7dy _7dz _7rx _7ry _7rz _7ppm");
    }

    void conversions_data() {
        const Rows<QByteArray, QByteArray> row({"definition", "items"});
        for (const QByteArrayList& columns : textTable("conversions.txt"))
            row(columns[0], columns[1], columns[2]);
    }

    void conversions() {
        QFETCH(QByteArray, definition);
        QFETCH(QByteArray, items);
        convert(definition);
        QCOMPARE(inRecord(*record, items), items);
    }

    void ellipsoids_data() {
        const Rows<QByteArray, QByteArray, double, QByteArray> row({"id", "name", "b", "items"});
        const double b = 6356752.314140356;
        row("name", "id", "A%sname", b, "ellipsoid_name=A%sname ellipsoid_f=298.257222");
        row("id", "id", "", b, "ellipsoid_name=id ellipsoid_f=298.257222");
        row("neither", "", "", b, "ellipsoid_name=unknown ellipsoid_f=298.257222");
        row("sphere", "", "", 6378137, "ellipsoid_name=unknown ellipsoid_f=0.000000");
        row("longer than wide", "", "", 6378138, "ellipsoid_name=unknown ellipsoid_f=-6378137.000000");
    }

    void ellipsoids() {
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, name);
        QFETCH(double, b);
        QFETCH(QByteArray, items);
        library.projEllipsoid = {id.isEmpty() ? nullptr : id.constData(), 6378137, b,
                                 name.isEmpty() ? nullptr : name.constData()};
        convert("");
        QCOMPARE(inRecord(*record, items), items);
    }

    void shifts_data() {
        const Rows<QList<double>, QByteArray> row({"shift", "items"});
        row("none", {0, 0, 0, 0, 0, 0, 0}, "_7type=0 _7dx _7rx _7ppm");
        row("none, negative zeros", {-0.0, 0, 0, 0, 0, -0.0, 0}, "_7type=0 _7dx");
        row("ppm only", {0, 0, 0, 0, 0, 0, 1.5}, "_7type=2 _7dx=0.000000 _7rz=0.000000 _7ppm=1.500000");
        row("rotations by 3600", {1, 2, 3, 3600, -3600, 1.8, 4},
            "_7type=2 _7dx=1.000000 _7dy=2.000000 _7dz=3.000000 _7rx=1.000000 _7ry=-1.000000 _7rz=0.000500");
        row("not a number", {std::numeric_limits<double>::quiet_NaN(), 0, 0, 0, 0, 0, 0}, "_7type=2 _7dx=nan");
    }

    void shifts() {
        QFETCH(QList<double>, shift);
        QFETCH(QByteArray, items);
        library.shift = {shift[0], shift[1], shift[2], shift[3], shift[4], shift[5], shift[6]};
        convert("");
        QCOMPARE(inRecord(*record, items), items);
    }

    void numbersKeepAllTheirDigits() {
        library.shift = {446.4481234567, 0, 0, 0.1502, 0, 0, 0};
        convert("+proj=tmerc +lat_0=49.123456789012345 +lon_0=-2 +k_0=0.9996012717");
        const QByteArray texts = "org_lat=49.123457 factor=0.999601 _7dx=446.448123 _7rx=0.000042";
        QCOMPARE(inRecord(*record, texts), texts);
        const auto number = [this](const char* key) { return dictionary_number(*record, key, -1); };
        QCOMPARE(number(CoordParamKey::orgLat), 49.123456789012345);
        QCOMPARE(number(CoordParamKey::factor), 0.9996012717);
        QCOMPARE(number(CoordParamKey::shiftDx), 446.4481234567);
        QCOMPARE(number(CoordParamKey::shiftRx), 0.1502 / 3600);
        QCOMPARE(number(CoordParamKey::ellipsoidF), 298.257222101);
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

ROOM_TEST(ProjDefineToCoordParamTest)
#include "ProjDefineToCoordParamTest.moc"

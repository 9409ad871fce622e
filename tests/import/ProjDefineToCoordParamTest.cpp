#include "import/ProjDefineToCoordParam.h"

#include "ProjectionLibraryDouble.h"
#include "RecordItems.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

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
        const DictionaryGuard record = library.converted("+proj=tmerc +lat_0=3 +lon_0=117 +lat_0=4 +lat_1=5");
        QCOMPARE(library.calls, calls + QByteArrayList({"Radian2Angle", "Radian2Angle"}));
        const QByteArray halved = "org_lat=2.000000 org_lon=117.000000 parallel_1_lat=5.000000";
        QCOMPARE(inRecord(*record, halved), halved);
        library.calls.clear();
        library.converted("+proj=tmerc +lon_0=117");
        QCOMPARE(library.calls, calls);
    }

    void keysInOrder() {
        const QByteArray keys =
            "ellipsoid_name ellipsoid_a ellipsoid_f project_type org_lon org_lat false_north false_east factor "
            "cutting_radius parallel_1_lat parallel_2_lat p_r lon1 lon2 lat1 lat2 _7type";
        QCOMPARE(keysOf(*library.converted("+proj=tmerc +lon_0=117 +k=1")), keys);
        library.definitionIsNull = true;
        const DictionaryGuard record = library.converted("");
        QCOMPARE(keysOf(*record), keys);
        QCOMPARE(inRecord(*record, "project_type factor"), QByteArray("project_type=0 factor=0.000000"));
        library.shift.ppm = -1e-9;
        QCOMPARE(keysOf(*library.converted("")), keys + " _7dx _7dy _7dz _7rx _7ry _7rz _7ppm");
    }

    void conversions_data() { textRows("conversions.txt"); }
    void conversions() {
        const auto [title, definition, items] = textRow<3>();
        QCOMPARE(inRecord(*library.converted(definition), items), items);
    }

    void handles_data() { textRows("handles.txt"); }
    void handles() {
        const auto [title, id, name, b, shift, items] = textRow<6>();
        const auto given = [](const QByteArray& text) { return text.isEmpty() ? nullptr : text.constData(); };
        library.projEllipsoid = {given(id), 6378137, b.toDouble(), given(name)};
        QVector<double> numbers;
        for (const QByteArray& number : shift.split(' '))
            numbers << number.toDouble();
        library.shift = {numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5], numbers[6]};
        QCOMPARE(inRecord(*library.converted(""), items), items);
    }

    void numbersKeepAllTheirDigits() {
        library.shift = {446.4481234567, 0, 0, 0.1502, 0, 0, 0};
        const DictionaryGuard record =
            library.converted("+proj=tmerc +lat_0=49.123456789012345 +lon_0=-2 +k_0=0.9996012717");
        const QByteArray texts = "org_lat=49.123457 factor=0.999601 _7dx=446.448123 _7rx=0.000042";
        QCOMPARE(inRecord(*record, texts), texts);
        const auto number = [&record](const char* key) { return dictionary_number(*record, key, -1); };
        QCOMPARE(number(CoordParamKey::orgLat), 49.123456789012345);
        QCOMPARE(number(CoordParamKey::factor), 0.9996012717);
        QCOMPARE(number(CoordParamKey::shiftDx), 446.4481234567);
        QCOMPARE(number(CoordParamKey::shiftRx), 0.1502 / 3600);
        QCOMPARE(number(CoordParamKey::ellipsoidF), 298.257222101);
    }

private:
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
};

ROOM_TEST(ProjDefineToCoordParamTest)
#include "ProjDefineToCoordParamTest.moc"

#include "ProjectionLibraryDouble.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "import/WktFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

const QByteArrayList projectionKeys{"ellipsoid_name", "ellipsoid_a",    "ellipsoid_f", "project_type", "org_lon",
                                    "org_lat",        "false_north",    "false_east",  "factor",       "cutting_radius",
                                    "parallel_1_lat", "parallel_2_lat", "p_r",         "lon1",         "lon2",
                                    "lat1",           "lat2",           "_7type"};
const QByteArrayList shiftKeys{"_7dx", "_7dy", "_7dz", "_7rx", "_7ry", "_7rz", "_7ppm"};

QByteArrayList keysOf(const IDictionary& record) {
    QByteArrayList keys;
    for (int i = 0; i < record.count(); ++i)
        keys.append(record.getKey(i));
    return keys;
}

double numberOf(const IDictionary& record, const char* key) {
    return dictionary_number(record, key, std::numeric_limits<double>::quiet_NaN());
}

/// "key=text" items of a record that a row states; "key" alone says that the key is missing.
void compareItems(const IDictionary& record, const QByteArray& items) {
    for (const QByteArray& item : items.split(' ')) {
        const int equals = item.indexOf('=');
        const QByteArray key = equals < 0 ? item : item.left(equals);
        const QByteArray expected = equals < 0 ? QByteArray() : item.mid(equals + 1);
        QCOMPARE(key + '=' + QByteArray(record.getValue(key.constData())), key + '=' + expected);
    }
}

} // namespace

class TestImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(dictionary_alive_count(), alive); }

    void callsOfOneConversion();
    void nullDefinitionIsAnEmptyOne();
    void keysInOrder();
    void projectionRows_data();
    void projectionRows();
    void ellipsoidRows_data();
    void ellipsoidRows();
    void shiftRows_data();
    void shiftRows();
    void numbersKeepAllTheirDigits();

    void thereAndBack_data();
    void thereAndBack();
    void recordsWithoutAProjection_data();
    void recordsWithoutAProjection();
    void recordFromTextsAlone();

    void textOfAFile_data();
    void textOfAFile();
    void localEncodingOfAFile();
    void answersOfAFile();
    void whatIsNoFile();
    void hugeFileIsReadInPart();

private:
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    int alive = 0;
};

void TestImport::init() {
    alive = dictionary_alive_count();
    library.reset();
}

void TestImport::callsOfOneConversion() {
    library.definition = "+proj=tmerc +lat_0=3 +lon_0=117 +lat_0=4";
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    QCOMPARE(library.calls,
             (QByteArrayList{"GetTowgs84", "GetProjEllipsoid", "GetProjDefine", "Radian2Angle", "Radian2Angle"}));

    library.reset();
    library.definition = "+proj=tmerc +lon_0=117";
    projDefineToCoordParam(nullptr, record.get());
    QCOMPARE(library.calls, (QByteArrayList{"GetTowgs84", "GetProjEllipsoid", "GetProjDefine"}));
}

void TestImport::nullDefinitionIsAnEmptyOne() {
    library.definitionIsNull = true;
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    QCOMPARE(keysOf(*record), projectionKeys);
    compareItems(*record, "project_type=0 factor=0.000000 ellipsoid_a=6378137.000000");
}

void TestImport::keysInOrder() {
    library.definition = "+proj=tmerc";
    const DictionaryGuard plain;
    projDefineToCoordParam(nullptr, plain.get());
    QCOMPARE(keysOf(*plain), projectionKeys);

    library.shift.ppm = -1e-9;
    const DictionaryGuard shifted;
    projDefineToCoordParam(nullptr, shifted.get());
    QCOMPARE(keysOf(*shifted), projectionKeys + shiftKeys);
}

void TestImport::projectionRows_data() {
    QTest::addColumn<QByteArray>("definition");
    QTest::addColumn<QByteArray>("items");
    const auto row = [](const char* name, const char* definition, const char* items) {
        QTest::newRow(name) << QByteArray(definition) << QByteArray(items);
    };
    row("Gauss-Kruger", "+proj=tmerc +lat_0=0 +lon_0=117 +k=1 +x_0=500000 +y_0=0 +ellps=GRS80 +units=m +no_defs",
        "project_type=0 org_lon=117.000000 org_lat=0.000000 false_east=500000.000000 false_north=0.000000 "
        "factor=1.000000 ellipsoid_a=6378137.000000 ellipsoid_f=298.257222 cutting_radius=0.000000 _7type=0 _7dx "
        "_7ppm");
    row("scaled", "+proj=tmerc +lon_0=117 +k=0.9996", "project_type=1 factor=0.999600");
    row("scale next to 1", "+proj=tmerc +k=1.0000000000000002", "project_type=1 factor=1.000000");
    row("no scale", "+proj=tmerc +lon_0=117", "project_type=1 factor=0.000000");
    row("scale not a number", "+proj=tmerc +k=one", "project_type=1 factor=0.000000");
    row("scale nan", "+proj=tmerc +k=nan", "project_type=1 factor=nan");
    row("utm as it stands", "+proj=utm +zone=50 +datum=WGS84 +units=m +no_defs",
        "project_type=1 org_lon=0.000000 factor=0.000000 false_east=0.000000 false_north=0.000000");
    row("utm with scale 1", "+proj=utm +k_0=1", "project_type=0");
    row("Mercator", "+proj=merc +lon_0=110 +k=0.997", "project_type=2 cutting_radius=6378137.000000 factor=0.997000");
    row("Mercator, parallel 0", "+proj=merc +lat_ts=0", "project_type=2 cutting_radius=6378137.000000");
    row("Mercator, parallel 30", "+proj=merc +lat_ts=30", "project_type=3 cutting_radius=5523628.670817");
    row("Mercator, parallel south", "+proj=merc +lat_ts=-30", "project_type=3 cutting_radius=5523628.670817");
    row("Mercator, within 1e-7 m of the equator's radius", "+proj=merc +lat_ts=0.00001",
        "project_type=2 cutting_radius=6378137.000000");
    row("Mercator, beyond 1e-7 m", "+proj=merc +lat_ts=0.0001", "project_type=3 cutting_radius=6378136.999990");
    row("parallel as a flag", "+proj=merc +lat_ts", "project_type=3 cutting_radius=0.000000");
    row("oblique by azimuth", "+proj=omerc +lat_0=4 +lonc=115 +alpha=53.31 +k=0.99984",
        "project_type=4 org_lon=115.000000 p_r=53.310000 org_lat=4.000000 factor=0.999840");
    row("oblique by two points", "+proj=omerc +lat_0=4 +lonc=115 +lat_1=1 +lon_1=2 +lat_2=3 +lon_2=4.5",
        "project_type=10 org_lon=115.000000 lat1=1.000000 lon1=2.000000 lat2=3.000000 lon2=4.500000 "
        "parallel_1_lat=1.000000 parallel_2_lat=3.000000");
    row("oblique without a centre", "+proj=omerc +lon_0=7 +alpha=3", "project_type=4 org_lon=0.000000");
    row("alpha anywhere in the text", "+proj=omerc +title=alphabet", "project_type=4 p_r=0.000000");
    row("stereographic", "+proj=stere +lat_0=90 +lat_ts=60",
        "project_type=6 org_lat=90.000000 cutting_radius=3189068.500000");
    row("double stereographic", "+proj=sterea +lat_0=52", "project_type=7 org_lat=52.000000");
    row("Lambert, one parallel", "+proj=lcc +lat_1=25",
        "project_type=8 parallel_1_lat=25.000000 lat1=25.000000 parallel_2_lat=0.000000 lat2=0.000000");
    row("Lambert, two parallels", "+proj=lcc +lat_1=25 +lat_2=47",
        "project_type=9 parallel_1_lat=25.000000 lat1=25.000000 parallel_2_lat=47.000000 lat2=47.000000");
    row("Cassini-Soldner", "+proj=cass +lat_0=11.25", "project_type=11 org_lat=11.250000");
    row("another method", "+proj=krovak +lat_0=49.5 +lon_0=24.5 +k=0.9999",
        "project_type=0 org_lat=49.500000 org_lon=24.500000 factor=0.999900");
    row("no method", "+lon_0=9 +x_0=3", "project_type=0 org_lon=9.000000 false_east=3.000000 factor=0.000000");
    row("keys by case", "Proj=tmerc +Proj=tmerc +LON_0=9", "project_type=0 org_lon=0.000000");
    row("names by case", "+proj=TMERC", "project_type=0");
    row("later item wins", "+proj=lcc +lon_0=1 +k_0=0.5 +lon_0=2 +k=0.75 +proj=cass",
        "project_type=11 org_lon=2.000000 factor=0.750000");
    row("blanks anywhere", " + p roj=tm\terc + lon_0 = 1 1\n7 ", "project_type=1 org_lon=117.000000");
    row("no-break space",
        "+lon_0=\xC2\xA0"
        "117",
        "org_lon=117.000000");
    row("plus inside a value", "+x_0=+500000 +y_0=7", "false_east=0.000000 false_north=7.000000");
    row("plus in an exponent", "+x_0=5e+5 +y_0=5e5", "false_east=0.000000 false_north=500000.000000");
    row("two equals signs", "+lon_0=1=2 +lon_0==3", "org_lon=0.000000");
    row("comma is no point", "+lon_0=117,5 +lat_0=1.5", "org_lon=0.000000 org_lat=1.500000");
    row("towgs84 in the text", "+proj=tmerc +towgs84=1,2,3", "_7type=0 _7dx");
}

void TestImport::projectionRows() {
    QFETCH(QByteArray, definition);
    QFETCH(QByteArray, items);
    library.definition = definition;
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    compareItems(*record, items);
}

void TestImport::ellipsoidRows_data() {
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<double>("b");
    QTest::addColumn<QByteArray>("expectedName");
    QTest::addColumn<QByteArray>("expectedF");
    const QByteArray none;
    QTest::newRow("name") << QByteArray("id") << QByteArray("A %s name") << 6356752.314140356 << QByteArray("A %s name")
                          << QByteArray("298.257222");
    QTest::newRow("id") << QByteArray("id") << none << 6356752.314140356 << QByteArray("id")
                        << QByteArray("298.257222");
    QTest::newRow("neither") << none << none << 6356752.314140356 << QByteArray("unknown") << QByteArray("298.257222");
    QTest::newRow("sphere") << none << none << 6378137.0 << QByteArray("unknown") << QByteArray("0.000000");
}

void TestImport::ellipsoidRows() {
    QFETCH(QByteArray, id);
    QFETCH(QByteArray, name);
    QFETCH(double, b);
    library.ellipsoid = {id.isNull() ? nullptr : id.constData(), 6378137.0, b,
                         name.isNull() ? nullptr : name.constData()};
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    QTEST(QByteArray(record->getValue(CoordParamKey::ellipsoidName)), "expectedName");
    QTEST(QByteArray(record->getValue(CoordParamKey::ellipsoidF)), "expectedF");
}

void TestImport::shiftRows_data() {
    QTest::addColumn<QVector<double>>("shift");
    QTest::addColumn<QByteArray>("items");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("none") << QVector<double>{0, 0, 0, 0, 0, 0, 0} << QByteArray("_7type=0 _7dx _7rx _7ppm");
    QTest::newRow("none, negative zeros") << QVector<double>{-0.0, 0, 0, 0, 0, -0.0, 0} << QByteArray("_7type=0 _7dx");
    QTest::newRow("ppm only") << QVector<double>{0, 0, 0, 0, 0, 0, 1.5}
                              << QByteArray("_7type=2 _7dx=0.000000 _7rz=0.000000 _7ppm=1.500000");
    QTest::newRow("rotations by 3600")
        << QVector<double>{1, 2, 3, 3600, -3600, 1.8, 4}
        << QByteArray("_7type=2 _7dx=1.000000 _7dy=2.000000 _7dz=3.000000 _7rx=1.000000 _7ry=-1.000000 _7rz=0.000500 "
                      "_7ppm=4.000000");
    QTest::newRow("not a number") << QVector<double>{nan, 0, 0, 0, 0, 0, 0} << QByteArray("_7type=2 _7dx=nan");
}

void TestImport::shiftRows() {
    QFETCH(QVector<double>, shift);
    QFETCH(QByteArray, items);
    library.shift = {shift[0], shift[1], shift[2], shift[3], shift[4], shift[5], shift[6]};
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    compareItems(*record, items);
}

void TestImport::numbersKeepAllTheirDigits() {
    library.definition = "+proj=tmerc +lat_0=49.123456789012345 +lon_0=-2 +k_0=0.9996012717";
    library.shift = {446.4481234567, 0, 0, 0.1502, 0, 0, 0};
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    compareItems(*record, "org_lat=49.123457 factor=0.999601 _7dx=446.448123 _7rx=0.000042");
    QCOMPARE(numberOf(*record, CoordParamKey::orgLat), 49.123456789012345);
    QCOMPARE(numberOf(*record, CoordParamKey::factor), 0.9996012717);
    QCOMPARE(numberOf(*record, CoordParamKey::shiftDx), 446.4481234567);
    QCOMPARE(numberOf(*record, CoordParamKey::shiftRx), 0.1502 / 3600);
    QCOMPARE(numberOf(*record, CoordParamKey::ellipsoidF), 298.257222101);
}

void TestImport::thereAndBack_data() {
    QTest::addColumn<QByteArray>("definition");
    const auto row = [](const char* name, const char* definition) { QTest::newRow(name) << QByteArray(definition); };
    row("0", "+proj=tmerc +lat_0=0 +lon_0=117 +k_0=1 +x_0=500000 +y_0=0");
    row("1", "+proj=tmerc +lat_0=49.00000000000001 +lon_0=-2 +k_0=0.9996012717 +x_0=400000 +y_0=-100000");
    row("2", "+proj=merc +lon_0=110 +k_0=0.997 +x_0=3900000 +y_0=900000");
    row("3", "+proj=merc +lon_0=51 +lat_ts=42 +x_0=0 +y_0=0");
    row("3, a parallel of twelve decimals", "+proj=merc +lon_0=51 +lat_ts=4.454051545897 +x_0=0 +y_0=0");
    row("4", "+proj=omerc +lat_0=4 +lonc=115 +alpha=53.31582047222222 +k_0=0.99984 +x_0=1 +y_0=2");
    row("6, oblique", "+proj=stere +lat_0=46.5 +lon_0=25 +k_0=0.99975 +x_0=500000 +y_0=500000");
    row("6, at the north pole", "+proj=stere +lat_0=90 +lon_0=-45 +k_0=0.994 +x_0=2000000 +y_0=2000000");
    row("6, with a parallel in the north", "+proj=stere +lat_0=90 +lon_0=-45 +lat_ts=70 +x_0=0 +y_0=0");
    row("6, with a parallel in the south", "+proj=stere +lat_0=-90 +lon_0=0 +lat_ts=-71 +x_0=0 +y_0=0");
    row("7", "+proj=sterea +lat_0=52.15616055555555 +lon_0=5.38763888888889 +k_0=0.9999079 +x_0=155000 +y_0=463000");
    row("8", "+proj=lcc +lat_1=46.8 +lat_0=46.5 +lon_0=2.337229166666667 +k_0=0.99987742 +x_0=600000 +y_0=2200000");
    row("9", "+proj=lcc +lat_1=49 +lat_2=44 +lat_0=46.5 +lon_0=3 +k_0=1 +x_0=700000 +y_0=6600000");
    row("10", "+proj=omerc +lat_0=40 +lat_1=30 +lon_1=1 +lat_2=45 +lon_2=5.5 +k_0=0.5 +x_0=0 +y_0=0.000001");
    row("11", "+proj=cass +lat_0=11.25217861111111 +lon_0=-60.68600888888889 +x_0=37718.66159325 +y_0=36209.91512952");
}

void TestImport::thereAndBack() {
    QFETCH(QByteArray, definition);
    library.definition = definition.contains("k_0") ? definition : definition + " +k_0=1";
    library.ellipsoid.b = library.ellipsoid.a;
    library.shift = {446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894};
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    QByteArray expected = definition +
                          " +a=6378137 +b=6378137 +towgs84=446.448,-125.157,542.06,0.1502,0.247,0.8421,-20.4894 "
                          "+units=m +no_defs";
    QCOMPARE(coordParamToProjDefine(*record), expected);
    QVERIFY(coordParamDefinesProjection(*record));

    dic_set_value(record.get(), CoordParamKey::shiftType, "%d", 0);
    dic_set_value(record.get(), CoordParamKey::ellipsoidF, "%f", 298.257222101);
    expected = definition + " +a=6378137 +rf=298.257222101 +units=m +no_defs";
    QCOMPARE(coordParamToProjDefine(*record), expected);
}

void TestImport::recordsWithoutAProjection_data() {
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");
    const auto row = [](const char* name, const char* key, const char* value) {
        QTest::newRow(name) << QByteArray(key) << QByteArray(value);
    };
    row("Gauss-Kruger with factor 0", "factor", "0");
    row("Gauss-Kruger with another factor", "factor", "0.9996");
    row("scaled with factor 0", "project_type factor", "1 0");
    row("scaled with a negative factor", "project_type factor", "1 -1");
    row("no type of that number", "project_type", "5");
    row("type beyond", "project_type", "12");
    row("type below", "project_type", "-1");
    row("type with decimals", "project_type", "8.5");
    row("type no number", "project_type", "tmerc");
    row("angle no number", "org_lon", "117,5");
    row("angle not finite", "org_lon", "inf");
    row("axis 0", "ellipsoid_a", "0");
    row("inverse flattening below 1", "ellipsoid_f", "0.5");
    row("negative inverse flattening", "ellipsoid_f", "-298");
    row("parallel of true scale outside", "project_type cutting_radius", "3 6378138");
    row("parallel of true scale at the pole", "project_type cutting_radius", "3 0");
    row("polar with parallel and factor", "project_type org_lat cutting_radius factor", "6 90 3189068.5 0.994");
    for (const char* key :
         {"project_type", "org_lon", "org_lat", "false_north", "false_east", "factor", "ellipsoid_a", "ellipsoid_f"})
        QTest::newRow(qPrintable(QString("without %1").arg(key))) << QByteArray(key) << QByteArray();
}

void TestImport::recordsWithoutAProjection() {
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    library.definition = "+proj=tmerc +lat_0=0 +lon_0=117 +k=1 +x_0=500000 +y_0=0";
    const DictionaryGuard record;
    projDefineToCoordParam(nullptr, record.get());
    QVERIFY(coordParamDefinesProjection(*record));
    const QByteArrayList keys = key.split(' ');
    const QByteArrayList values = value.split(' ');
    for (int i = 0; i < keys.size(); ++i) {
        if (value.isNull())
            record->remove(keys[i].constData());
        else
            record->setText(keys[i].constData(), values[i].constData());
    }
    QCOMPARE(coordParamToProjDefine(*record), QByteArray());
    QVERIFY(!coordParamDefinesProjection(*record));
}

void TestImport::recordFromTextsAlone() {
    const DictionaryGuard record;
    const QList<QPair<const char*, const char*>> texts{{"ellipsoid_a", "6377397.155"},
                                                       {"ellipsoid_f", "299.152813"},
                                                       {"project_type", "9"},
                                                       {"org_lon", " 13.333333 "},
                                                       {"org_lat", "47.5"},
                                                       {"false_north", "400000"},
                                                       {"false_east", "4e5"},
                                                       {"factor", "0.000000"},
                                                       {"parallel_1_lat", "49"},
                                                       {"parallel_2_lat", "46"},
                                                       {"_7type", "2"},
                                                       {"_7rz", "0.001"}};
    for (const auto& text : texts)
        record->setText(text.first, text.second);
    // Two parallels need no factor, and what a shift does not say is 0.
    QCOMPARE(coordParamToProjDefine(*record),
             QByteArray("+proj=lcc +lat_1=49 +lat_2=46 +lat_0=47.5 +lon_0=13.333333 +k_0=1 +x_0=400000 +y_0=400000 "
                        "+a=6377397.155 +rf=299.152813 +towgs84=0,0,0,0,0,3.6,0 +units=m +no_defs"));
}

void TestImport::textOfAFile_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const QByteArray& content, const char* text) {
        QTest::newRow(name) << content << QByteArray(text);
    };
    row("plain", "PROJCS[]", "PROJCS[]");
    row("Windows line ends", "PROJCS[\r\n]\r\n", "PROJCS[\n]");
    row("byte-order mark", "\xEF\xBB\xBFPROJCS[]", "PROJCS[]");
    row("trailing blanks", "PROJCS[] \n\t \n", "PROJCS[]");
    row("up to the first NUL", QByteArray("PROJCS[]\0GEOGCS[]", 17), "PROJCS[]");
    row("NUL first", QByteArray("\0PROJCS[]", 9), "");
    row("empty", "", "");
    row("UTF-8", "PROJCS[\"\xC3\x96sterreich \xE6\xB8\xAC\"]", "PROJCS[\"\xC3\x96sterreich \xE6\xB8\xAC\"]");
    row("Windows-1252", "PROJCS[\"\xD6sterreich \x96\"]", "PROJCS[\"\xC3\x96sterreich \xE2\x80\x93\"]");
    row("UTF-8 cut in two", "PROJCS[\xC3", "PROJCS[\xC3\x83");
}

void TestImport::textOfAFile() {
    QFETCH(QByteArray, content);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(content);
    file.close();
    const WktFile wkt(file.fileName());
    QTEST(library.readText, "text");
}

void TestImport::localEncodingOfAFile() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("GBK"));
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("PROJCS[\"\xB1\xB1\xBE\xA9\"]");
    file.close();
    const WktFile wkt(file.fileName());
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCOMPARE(QString::fromUtf8(library.readText), QString::fromUtf8("PROJCS[\"北京\"]"));
}

void TestImport::answersOfAFile() {
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("text");
    file.close();
    QCOMPARE(WktFile(file.fileName()).content(), WktFile::Content::Unreadable);

    library.system.content = WktSystem::Content::NotProjected;
    QCOMPARE(WktFile(file.fileName()).content(), WktFile::Content::NotProjected);

    library.system = {WktSystem::Content::Projected, QByteArray("\xC3\x84,B,,C"), "+proj=cass"};
    const WktFile projected(file.fileName());
    QCOMPARE(projected.content(), WktFile::Content::Projected);
    QCOMPARE(projected.name(), QString::fromUtf8("Ä-B--C"));
    QCOMPARE(projected.definition(), QByteArray("+proj=cass"));

    library.moduleIsMissing = true;
    QCOMPARE(WktFile(file.fileName()).content(), WktFile::Content::Unreadable);
}

void TestImport::whatIsNoFile() {
    const QTemporaryDir folder;
    QCOMPARE(WktFile(folder.path()).content(), WktFile::Content::NotOpened);
    QCOMPARE(WktFile(folder.filePath("none.prj")).content(), WktFile::Content::NotOpened);
    QCOMPARE(WktFile(QString()).content(), WktFile::Content::NotOpened);
#ifdef Q_OS_UNIX
    // It can be opened, and never ends.
    QCOMPARE(WktFile("/dev/zero").content(), WktFile::Content::NotOpened);
#endif
}

void TestImport::hugeFileIsReadInPart() {
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(file.resize(qint64(1) << 30));
    file.seek(0);
    file.write(QByteArray(5 << 20, 'x'));
    file.close();
    const WktFile wkt(file.fileName());
    QVERIFY(library.readText.startsWith('x') && library.readText.size() <= 1 << 20);
}

QTEST_GUILESS_MAIN(TestImport)
#include "TestImport.moc"

#include "ProjectionLibraryDouble.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "import/WktFile.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <limits>

static const QByteArray gaussKruger = "+proj=tmerc +lat_0=0 +lon_0=117 +k=1 +x_0=500000 +y_0=0";

static QByteArray keysOf(const IDictionary& record) {
    QByteArrayList keys;
    for (int i = 0; i < record.count(); ++i)
        keys.append(record.getKey(i));
    return keys.join(' ');
}

/// `items` as the record has them: "key=text" for each, a key alone where it is missing.
static QByteArray inRecord(const IDictionary& record, const QByteArray& items) {
    QByteArrayList found;
    for (const QByteArray& item : items.split(' ')) {
        const QByteArray key = item.split('=').first();
        const char* const text = record.getValue(key);
        found.append(text ? key + '=' + text : key);
    }
    return found.join(' ');
}

class ImportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        library.reset();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }

    void callsOfOneConversion() {
        const QByteArrayList calls{"GetTowgs84", "GetProjEllipsoid", "GetProjDefine"};
        convert("+proj=tmerc +lat_0=3 +lon_0=117 +lat_0=4");
        QCOMPARE(library.calls, calls + QByteArrayList({"Radian2Angle", "Radian2Angle"}));
        library.calls.clear();
        convert("+proj=tmerc +lon_0=117");
        QCOMPARE(library.calls, calls);
    }

    void keysInOrder() {
        const QByteArray keys =
            "ellipsoid_name ellipsoid_a ellipsoid_f project_type org_lon org_lat false_north false_east factor "
            "cutting_radius parallel_1_lat parallel_2_lat p_r lon1 lon2 lat1 lat2 _7type";
        convert(gaussKruger);
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
    }
    void ellipsoids() {
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, name);
        QFETCH(double, b);
        QFETCH(QByteArray, items);
        library.ellipsoid = {id.isEmpty() ? nullptr : id.constData(), 6378137, b,
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
        convert(gaussKruger);
        QVERIFY(coordParamDefinesProjection(*record));
        for (const QByteArray& item : items.split(' ')) {
            const QByteArrayList pieces = item.split('=');
            if (pieces.size() == 2)
                record->setText(pieces[0], pieces[1]);
            else
                record->remove(pieces[0]);
        }
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
    }
    void textOfAFile() {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, text);
        QVERIFY(setContent(path, content));
        const WktFile file(path);
        QCOMPARE(library.readText, text);
    }

    void localEncodingOfAFile() {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("GBK"));
        QVERIFY(setContent(path, "PROJCS[\"\xB1\xB1\xBE\xA9\"]"));
        const WktFile file(path);
        QCOMPARE(QString::fromUtf8(library.readText), QString::fromUtf8("PROJCS[\"北京\"]"));
    }

    void answersOfAFile() {
        QVERIFY(setContent(path, "text"));
        QCOMPARE(WktFile(path).content(), WktFile::Content::Unreadable);
        library.system.content = WktSystem::Content::NotProjected;
        QCOMPARE(WktFile(path).content(), WktFile::Content::NotProjected);
        library.system = {WktSystem::Content::Projected, QByteArray("\xC3\x84,B,,C"), "+proj=cass"};
        const WktFile projected(path);
        QCOMPARE(projected.content(), WktFile::Content::Projected);
        QCOMPARE(projected.name(), QString::fromUtf8("Ä-B--C"));
        QCOMPARE(projected.definition(), QByteArray("+proj=cass"));
        library.moduleIsMissing = true;
        QCOMPARE(WktFile(path).content(), WktFile::Content::Unreadable);
    }

    void whatIsNoFile() {
        QStringList paths{folder.path(), folder.filePath("none.prj"), QString()};
#ifdef Q_OS_UNIX
        paths << "/dev/zero"; // It can be opened, and never ends.
#endif
        for (const QString& none : paths)
            QCOMPARE(WktFile(none).content(), WktFile::Content::NotOpened);
    }

    void hugeFileIsReadInPart() {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(5 << 20, 'x')) > 0);
        QVERIFY(file.resize(qint64(1) << 30));
        file.close();
        const WktFile wkt(path);
        QVERIFY(library.readText.startsWith('x') && library.readText.size() <= 1 << 20);
    }

private:
    void convert(const QByteArray& definition) {
        library.definition = definition;
        record->clear();
        projDefineToCoordParam(nullptr, record.get());
    }

    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    const DictionaryGuard record;
    const QTemporaryDir folder;
    const QString path = folder.filePath("file.prj");
};

ROOM_TEST(ImportTest)
#include "ImportTest.moc"

#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "support/PointTypes.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <QFile>
#include <QTemporaryFile>
#include <QTest>

#include <cmath>
#include <cstdio>

class WktReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void projected_data() { textRows("projected.txt"); }

    void projected() {
        const auto [title, name, ellipsoid, start, shift, text] = textRow<6>();
        const WktSystem system = projectionModule()->readWkt(text);
        QVERIFY(system.content == WktSystem::Content::Projected);
        QCOMPARE(system.name, name);
        const QByteArray definition = define(system.definition);
        QVERIFY2(definition.startsWith(start) && definition.contains("+proj=") != start.isEmpty(), definition);
        // The ellipsoid and the shift are the text's in any case.
        QCOMPARE(QByteArray(GetProjEllipsoid(InitializeProj(system.definition)).name), ellipsoid);
        const QList<double> expected = numbersOf(shift.isEmpty() ? "0 0 0 0 0 0 0" : shift);
        const QList<double> read = shiftOf(system.definition);
        for (int i = 0; i < 7; ++i)
            QVERIFY2(std::abs(read[i] - expected[i]) < 1e-10, QByteArray::number(read[i], 'g', 17));
    }

    void variants_data() { textRows("variants.txt"); }

    void variants() {
        const auto [title, base, before, after, start] = textRow<5>();
        QByteArray text;
        for (const QByteArrayList& columns : textTable("projected.txt")) {
            if (columns.first() == base)
                text = columns.last();
        }
        QCOMPARE(text.count(before), 1);
        const WktSystem system = projectionModule()->readWkt(text.replace(before, after));
        QVERIFY(system.content == WktSystem::Content::Projected);
        const QByteArray definition = define(system.definition);
        QVERIFY2(definition.startsWith(start) && definition.contains("+proj=") != start.isEmpty(), definition);
        QVERIFY((system.withheld.reason == Withheld::Reason::None) == !start.isEmpty());
    }

    /// The worked examples of EPSG's guidance note 7-2 for the two methods that are another one in other words.
    void otherOrigins_data() {
        const Rows<QByteArray, GeographicPoint, GridPoint> row({"method", "place", "grid"});
        row("Belgium", "2SP_Belgium", {50 + 40 / 60.0 + 46.461 / 3600, 5 + 48 / 60.0 + 26.533 / 3600, 0},
            {251763.20, 153034.13});
        row("polar, variant C", "variant_C", {-66 - 36 / 60.0 - 18.820 / 3600, 140 + 4 / 60.0 + 17.040 / 3600, 0},
            {303169.52, 244055.72});
    }

    void otherOrigins() {
        QFETCH(QByteArray, method);
        QFETCH(GeographicPoint, place);
        QFETCH(GridPoint, grid);
        int found = 0;
        for (const QByteArrayList& columns : textTable("projected.txt")) {
            if (!columns.last().contains(method))
                continue;
            const auto system =
                projectionModule()->createSystem(define(projectionModule()->readWkt(columns.last()).definition));
            const auto point = system->toGrid(place);
            QVERIFY(std::hypot(point->easting - grid.easting, point->northing - grid.northing) < 0.01);
            ++found;
        }
        QCOMPARE(found, 2);
    }

    /// One parallel with the origin elsewhere has no name in any dialect, two equal ones have.
    void exportedIsRead_data() {
        const Rows<QByteArray, QByteArray> row({"definition", "read"});
        const QByteArray lambert = "+proj=lcc +lat_1=45 +lat_0=44 +lon_0=3 +k_0=1 +x_0=1 +y_0=2";
        row("Lambert, the origin at its parallel", QByteArray(lambert).replace("44", "45"),
            QByteArray(lambert).replace("44", "45"));
        row("Lambert, the origin elsewhere", lambert, QByteArray(lambert).replace("+lat_0", "+lat_2=45 +lat_0"));
    }

    void exportedIsRead() {
        QFETCH(QByteArray, definition);
        QFETCH(QByteArray, read);
        for (const auto dialect : {WktDialect::Wkt1Gdal, WktDialect::Wkt1Esri, WktDialect::Wkt2_2019}) {
            const QByteArray text =
                projectionModule()->exportWkt(definition + " +a=6378137 +rf=298", {"X", "E", "D"}, dialect, false);
            const QByteArray back = define(projectionModule()->readWkt(text).definition);
            QVERIFY2(back.startsWith(read + ' '), back + text);
        }
    }

    void others_data() {
        const Rows<QByteArray, bool> row({"text", "isReadable"});
        const QByteArray system = textTable("projected.txt").first().last();
        row("geographic", system.mid(system.indexOf("GEOGCS"), system.indexOf(",PROJECTION") - 11), true);
        row("local", R"(LOCAL_CS["Unknown",UNIT["Meter",1.0]])", true);
        row("empty", "", false);
        row("cut off", system.chopped(1), false);
        row("PROJ.4", "+proj=utm +zone=31", false);
        row("code", "EPSG:32631", false);
        row("binary", QByteArray::fromHex("89504e470d0a1a0affd8ffe0"), false);
        row("brackets only", QByteArray(90000, '['), false);
        row("nested without end", QByteArray("PROJCS[\"a\",").repeated(9000), false);
        row("more than GDAL takes", system + QByteArray(200000, 'x'), false);
    }

    void others() {
        QFETCH(QByteArray, text);
        QFETCH(bool, isReadable);
        const WktSystem system = projectionModule()->readWkt(text);
        QVERIFY(system.content == (isReadable ? WktSystem::Content::NotProjected : WktSystem::Content::Unreadable));
        QCOMPARE(system.name, QByteArray());
    }

    void nothingReachesTheTerminal() {
        QTemporaryFile terminal;
        QVERIFY(terminal.open());
        std::fflush(stderr);
        QVERIFY(std::freopen(QFile::encodeName(terminal.fileName()).constData(), "w", stderr));
        for (const QByteArrayList& columns : textTable("projected.txt"))
            InitializeProj(projectionModule()->readWkt(columns.last()).definition);
        for (const QByteArray& text : {QByteArray("rubbish"), QByteArray(200000, 'x')})
            projectionModule()->readWkt(text);
        for (const char* text : {"+proj=omerc +lat_0=4 +alpha=x", "+proj=tmerc +foo +lat_0=99", "+proj=pipeline +step"})
            InitializeProj(text);
        std::fflush(stderr);
        QCOMPARE(terminal.readAll(), QByteArray());
    }
};

ROOM_TEST(WktReaderTest)
#include "WktReaderTest.moc"

#include "SampleWkt.h"
#include "platform/projection/Definitions.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QtTest>

#include <cmath>
#include <cstdio>

using SampleWkt::boundWkt;
using SampleWkt::transverseMercator;
using SampleWkt::wkt;

class WktReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void contents_data() {
        const Rows<QByteArray, int, QByteArray> rows({"text", "content", "name"});
        const auto row = [&rows](const char* title, const QByteArray& text, WktSystem::Content content,
                                 const char* name = "") { rows(title, text, int(content), name); };
        const auto projected = WktSystem::Content::Projected;
        const QByteArray system = wkt("Transverse_Mercator", transverseMercator);
        row("ESRI", system, projected, "X");
        row("round brackets", QByteArray(system).replace('[', '(').replace(']', ')'), projected, "X");
        row("blanks and words behind", system + "  more", projected, "X");
        row("any letters", wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "\xC3\x96,\xE6\xB8\xAC"),
            projected, "\xC3\x96,\xE6\xB8\xAC");
        row("name in ESRI's words",
            wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "WGS_1984_UTM_Zone_31N"), projected,
            "WGS 84 / UTM zone 31N");
        row("withdrawn", wkt("Transverse_Mercator", transverseMercator, "UNIT[\"Meter\",1]", "Y (deprecated)"),
            projected, "Y (deprecated)");
        row("with a height, WKT 1",
            "COMPD_CS[\"both\"," + system + R"w(,VERT_CS["v",VERT_DATUM["d",2005],UNIT["metre",1],AXIS["Up",UP]]])w",
            projected, "X");
        row("with a height, ESRI",
            system + R"w(,VERTCS["EGM96_Geoid",VDATUM["EGM96_Geoid"],PARAMETER["Vertical_Shift",0.0],)w"
                     R"w(PARAMETER["Direction",1.0],UNIT["Meter",1.0]])w",
            projected, "X");
        row("bound", boundWkt("Position Vector transformation (geog2D domain)", 1), projected, "b");
        row("a method that WKT 1 has no name for",
            wkt("Lambert_Conformal_Conic",
                R"w(PARAMETER["Central_Meridian",3.0],PARAMETER["Standard_Parallel_1",44.0],PARAMETER["Standard_Parallel_2",49.0],)w"
                R"w(PARAMETER["Scale_Factor",0.9999],PARAMETER["Latitude_Of_Origin",46.5])w"),
            projected, "X");
        row("a geocentric system's code on a geographic one",
            QByteArray(system).replace("0.0174532925199433]]", "0.0174532925199433],AUTHORITY[\"EPSG\",\"4978\"]]"),
            projected, "X");
        row("a method of nobody's", wkt("Unknown", transverseMercator), projected, "X");
        row("geographic",
            R"w(GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563]],)w"
            R"w(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])w",
            WktSystem::Content::NotProjected);
        row("local", R"w(LOCAL_CS["Unknown",UNIT["Meter",1.0]])w", WktSystem::Content::NotProjected);
        const auto unreadable = WktSystem::Content::Unreadable;
        row("empty", "", unreadable);
        row("cut off", system.chopped(1), unreadable);
        row("PROJ.4", "+proj=utm +zone=31", unreadable);
        row("code", "EPSG:32631", unreadable);
        row("binary", QByteArray::fromHex("89504e470d0a1a0affd8ffe0"), unreadable);
        row("brackets only", QByteArray(90000, '['), unreadable);
        row("nested without end", QByteArray("PROJCS[\"a\",").repeated(9000), unreadable);
        row("more than GDAL takes", system + QByteArray(200000, 'x'), unreadable);
    }

    void contents() {
        QFETCH(QByteArray, text);
        QFETCH(int, content);
        QFETCH(QByteArray, name);
        const WktSystem system = projectionModule()->readWkt(text);
        QCOMPARE(int(system.content), content);
        QCOMPARE(system.name, name);
    }

    void shifts_data() {
        const Rows<QByteArray, QList<double>> row({"text", "shift"});
        const QList<double> british{446.448, -125.157, 542.06, 0.1502, 0.247, 0.8421, -20.4894};
        row("position vector", boundWkt("Position Vector transformation (geog2D domain)", 1), british);
        row("coordinate frame", boundWkt("Coordinate Frame rotation (geog2D domain)", -1), british);
        const QByteArray plain = wkt("Transverse_Mercator", transverseMercator);
        row("none", plain, {0, 0, 0, 0, 0, 0, 0});
        const QByteArray shifted = QByteArray(plain).replace("563]", "563],TOWGS84[1,2,3,4,5,6,7]");
        row("seven", shifted, {1, 2, 3, 4, 5, 6, 7});
        row("undefined projection", QByteArray(shifted).replace("Transverse_Mercator", "Unknown"),
            {1, 2, 3, 4, 5, 6, 7});
    }

    void shifts() {
        QFETCH(QByteArray, text);
        QFETCH(QList<double>, shift);
        const QList<double> read = shiftOf(projectionModule()->readWkt(text).definition);
        for (int i = 0; i < 7; ++i)
            QVERIFY2(std::abs(read[i] - shift[i]) < 1e-10, qPrintable(QString::number(read[i], 'g', 17)));
    }

    void nothingReachesTheTerminal() {
        QTemporaryFile terminal;
        QVERIFY(terminal.open());
        std::fflush(stderr);
        QVERIFY(std::freopen(QFile::encodeName(terminal.fileName()).constData(), "w", stderr));
        for (const QByteArray& text :
             {QByteArray("rubbish"), wkt("Unknown", transverseMercator), QByteArray(200000, 'x')})
            projectionModule()->readWkt(text);
        for (const char* text : {"+proj=omerc +lat_0=4 +alpha=x", "+proj=tmerc +foo +lat_0=99", "+proj=pipeline +step"})
            InitializeProj(text);
        std::fflush(stderr);
        QCOMPARE(terminal.readAll(), QByteArray());
    }
};

ROOM_TEST(WktReaderTest)
#include "WktReaderTest.moc"

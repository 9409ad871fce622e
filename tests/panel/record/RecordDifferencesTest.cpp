#include "panel/record/RecordDifferences.h"

#include "catalogue/CoordParamKey.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "panel/record/RecordWkt.h"
#include "platform/projection/WktDialect.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// Reads a .prj file with the code of the import command.
bool importFile(const QString& path, IDictionary* record) {
    const WktSystem system = WktFile::read(path);
    if (system.content != WktSystem::Content::Projected)
        return false;
    WktToCoordParam::convert(system, record);
    record->setText(CoordParamKey::name, WktToCoordParam::nameInCatalogue(system));
    return true;
}

} // namespace

class RecordDifferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void savedDefinitionImportsAgain_data() {
        const Rows<SampleRecord, int, QStringList> row({"sample", "dialect", "lost"});
        const char* const dialects[] = {"GDAL", "ESRI", "2019"};
        for (int dialect = 0; dialect < 3; ++dialect) {
            const auto add = [&](const SampleRecord& sample, const QStringList& lost) {
                row(sample.title + ", " + dialects[dialect], sample, dialect, lost);
            };
            const bool isEsri = WktDialect(dialect) == WktDialect::Wkt1Esri;
            for (const SampleRecord& sample : SampleRecord::all())
                // ESRI's Mercator has a parallel of true scale in place of a factor: the same grid, another kind.
                add(sample, isEsri && sample.title == "British grid" ? QStringList{"the datum shift"}
                            : isEsri && sample.title == "Mercator"   ? QStringList{"the projection method"}
                                                                     : QStringList());
            SampleRecord odd = SampleRecord::named("UTM").with("name", "Bär's grid [1:1000] 100%");
            odd.title = "odd name";
            add(odd, {});
            SampleRecord sphere = SampleRecord::named("British grid").with("ellipsoid_f", "0").with("_7type", "0");
            sphere.title = "sphere of no registry";
            add(sphere, {"the ellipsoid's name"});
            SampleRecord translated =
                SampleRecord::named("UTM").with("_7type", "2").with("_7dx", "-87").with("_7dz", "0.5");
            translated.title = "shift of three";
            add(translated, isEsri ? QStringList{"the datum shift"} : QStringList());
            SampleRecord westward = SampleRecord::named("Oblique Mercator").with("p_r", "323.130102361111");
            westward.title = "azimuth to the west";
            add(westward, {});
            SampleRecord finest = SampleRecord::named("British grid").with("_7ppm", "0.252906278");
            finest.title = "scale difference of nine decimals";
            add(finest, isEsri ? QStringList{"the datum shift"} : QStringList());
            // A datum's name makes no reader look up a shift, or another ellipsoid: the registry has one shift for
            // RT90.
            SampleRecord named = SampleRecord::named("Gauss-Kruger").with("ellipsoid_name", "Bessel 1841");
            named = named.with("ellipsoid_a", "6377397.155").with("ellipsoid_f", "299.1528128");
            for (const char* datum : {"Rikets koordinatsystem 1990", "RT90", "North American Datum 1927",
                                      "World Geodetic System 1984", "B\xc3\xa4r's \"Netz\", [1:1000] (x) 100%"}) {
                named = named.with("datum_name", datum).with("_7type", "0").with("_7dx", "1");
                named.title = datum;
                add(named, {});
                named = named.with("_7type", "2");
                named.title += " with a shift";
                add(named, isEsri ? QStringList{"the datum shift"} : QStringList());
            }
        }
    }

    void savedDefinitionImportsAgain() {
        QFETCH(SampleRecord, sample);
        QFETCH(int, dialect);
        QFETCH(QStringList, lost);
        const DictionaryGuard record = sample.record();
        const QByteArray wkt = recordWkt(*record, WktDialect(dialect), false);
        QVERIFY(!wkt.isEmpty() && !wkt.contains('\n'));
        QTemporaryDir folder;
        QVERIFY(setContent(folder.filePath("saved.prj"), wkt));
        const DictionaryGuard imported;
        QVERIFY(importFile(folder.filePath("saved.prj"), imported.get()));
        QCOMPARE(recordDifferences(*record, *imported).join(", "), lost.join(", "));
        // The tab's own look at the text comes to the same.
        const DictionaryGuard reread;
        QVERIFY(WktToCoordParam::write(wkt, reread.get()));
        QCOMPARE(recordDifferences(*imported, *reread), QStringList());
    }

    void differencesAreNamed_data() {
        const Rows<QByteArray, QByteArray, QString> row({"key", "text", "lost"});
        row("name=another", "name", "another", "the name");
        row("ellipsoid_name=another", "ellipsoid_name", "another", "the ellipsoid's name");
        row("factor=0.9996012718", "factor", "0.9996012718", "Scale factor");
        row("org_lon=-2.00000001", "org_lon", "-2.00000001", "Central meridian");
        row("org_lon=-2.0000000000001", "org_lon", "-2.0000000000001", {});
        row("project_type=7", "project_type", "7", "the projection method");
        row("_7ry=0", "_7ry", "0", "the datum shift");
        row("_7type=0", "_7type", "0", "the datum shift");
        row("lat1=7", "lat1", "7", {}); // no value of this method
    }

    void differencesAreNamed() {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, text);
        QFETCH(QString, lost);
        const SampleRecord& british = SampleRecord::named("British grid");
        const QStringList differences = recordDifferences(*british.record(), *british.with(key, text).record());
        QCOMPARE(differences.join(", "), lost);
    }
};

ROOM_TEST(RecordDifferencesTest)
#include "RecordDifferencesTest.moc"

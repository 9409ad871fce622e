#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "import/WktFile.h"
#include "panel/check/CheckPointPane.h"
#include "panel/check/DistortionPane.h"
#include "panel/check/SampleRecords.h"
#include "panel/computing/CheckPoint.h"
#include "panel/computing/DesignProposal.h"
#include "panel/computing/DistortionGrid.h"
#include "panel/computing/DistortionLines.h"
#include "panel/record/AngleText.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DefinitionImport.h"
#include "panel/record/ParamField.h"
#include "panel/registry/RegistryModel.h"
#include "platform/projection/IGeodesy.h"
#include "platform/projection/IProjectionModule.h"
#include "support/Files.h"
#include "support/MessageBoxDouble.h"
#include "support/ModalDriver.h"
#include "support/PanelOnScreen.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

Q_DECLARE_METATYPE(SampleRecord)
Q_DECLARE_METATYPE(GeographicPoint)
Q_DECLARE_METATYPE(RegistryModel::Search)

namespace {

IGeodesy& geodesy() {
    return projectionModule()->geodesy();
}

IEpsgRegistry& registry() {
    return projectionModule()->registry();
}

std::unique_ptr<IProjectedSystem> systemOf(const SampleRecord& sample) {
    return geodesy().createSystem(coordParamToProjDefine(*sample.record()));
}

/// Reads a .prj file with the code of the import command.
bool importFile(const QString& path, IDictionary* record) {
    const WktFile file(path);
    if (file.content() != WktFile::Content::Projected)
        return false;
    projDefineToCoordParam(InitializeProj(file.definition()), record);
    record->setText(CoordParamKey::name, file.name().toLocal8Bit());
    return true;
}

QStringList labels(const PanelOnScreen& screen) {
    QStringList texts;
    for (const QLabel* label : screen.findAll<QLabel>())
        texts << label->text();
    return texts;
}

/// Brings the picture of the distortion to the front.
void showDistortion(const PanelOnScreen& screen) {
    for (auto* tabs : screen.panel.findChildren<QTabWidget*>())
        tabs->setCurrentIndex(1);
}

double largest(const DesignProposal::Range& range) {
    return std::max(std::abs(range.smallest), std::abs(range.largest));
}

QVector<GeographicPoint> around(double latitude, double longitude, double size) {
    QVector<GeographicPoint> points;
    for (double dLat = -size; dLat <= size; dLat += size / 5.0) {
        for (double dLon = -size; dLon <= size; dLon += size / 5.0)
            points.append({latitude + dLat, longitude + dLon, 0.0});
    }
    return points;
}

} // namespace

/// The tabs "Check" and "Definition", and what they compute, over the real projection module.
class PanelCheckTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        MessageBoxDouble::reset();
        AngleText::setNotation(AngleNotation::DecimalDegrees);
    }

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
        }
    }

    void savedDefinitionImportsAgain() {
        QFETCH(SampleRecord, sample);
        QFETCH(int, dialect);
        QFETCH(QStringList, lost);
        const DictionaryGuard record = sample.record();
        const QByteArray wkt = geodesy().exportWkt(
            coordParamToProjDefine(*record), QString::fromLocal8Bit(record->getValue(CoordParamKey::name)).toUtf8(),
            record->getValue(CoordParamKey::ellipsoidName), WktDialect(dialect), false);
        QVERIFY(!wkt.isEmpty() && !wkt.contains('\n'));
        QTemporaryDir folder;
        QVERIFY(setContent(folder.filePath("saved.prj"), wkt));
        const DictionaryGuard imported;
        QVERIFY(importFile(folder.filePath("saved.prj"), imported.get()));
        QCOMPARE(DefinitionImport::differences(*record, *imported).join(", "), lost.join(", "));
        // The tab's own look at the text comes to the same.
        const DictionaryGuard reread;
        QVERIFY(DefinitionImport::read(wkt, reread.get()));
        QCOMPARE(DefinitionImport::differences(*imported, *reread), QStringList());
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
        const QStringList differences =
            DefinitionImport::differences(*british.record(), *british.with(key, text).record());
        QCOMPARE(differences.join(", "), lost);
    }

    void pointGoesThereAndBack_data() {
        const Rows<SampleRecord, bool> row({"sample", "wgs84"});
        for (const SampleRecord& sample : SampleRecord::all()) {
            row(sample.title + ", own datum", sample, false);
            row(sample.title + ", WGS 84", sample, true);
        }
    }

    void pointGoesThereAndBack() {
        QFETCH(SampleRecord, sample);
        QFETCH(bool, wgs84);
        const auto system = systemOf(sample);
        const DictionaryGuard record = sample.record();
        const GridPoint origin = DistortionLines::origin(*record);
        const auto datum = wgs84 ? CheckPoint::Datum::Wgs84 : CheckPoint::Datum::Own;
        const auto first =
            CheckPoint::fromGrid(*system, {origin.easting + 40000.0, origin.northing - 30000.0}, 250.0, datum);
        QVERIFY(first);
        const auto second = CheckPoint::fromGeographic(*system, first->on(datum), datum);
        QVERIFY(second);
        QVERIFY(std::abs(first->on(datum).height - 250.0) < 1e-4);
        QVERIFY(std::hypot(second->grid.easting - first->grid.easting, second->grid.northing - first->grid.northing) <
                2e-4);
        QVERIFY(first->closingError < 1e-6 && second->closingError < (wgs84 ? 2e-4 : 1e-6));
        QCOMPARE(system->hasDatumShift(), sample.title == "British grid");
        QCOMPARE(first->own.latitude != first->wgs84.latitude, system->hasDatumShift());
        const double radius = system->meanRadius(first->own.latitude);
        QCOMPARE(first->combinedFactor(), first->scale.mean * radius / (radius + first->own.height));
        QVERIFY(!CheckPoint::fromGeographic(*system, {91.0, 0.0, 0.0}, datum));
    }

    void contourLevels_data() {
        const Rows<double, double> row({"factor", "height"});
        // UTM at 400 km from the meridian reaches about 1600 ppm from -400; a wider or higher area changes range and
        // sign.
        for (const double factor : {0.9996, 1.0, 1.01})
            for (const double height : {0.0, 3000.0})
                row("factor " + QByteArray::number(factor) + " at " + QByteArray::number(height), factor, height);
    }

    void contourLevels() {
        QFETCH(double, factor);
        QFETCH(double, height);
        const auto system = systemOf(SampleRecord::named("UTM").with("factor", QByteArray::number(factor)));
        for (const double width : {2e3, 5e4, 5e5, 2e6}) {
            const DistortionGrid grid(*system, {{500000.0, 5000000.0}, width, width / 2.0}, 31, 17, height);
            const auto levels = grid.contourLevels(8);
            QVERIFY(levels.size() >= 2 && levels.size() <= 9);
            QVERIFY(levels.first() >= grid.smallest() && levels.last() <= grid.largest());
            const double step = levels[1] - levels[0];
            const double power = std::pow(10.0, std::floor(std::log10(step) + 1e-6));
            const double leading = std::round(step / power);
            QVERIFY2(leading == 1.0 || leading == 2.0 || leading == 5.0, qPrintable(QString::number(step)));
            QVERIFY(std::abs(std::remainder(levels[0], leading * power)) < 1e-3 * step);
        }
    }

    void gridOfDistortion() {
        const auto system = systemOf(SampleRecord::named("UTM"));
        const DistortionArea area{{500000.0, 5000000.0}, 400000.0, 200000.0};
        const auto nodes = DistortionGrid::nodes(area, 5, 3);
        QCOMPARE(nodes.size(), 15);
        QCOMPARE(nodes.first().easting, 300000.0);
        QCOMPARE(nodes.first().northing, 4900000.0);
        QCOMPARE(nodes[1].easting, 400000.0);
        QCOMPARE(nodes.last().northing, 5100000.0);
        const DistortionGrid grid(*system, area, 5, 3, 0.0);
        QVERIFY(!grid.isEmpty());
        QVERIFY(std::abs(grid.values()[2] + 400.0) < 0.01); // on the central meridian
        QCOMPARE(grid.smallest(), *std::min_element(grid.values().begin(), grid.values().end()));
        // Where the projection ends, there is no value, and what there is counts.
        const DistortionGrid nowhere(*system, {{1e9, 1e9}, 1e3, 1e3}, 3, 3, 0.0);
        QVERIFY(nowhere.isEmpty() && nowhere.contourLevels(8).isEmpty());
        QVERIFY(DistortionGrid(*system, {{500000.0, 5000000.0}, 0.0, 0.0}, 2, 2, 0.0).contourLevels(8).isEmpty());
    }

    void linesAreWhereTheyBelong_data() {
        const Rows<bool, int, bool> row({"meridian", "parallels", "trueScale"});
        row("UTM", true, 0, false);
        row("Mercator with parallel", true, 1, true);
        row("Polar with parallel", true, 1, true);
        row("Polar with scale", true, 0, false);
        row("Stereographic", true, 0, false);
        row("Lambert one parallel", true, 1, false);
        row("Lambert two parallels", true, 2, true);
        row("Oblique Mercator", false, 0, false);
        row("Oblique Mercator two points", false, 0, false);
    }

    void linesAreWhereTheyBelong() {
        QFETCH(bool, meridian);
        QFETCH(int, parallels);
        QFETCH(bool, trueScale);
        const QByteArray title = QTest::currentDataTag();
        const SampleRecord& sample = SampleRecord::named(title);
        const DictionaryGuard record = sample.record();
        const auto system = systemOf(sample);
        const auto middle = DistortionLines::middleOfParallels(*record, *system);
        QCOMPARE(middle.has_value(), parallels > 0);
        const GridPoint centre = middle ? *middle : DistortionLines::origin(*record);
        const double width = title == "Polar with parallel" ? 5e6 : 1e6;
        const DistortionLines lines(*record, *system, {centre, width, width});
        QCOMPARE(!lines.centralMeridian().empty(), meridian);
        QCOMPARE(int(lines.standardParallels().size()), parallels);
        for (const GridPoint& point : lines.centralMeridian())
            QVERIFY(std::abs(point.easting - DistortionLines::origin(*record).easting) < 1e-3);
        for (const auto& line : lines.standardParallels()) {
            double ppm = 1e9;
            system->linearDistortion(&line[line.size() / 2], 1, 0.0, &ppm);
            QVERIFY2(std::abs(ppm - (trueScale ? 0.0 : -100.0)) < 0.01, qPrintable(QString::number(ppm)));
        }
        const DistortionLines elsewhere(*record, *system, {{centre.easting + 4e6, centre.northing}, 1e5, 1e5});
        QVERIFY(elsewhere.centralMeridian().empty());
    }

    void proposalIsTheBest_data() {
        const Rows<QByteArray, bool, double, GeographicPoint, double> rows(
            {"title", "placeLine", "height", "centre", "line"});
        const auto row = [&rows](const QByteArray& title, bool placeLine, double height, const GeographicPoint& centre,
                                 double line) {
            rows(title + (placeLine ? " with line at " : " at ") + QByteArray::number(height), title, placeLine, height,
                 centre, line);
        };
        row("UTM", false, 0.0, {50.0, 16.0, 0.0}, 15.0);
        row("UTM", true, 0.0, {50.0, 16.0, 0.0}, 16.0);
        row("UTM", true, 2200.0, {-30.0, 13.5, 0.0}, 13.5);
        row("Gauss-Kruger", true, 1500.0, {40.0, 116.2, 0.0}, 116.2);
        row("Lambert one parallel", false, 400.0, {18.1, -77.3, 0.0}, 18.0);
        row("Lambert one parallel", true, 400.0, {19.0, -77.3, 0.0}, 19.0);
        row("Mercator", false, 0.0, {3.0, 110.0, 0.0}, 110.0);
        row("Oblique Mercator", false, 100.0, {5.0, 115.0, 0.0}, 115.0);
        row("Polar with scale", false, 0.0, {85.0, 20.0, 0.0}, 0.0);
        row("Double stereographic", false, 0.0, {52.0, 6.0, 0.0}, 5.38763888888889);
    }

    /// No other factor, and no other line with its best factor, leaves less; and what is said of the distortion is so.
    void proposalIsTheBest() {
        QFETCH(QByteArray, title);
        QFETCH(bool, placeLine);
        QFETCH(double, height);
        QFETCH(GeographicPoint, centre);
        QFETCH(double, line);
        const DictionaryGuard record = SampleRecord::named(title).record();
        const auto points = around(centre.latitude, centre.longitude, 0.5);
        const auto proposal = DesignProposal::make(*record, geodesy(), points, height, placeLine);
        QVERIFY(proposal && !proposal->changes().isEmpty());
        QVERIFY(largest(proposal->after()) <= largest(proposal->before()));
        QVERIFY(std::abs(proposal->after().smallest + proposal->after().largest) < 0.11);

        CoordParamEditor editor;
        editor.setRecord(*record);
        proposal->apply(editor);
        const auto again = DesignProposal::make(editor.record(), geodesy(), points, height, false);
        QVERIFY(again && again->changes().isEmpty());
        QCOMPARE(again->before().largest, proposal->after().largest);
        const bool isLambert = title.startsWith("Lambert");
        const char* const lineKey = isLambert ? CoordParamKey::parallel1Lat : CoordParamKey::orgLon;
        const double placed = dictionary_number(editor.record(), lineKey, 0.0);
        QVERIFY2(std::abs(placed - line) < 0.05, qPrintable(QString::number(placed)));
        if (isLambert)
            QCOMPARE(dictionary_number(editor.record(), CoordParamKey::orgLat, 0.0), placed);
        if (!placeLine)
            return;
        for (const double other : {placed - 0.2, placed + 0.2}) {
            const DictionaryGuard moved;
            dictionary_assign(moved.get(), &editor.record());
            moved->setText(lineKey, QByteArray::number(other));
            const auto worse = DesignProposal::make(*moved, geodesy(), points, height, false);
            QVERIFY(worse && largest(worse->after()) > largest(proposal->after()));
        }
    }

    /// At one point: the line through it, and the scale that the height asks for.
    void proposalForPoint() {
        const DictionaryGuard record = SampleRecord::named("Gauss-Kruger").record();
        const auto proposal = DesignProposal::make(*record, geodesy(), {{40.0, 115.1234, 0.0}}, 1000.0, true);
        QVERIFY(proposal);
        CoordParamEditor editor;
        editor.setRecord(*record);
        proposal->apply(editor);
        QCOMPARE(editor.record().getValue(CoordParamKey::orgLon), "115.1234");
        const double radius = systemOf(SampleRecord::named("Gauss-Kruger"))->meanRadius(40.0);
        QVERIFY(std::abs(dictionary_number(editor.record(), CoordParamKey::factor, 0.0) - (radius + 1000.0) / radius) <
                1e-7);
        QCOMPARE(editor.record().getValue(CoordParamKey::projectType), "1"); // it has a scale now
        QVERIFY(largest(proposal->after()) < 0.06);
    }

    void noProposal_data() {
        const Rows<QByteArray> row({"title"});
        for (const char* title : {"Mercator with parallel", "Polar with parallel", "Cassini"})
            row(title, title);
    }

    void noProposal() {
        QFETCH(QByteArray, title);
        const DictionaryGuard record = SampleRecord::named(title).record();
        QVERIFY(!DesignProposal::isPossible(*record));
        QVERIFY(!DesignProposal::make(*record, geodesy(), around(45.0, 0.0, 1.0), 0.0, true));
    }

    void registrySearch_data() {
        const Rows<RegistryModel::Search, QByteArrayList, QByteArrayList> row({"search", "found", "missing"});
        const std::optional<double> none;
        row("all", {"", none, none, false}, {"27700", "32633", "3857"}, {"2171"});
        row("deprecated too", {"", none, none, true}, {"27700", "2171"}, {});
        row("code", {"2770", none, none, false}, {"27700"}, {"32633"});
        row("words of the name in any order and case", {"GRID british NATIONAL", none, none, false}, {"27700"},
            {"32633"});
        row("words of the area", {"netherlands onshore", none, none, false}, {"28992"}, {"27700"});
        row("no such word", {"qwertz", none, none, false}, {}, {"27700"});
        row("point", {"", 52.0, 5.0, false}, {"28992", "32631"}, {"27700", "32633"});
        row("point across the antimeridian", {"", -18.0, 179.9, false}, {"3460"}, {"28992"});
        row("point beyond the antimeridian", {"", -18.0, -179.5, false}, {"3460"}, {"28992"});
        row("the same point counted west", {"", -18.0, -180.1, false}, {"3460"}, {"28992"});
        row("half a point is none", {"", 52.0, none, false}, {"27700", "32633"}, {});
    }

    void registrySearch() {
        QFETCH(RegistryModel::Search, search);
        QFETCH(QByteArrayList, found);
        QFETCH(QByteArrayList, missing);
        RegistryModel model(registry());
        model.setSearch(search);
        for (const QByteArray& code : found)
            QVERIFY2(model.rowOf(code) >= 0, code);
        for (const QByteArray& code : missing)
            QVERIFY2(model.rowOf(code) < 0, code);
        QCOMPARE(model.rowCount() > 0, !found.isEmpty());
    }

    /// What is taken to be held by its method alone does give a record that defines a projection (every 40th system);
    /// what is grey does not.
    void registryKnowsWhatIsHeld() {
        RegistryModel model(registry());
        RegistryModel::Search search;
        search.deprecatedToo = true;
        model.setSearch(search);
        int held = 0;
        int grey = 0;
        for (int row = 0; row < model.rowCount(); row += 40) {
            const RegistrySystem& system = model.system(row);
            const DictionaryGuard record;
            const bool defines = DefinitionImport::read(registry().wkt(system.code, nullptr), record.get()) &&
                                 coordParamDefinesProjection(*record);
            QVERIFY2(defines == model.reason(system).isEmpty(), system.code);
            ++(defines ? held : grey);
        }
        QVERIFY(held > 100 && grey > 2);
        QVERIFY(!model.reason(model.system(model.rowOf("29873"))).isEmpty()); // gamma is not alpha
        QVERIFY(model.data(model.index(model.rowOf("5514"), 0), Qt::ForegroundRole).isValid());
        QVERIFY(!model.data(model.index(model.rowOf("32633"), 0), Qt::ForegroundRole).isValid());
    }

    void nothingBeforeItIsShown() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Ellipsoid);
        QVERIFY(!screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
        screen.panel.setCurrentIndex(PanelOnScreen::Check);
        QVERIFY(screen.panel.findChild<CheckPointPane*>() && !screen.panel.findChild<QPlainTextEdit*>());
    }

    void pointWhileTyping() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        // Before anything is typed, it is the origin.
        QCOMPARE(screen.shown("Easting"), QString("400000.0000"));
        QCOMPARE(screen.shown("Latitude"), QString("49"));
        screen.type("Latitude", "52 39 27.2531N");
        screen.type("Longitude", "1:43:04.5177");
        QCOMPARE(screen.shown("Easting"), QString("651409.9029"));
        QCOMPARE(screen.shown("Northing"), QString("313177.2703"));
        screen.type("Easting", "400000");
        screen.type("Northing", "-100000");
        QCOMPARE(screen.shown("Latitude"), QString("49"));
        QCOMPARE(screen.shown("Longitude"), QString("-2"));
        QVERIFY(labels(screen).contains("0.9996012717  (-398.73 ppm)"));
        QVERIFY(labels(screen).contains("0.000 mm"));
        // The same grid point on the other datum, at the height 0 there.
        screen.find<QComboBox>("Datum")->setCurrentIndex(1);
        const auto own =
            systemOf(SampleRecord::named("British grid"))
                ->fromWgs84({screen.shown("Latitude").toDouble(), screen.shown("Longitude").toDouble(), 0.0});
        QVERIFY(std::abs(own->latitude - 49.0) < 1e-9 && std::abs(own->longitude + 2.0) < 1e-9);
        QVERIFY(std::abs(screen.shown("Latitude").toDouble() - 49.00077) < 1e-5);
        QCOMPARE(screen.edits.count(), 0);
    }

    void refusedPoint() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        for (const char* text : {"abc", "91", "N", "12 75 0"}) {
            screen.type("Latitude", text);
            QVERIFY2(screen.shown("Easting").isEmpty(), text);
            QVERIFY(!screen.find<QLineEdit>("Latitude")->toolTip().isEmpty());
            QVERIFY(!screen.find<QPushButton>("Copy as text")->isEnabled());
        }
        QTest::keyClick(screen.find<QLineEdit>("Latitude"), Qt::Key_Escape);
        QCOMPARE(screen.shown("Easting"), QString("500000.0000"));
        // Sound, but not to be projected.
        screen.show(*SampleRecord::named("Lambert two parallels").record());
        screen.type("Latitude", "-90");
        screen.type("Longitude", "0");
        QVERIFY(labels(screen).contains("The projection gives no result for this point."));
        for (const QLineEdit* edit : screen.panel.findChildren<QLineEdit*>())
            QVERIFY(!edit->text().contains("nan") && !edit->text().contains("inf"));
    }

    void typedPointStays() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        screen.show(*SampleRecord::named("British grid").record());
        QCOMPARE(screen.shown("Latitude"), QString("49")); // the other system's origin
        screen.type("Latitude", "50.5");
        screen.type("Longitude", "14.5");
        screen.show(*SampleRecord::named("UTM").record());
        QCOMPARE(screen.shown("Latitude"), QString("50.5"));
        const auto grid = systemOf(SampleRecord::named("UTM"))->toGrid({50.5, 14.5, 0.0});
        QCOMPARE(screen.shown("Easting"), QString::number(grid->easting, 'f', 4));
    }

    void copiedPoint() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Check);
        screen.type("Latitude", "50.5");
        screen.type("Ellipsoidal height", "100");
        screen.find<QPushButton>("Copy as text")->click();
        const QString text = QApplication::clipboard()->text();
        QVERIFY(text.startsWith("British grid\n"));
        for (const char* part : {"Latitude\t50.5", "Ellipsoidal height\t100 m", "Easting\t400000.0000 m",
                                 "Grid scale factor\t0.9996", "Convergence\t0", "Closing error\t0.000 mm"})
            QVERIFY2(text.contains(part), part);
    }

    void proposalIsTakenOver() {
        PanelOnScreen screen(*SampleRecord::named("UTM").with("unknown_key", "kept").record(), PanelOnScreen::Check);
        auto* pages = screen.panel.findChild<CheckPointPane*>()->window()->findChild<DistortionPane*>();
        QVERIFY(pages && !pages->isVisible());
        showDistortion(screen);
        QVERIFY(pages->isVisible());
        QVERIFY(pages->proposal());
        auto* accept = screen.find<QPushButton>("Take over");
        QVERIFY(accept->isEnabled());
        accept->click();
        QCOMPARE(screen.edits.count(), 1);
        QVERIFY(screen.number("factor") != 0.9996);
        QCOMPARE(screen.value("unknown_key"), "kept");
        QCOMPARE(screen.value("org_lon"), "15");
        QVERIFY(!accept->isEnabled()); // now it is as good as it can be
        screen.find<QCheckBox>("Move the meridian")->setChecked(true);
        screen.show(*SampleRecord::named("Cassini").record());
        QVERIFY(!accept->isEnabled() && !screen.find<QCheckBox>("Move the meridian"));
    }

    /// In the middle of the map lies what it is drawn around; the value there is that of the height.
    void valueUnderTheMouse() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        screen.type("Latitude", "50");
        screen.type("Longitude", "16.2");
        showDistortion(screen);
        screen.find<QComboBox>("Width of the area")->setCurrentText("5 km");
        QWidget* canvas = nullptr;
        for (auto* widget : screen.panel.findChildren<QWidget*>()) {
            if (widget->inherits("QwtPlotCanvas"))
                canvas = widget;
        }
        QVERIFY(canvas && canvas->isVisible());
        const auto readout = [&] {
            QMouseEvent move(QEvent::MouseMove, canvas->contentsRect().center(), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(canvas, &move);
            const QStringList texts = labels(screen).filter(QRegularExpression("^E .* ppm$"));
            return texts.isEmpty() ? QStringList() : texts.first().split(QRegularExpression("[ ,]+"));
        };
        // "E 500.000 km N 0.000 km 0, 15 -400.0 ppm"
        const auto pixel = 5.0 / canvas->width();
        QStringList words = readout();
        QCOMPARE(words.size(), 10);
        QVERIFY(std::abs(words[1].toDouble() - 500.0) <= pixel && std::abs(words[4].toDouble()) <= pixel);
        QCOMPARE(words[8], QString("-400.0"));
        screen.find<QComboBox>("Area")->setCurrentIndex(2);
        words = readout();
        const auto system = systemOf(SampleRecord::named("UTM"));
        const GeographicPoint place{50.0, 16.2, 0.0};
        QVERIFY(std::abs(words[1].toDouble() - system->toGrid(place)->easting / 1000.0) <= pixel);
        QVERIFY(std::abs(words[6].remove(',').toDouble() - 50.0) < 1e-3 && std::abs(words[7].toDouble() - 16.2) < 1e-3);
        QVERIFY(std::abs(words[8].toDouble() - (system->localScale(place)->mean - 1.0) * 1e6) < 0.5);
        screen.panel.findChild<QSpinBox*>()->setValue(1000);
        QVERIFY(std::abs(readout()[8].toDouble() - words[8].toDouble() + 1e9 / 6379000.0) < 1.0);
    }

    void definitionTexts() {
        PanelOnScreen screen(*SampleRecord::named("British grid").record(), PanelOnScreen::Definition);
        auto* proj = screen.find<QPlainTextEdit>("PROJ definition");
        auto* wkt = screen.find<QPlainTextEdit>("WKT");
        QVERIFY(proj->isReadOnly() && wkt->isReadOnly());
        QVERIFY(proj->toPlainText().startsWith("+proj=tmerc +lat_0=49 +lon_0=-2 +k_0=0.9996012717 "));
        auto* dialect = screen.find<QComboBox>("WKT dialect");
        const char* const starts[] = {"PROJCS[\"British grid\",", "PROJCS[\"British grid\",", "BOUNDCRS["};
        const char* const remarks[] = {"", "Does not come back with an import of this form: the datum shift.", ""};
        for (int i = 0; i < 3; ++i) {
            dialect->setCurrentIndex(i);
            Q_EMIT dialect->activated(i);
            QVERIFY(wkt->toPlainText().startsWith(starts[i]));
            QCOMPARE(wkt->toPlainText().contains("TOWGS84[446.448"), i == 0);
            QCOMPARE(screen.messages().join('|'), QString(remarks[i]));
        }
        for (auto* button : screen.findAll<QPushButton>()) {
            if (button->text() == "Copy") {
                button->click();
                const QString copied = QApplication::clipboard()->text();
                QVERIFY(copied == proj->toPlainText() || copied == wkt->toPlainText());
            }
        }
    }

    void definitionIsSaved() {
        QTemporaryDir folder;
        PanelOnScreen screen(*SampleRecord::named("British grid").with("name", "A/B: grid").record(),
                             PanelOnScreen::Definition);
        QString offered;
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            offered = QFileInfo(files->selectedFiles().first()).fileName();
            files->setDirectory(folder.path());
            auto* name = files->findChild<QLineEdit*>("fileNameEdit");
            name->setText(folder.filePath("saved"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        screen.find<QPushButton>("Save as .prj")->click();
        QCOMPARE(offered, QString("A_B_ grid.prj"));
        const DictionaryGuard imported;
        QVERIFY(importFile(folder.filePath("saved.prj"), imported.get()));
        QCOMPARE(DefinitionImport::differences(screen.record(), *imported), QStringList());
        QVERIFY(MessageBoxDouble::messages.isEmpty());
    }

    void noProjection_data() {
        const Rows<SampleRecord> row({"sample"});
        row("type 0 with factor 0", SampleRecord::named("Gauss-Kruger").with("factor", "0"));
        row("unknown type", SampleRecord::named("UTM").with("project_type", "5"));
        row("no ellipsoid", SampleRecord::named("UTM").with("ellipsoid_a", "0"));
        row("parallels cancel",
            SampleRecord::named("Lambert two parallels").with("parallel_1_lat", "-30.2833333333333"));
        row("polar with both scale and parallel", SampleRecord::named("Polar with parallel").with("factor", "0.994"));
    }

    /// One line says why, nothing is computed, and the next good system is.
    void noProjection() {
        QFETCH(SampleRecord, sample);
        for (const auto tab : {PanelOnScreen::Check, PanelOnScreen::Definition}) {
            PanelOnScreen screen(*sample.record(), tab);
            QCOMPARE(screen.messages().size(), 1);
            for (const QLineEdit* edit : screen.panel.findChildren<QLineEdit*>())
                QVERIFY(!edit->isVisible() || !edit->isEnabled() || edit->text().isEmpty());
            for (const QPlainTextEdit* text : screen.panel.findChildren<QPlainTextEdit*>())
                QVERIFY(text->toPlainText().isEmpty());
            screen.show(*SampleRecord::named("UTM").record());
            if (tab == PanelOnScreen::Check)
                QCOMPARE(screen.shown("Easting"), QString("500000.0000"));
            else
                QVERIFY(!screen.find<QPlainTextEdit>("WKT")->toPlainText().isEmpty());
        }
    }

    /// Whatever reaches the picture between a change of system and its refresh, it looks at nothing that is gone.
    void pictureKeepsWhatItShows() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Check);
        showDistortion(screen);
        for (const bool resizes : {true, false}) {
            // The line with the reason takes room from the picture, which is drawn once more.
            screen.show(*SampleRecord::named("UTM").with("project_type", "5").record());
            QCOMPARE(screen.messages().size(), 1);
            if (resizes)
                screen.panel.resize(screen.panel.width() + 40, screen.panel.height() - 40);
            QFont font = screen.panel.font();
            font.setPointSizeF(font.pointSizeF() * 1.1);
            screen.panel.setFont(font);
            QApplication::processEvents();
            screen.show(*SampleRecord::named("UTM").record());
        }
    }

    void fromRegistry() {
        PanelOnScreen screen(
            *SampleRecord::named("Mercator with parallel").with("name", "Mine").with("unknown_key", "kept").record(),
            PanelOnScreen::Definition);
        const auto choose = [&](const QString& search, bool accept) {
            ModalDriver::onNextDialog([=](QDialog* dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit*>(), search);
                auto* buttons = dialog->findChild<QDialogButtonBox*>();
                buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)->click();
            });
            screen.find<QPushButton>("From registry...")->click();
            QCOMPARE(ModalDriver::pending(), 0);
        };
        choose("28992", false);
        QCOMPARE(screen.edits.count(), 0);
        choose("27700", true);
        QCOMPARE(screen.edits.count(), 1);
        QCOMPARE(screen.value("name"), "Mine");
        QCOMPARE(screen.value("unknown_key"), "kept");
        QCOMPARE(screen.value("project_type"), "1");
        QCOMPARE(screen.value("org_lat"), "49.000000");
        QCOMPARE(screen.number("factor"), 0.9996012717);
        QCOMPARE(screen.value("_7type"), "2"); // the registry's first shift
        QCOMPARE(screen.value("_7dx"), "446.448000");
        QVERIFY(screen.find<QPlainTextEdit>("PROJ definition")->toPlainText().contains("+k_0=0.9996012717 "));
        // A system without a shift takes the old one away.
        choose("25833", true);
        QCOMPARE(screen.value("_7type"), "0");
        QVERIFY(!screen.value("_7dx"));
        QCOMPARE(screen.edits.count(), 2);

        PanelOnScreen readOnly(*SampleRecord::named("UTM").record(), PanelOnScreen::Definition, true);
        QVERIFY(!readOnly.find<QPushButton>("From registry...")->isEnabled());
    }

    void registryGreysWhatIsNotHeld() {
        PanelOnScreen screen(*SampleRecord::named("UTM").record(), PanelOnScreen::Definition);
        bool enabled = true;
        QStringList texts;
        ModalDriver::onNextDialog([&](QDialog* dialog) {
            QTest::keyClicks(dialog->findChild<QLineEdit*>(), "5514"); // Krovak
            enabled = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
            for (const QLabel* label : dialog->findChildren<QLabel*>())
                texts.append(label->text());
            dialog->reject();
        });
        screen.find<QPushButton>("From registry...")->click();
        QVERIFY(!enabled);
        QVERIFY(texts.join('\n').contains("None of the methods holds this projection exactly"));
    }
};

ROOM_TEST(PanelCheckTest)
#include "PanelCheckTest.moc"

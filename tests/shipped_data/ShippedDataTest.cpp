#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "platform/sdk/CatalogueFile.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QHash>
#include <QSet>
#include <QTest>

#include <cmath>

namespace {

/// PROJ's own conversion from longitude and latitude (degrees, from Greenwich, on the system's datum) to the projected
/// system of an EPSG code.
class RegistryConversion {
public:
    RegistryConversion(PJ_CONTEXT* context, const QByteArray& code) {
        const ProjObject system(proj_create_from_database(context, "EPSG", code, PJ_CATEGORY_CRS, 0, nullptr));
        const ProjObject geodetic(proj_crs_get_geodetic_crs(context, system.get()));
        const ProjObject axes(proj_crs_get_coordinate_system(context, geodetic.get()));
        proj_cs_get_axis_info(context, axes.get(), 0, nullptr, nullptr, nullptr, &unit, nullptr, nullptr, nullptr);
        const ProjObject meridian(proj_get_prime_meridian(context, geodetic.get()));
        double meridianUnit = 0.0;
        proj_prime_meridian_get_parameters(context, meridian.get(), &meridianLongitude, &meridianUnit, nullptr);
        meridianLongitude *= meridianUnit;
        const ProjObject operation(
            proj_create_crs_to_crs_from_pj(context, geodetic.get(), system.get(), nullptr, nullptr));
        conversion.reset(proj_normalize_for_visualization(context, operation.get()));
    }

    GridPoint toGrid(double longitude, double latitude) const {
        const double lambda = proj_torad(longitude) - meridianLongitude;
        const PJ_COORD grid =
            proj_trans(conversion.get(), PJ_FWD, proj_coord(lambda / unit, proj_torad(latitude) / unit, 0.0, 0.0));
        return {grid.xy.x, grid.xy.y};
    }

private:
    double unit = 0.0;              // of the system's angles, in radians
    double meridianLongitude = 0.0; // radians
    ProjObject conversion;
};

double number(const CatalogueRecord& record, const char* key) {
    return dictionary_number(*record.values, key, NAN);
}

} // namespace

/// The files that the build makes, as the tool finds them.
class ShippedDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const QString folder = QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/";
        ellipsoids = CatalogueFile::readRecords(folder + "Ellipsoid.xml", ellipsoidFile);
        systems = CatalogueFile::readSystems(folder + "CoordinateSystem.vcs");
        QVERIFY(ellipsoids.condition == FileCondition::Whole);
        QVERIFY(systems.condition == FileCondition::Whole);
    }

    void ellipsoidFigures_data() {
        const Rows<QByteArray, QByteArray> row({"a", "f"});

        // EPSG registry, by the ellipsoid's code.
        row("WGS 84", "6378137.0", "298.257223563");         // 7030
        row("GRS 1980", "6378137.0", "298.257222101");       // 7019
        row("Bessel 1841", "6377397.155", "299.1528128");    // 7004
        row("Airy 1830", "6377563.396", "299.3249646");      // 7001
        row("International 1924", "6378388.0", "297.0");     // 7022
        row("Krassowsky 1940", "6378245.0", "298.3");        // 7024
        row("GRS 1980 Authalic Sphere", "6371007.0", "0.0"); // 7048
    }

    void ellipsoidFigures() {
        QFETCH(QByteArray, a);
        QFETCH(QByteArray, f);
        const CatalogueRecord* ellipsoid = ellipsoids.records.find(QTest::currentDataTag());
        QVERIFY(ellipsoid);
        QCOMPARE(QByteArray(ellipsoid->values->getValue(EllipsoidKey::a)), a);
        QCOMPARE(QByteArray(ellipsoid->values->getValue(EllipsoidKey::f)), f);
    }

    void everyEllipsoidIsShippedAndSound() {
        int count = 0;
        for (const CatalogueRecord& ellipsoid : ellipsoids.records) {
            QCOMPARE(ellipsoid.values->getValue(EllipsoidKey::flag), "1");
            const double a = number(ellipsoid, EllipsoidKey::a);
            const double f = number(ellipsoid, EllipsoidKey::f);
            QVERIFY2(a > 6.37e6 && a < 6.379e6, ellipsoid.name);
            QVERIFY2(f == 0.0 || (f > 290.0 && f < 311.0), ellipsoid.name);
            ++count;
        }
        QVERIFY(count >= 50);
        // Defined in feet, and by its minor axis: 20926348 and 20855233 Clarke's feet of 0.3047972654 m (EPSG 7007).
        const CatalogueRecord* clarke = ellipsoids.records.find("Clarke 1858");
        QVERIFY(clarke);
        QVERIFY(std::abs(number(*clarke, EllipsoidKey::a) - 20926348 * 0.3047972654) < 1e-8);
        QVERIFY(std::abs(number(*clarke, EllipsoidKey::f) - 20926348.0 / (20926348 - 20855233)) < 1e-9);
    }

    void systemFigures_data() {
        // figures: longitude, latitude, factor, easting, northing, parallels
        const Rows<QByteArray, int, QVector<double>> row({"group", "method", "figures"});

        const int scaled = int(ProjectionMethod::TransverseMercatorScaled);
        const int lambert = int(ProjectionMethod::LambertTwoParallels);
        // NGA.SIG.0012, the UTM grids
        row("WGS 84 / UTM zone 32N", "WGS 84 / UTM North", scaled, {9, 0, 0.9996, 500000, 0});
        row("WGS 84 / UTM zone 33S", "WGS 84 / UTM South", scaled, {15, 0, 0.9996, 500000, 10000000});
        // Ordnance Survey, A guide to coordinate systems in Great Britain
        row("OSGB36 / British National Grid", "United Kingdom", scaled, {-2, 49, 0.9996012717, 400000, -100000});
        // IOGP 373-7-2, the example of the double stereographic projection
        row("Amersfoort / RD New", "Netherlands", int(ProjectionMethod::ObliqueStereographic),
            {5.38763888888889, 52.1561605555556, 0.9999079, 155000, 463000});
        // IGN, Systèmes de référence
        row("RGF93 v2b / Lambert-93", "France", lambert, {3, 46.5, 1, 700000, 6600000, 49, 44});
        // GB/T 17798-2007, zones of 3 degrees
        row("CGCS2000 / 3-degree Gauss-Kruger zone 39", "China / CGCS2000 / 3-degree Gauss-Kruger",
            int(ProjectionMethod::TransverseMercator), {117, 0, 1, 39500000, 0});
        // LINZS25002
        row("NZGD2000 / New Zealand Transverse Mercator 2000", "New Zealand", scaled,
            {173, 0, 0.9996, 1600000, 10000000});
        // Geospatial Information Authority of Japan, plane rectangular system IX: 36 N, 139 50' E
        row("JGD2011 / Japan Plane Rectangular CS IX", "Japan / JGD2011", scaled, {139 + 50.0 / 60, 36, 0.9999, 0, 0});
        // NOAA Manual NOS NGS 5, appendix A: Colorado North
        row("NAD83 / Colorado North", "United States / NAD83 / State Plane and Statewide", lambert,
            {-105.5, 39 + 20.0 / 60, 1, 914401.8289, 304800.6096, 40 + 47.0 / 60, 39 + 43.0 / 60});
    }

    void systemFigures() {
        QFETCH(QByteArray, group);
        QFETCH(int, method);
        QFETCH(QVector<double>, figures);
        const CoordSysGroup* found = systems.groups.find(group);
        const CatalogueRecord* system = found ? found->systems.find(QTest::currentDataTag()) : nullptr;
        QVERIFY(system);
        QCOMPARE(static_cast<int>(number(*system, CoordParamKey::projectType)), method);
        const char* keys[] = {CoordParamKey::orgLon,      CoordParamKey::orgLat,     CoordParamKey::factor,
                              CoordParamKey::falseEast,   CoordParamKey::falseNorth, CoordParamKey::parallel1Lat,
                              CoordParamKey::parallel2Lat};
        figures.resize(7); // with no parallels where the row has none
        for (int i = 0; i < figures.size(); ++i)
            QVERIFY2(std::abs(number(*system, keys[i]) - figures[i]) < 1e-10 * std::max(1.0, std::abs(figures[i])),
                     keys[i]);
    }

    void everySystemIsDefinedOnAShippedEllipsoid() {
        QSet<QByteArray> names;
        for (const CoordSysGroup& group : systems.groups) {
            QVERIFY2(!group.systems.isEmpty(), group.name);
            for (const CatalogueRecord& system : group.systems) {
                QVERIFY2(coordParamDefinesProjection(*system.values), system.name);
                QVERIFY2(!names.contains(system.name), system.name);
                names.insert(system.name);
                const CatalogueRecord* ellipsoid =
                    ellipsoids.records.find(system.values->getValue(CoordParamKey::ellipsoidName));
                QVERIFY2(ellipsoid, system.name);
                QVERIFY2(std::abs(number(system, CoordParamKey::ellipsoidA) - number(*ellipsoid, EllipsoidKey::a)) <
                             1e-6,
                         system.name);
                QVERIFY2(std::abs(number(system, CoordParamKey::ellipsoidF) - number(*ellipsoid, EllipsoidKey::f)) <
                             1e-8,
                         system.name);
            }
        }
        QVERIFY(names.size() > 2500);
    }

    /// Every record against PROJ's own definition, at three places of the system's area of use.
    void everySystemProjectsAsTheRegistryDoes() {
        IProjectionModule* module = projectionModule();
        QVERIFY(module);
        QHash<QByteArray, RegistrySystem> registry;
        for (const RegistrySystem& system : module->registry().projectedSystems()) {
            if (!system.deprecated)
                registry.insert(QByteArray(system.name).replace(',', '-'), system);
        }
        const ProjContext context;
        for (const CoordSysGroup& group : systems.groups) {
            for (const CatalogueRecord& system : group.systems) {
                QVERIFY2(registry.contains(system.name), system.name);
                const RegistrySystem& entry = registry[system.name];
                const double width = entry.east - entry.west + (entry.east < entry.west ? 360.0 : 0.0);
                const RegistryConversion conversion(context.get(), entry.code);
                const auto projected = module->createSystem(coordParamToProjDefine(*system.values));
                QVERIFY2(projected, system.name);
                for (const double part : {0.2, 0.5, 0.8}) {
                    const double latitude = entry.south + part * (entry.north - entry.south);
                    const double longitude = entry.west + part * width;
                    const auto ours = projected->toGrid({latitude, longitude, 0.0});
                    QVERIFY2(ours, system.name);
                    const GridPoint theirs = conversion.toGrid(longitude, latitude);
                    // The definition's text knows the meridian of Paris to 0.3 mm only; all others agree to 0.01 mm.
                    const double tolerance = system.name.contains("(Paris)") ? 5e-4 : 1e-5;
                    QVERIFY2(std::hypot(ours->easting - theirs.easting, ours->northing - theirs.northing) < tolerance,
                             system.name);
                }
            }
        }
    }

    void systemsStandInTheirOrder_data() {
        // name: of every system, with %1 for what counts
        const Rows<QString, QString> row({"name", "counted"});
        row("WGS 84 / UTM North", "WGS 84 / UTM zone %1N", "1 2 3 4 5 6 7 8 9 10 11 12");
        row("China / CGCS2000 / 3-degree Gauss-Kruger", "CGCS2000 / 3-degree Gauss-Kruger CM %1E",
            "75 78 81 84 87 90 93 96 99 102 105");
        row("Japan / JGD2011", "JGD2011 / Japan Plane Rectangular CS %1", "I II III IV V VI VII VIII IX X XI XII XIII");
        row("Sweden", "SWEREF99 %1", "TM|12 00|13 30");
        // What is in use today first.
        row("Switzerland and Liechtenstein", "%1", "CH1903+ / LV95|CH1903 / LV03");
        row("Netherlands", "Amersfoort / RD %1", "New Old");
        row("Belgium", "%1", "ETRS89 / Belgian Lambert 2008|ETRS89 / Belgian Lambert 2005|BD72 / Belgian Lambert 72");
        row("Nigeria", "Minna / Nigeria %1 Belt", "East Mid West"); // which are not Niger's
    }

    /// A group begins with these; the first group is the first that a user sees.
    void systemsStandInTheirOrder() {
        QFETCH(QString, name);
        QFETCH(QString, counted);
        QCOMPARE(systems.groups.begin()->name, QByteArray("WGS 84 / UTM North"));
        const CoordSysGroup* group = systems.groups.find(QTest::currentDataTag());
        QVERIFY(group);
        QStringList names;
        for (const QString& count : counted.split(counted.contains('|') ? '|' : ' '))
            names << name.arg(count);
        QCOMPARE(QString::fromUtf8(group->systems.names()).split(',').mid(0, names.size()), names);
    }

private:
    RecordFile ellipsoids{ellipsoidFile};
    SystemFile systems;
};

ROOM_TEST(ShippedDataTest)
#include "ShippedDataTest.moc"

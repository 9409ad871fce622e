#include "catalogue/Angle.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"
#include "support/Files.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QDir>
#include <QHash>
#include <QTest>

#include <cmath>

namespace {

constexpr double meanEarthRadius = 6371000.0;

/// How far two places lie apart, in metres; good for small distances.
double distance(const GeographicPoint& left, const GeographicPoint& right) {
    const double north = Angle::toRadians(left.latitude - right.latitude) * meanEarthRadius;
    const double east = Angle::toRadians(std::remainder(left.longitude - right.longitude, 360.0)) * meanEarthRadius *
                        std::cos(Angle::toRadians(left.latitude));
    return std::hypot(north, east, left.height - right.height);
}

double distance(const GridPoint& left, const GridPoint& right) {
    return std::hypot(left.easting - right.easting, left.northing - right.northing);
}

/// Decimal degrees, or degrees, minutes and seconds as 52:09:22.178N; NaN, which no figure agrees with, for other
/// texts.
double number(QByteArray text) {
    const double sign = text.endsWith('S') || text.endsWith('W') ? -1.0 : 1.0;
    if (!text.isEmpty() && QByteArray("NSEW").contains(text.back()))
        text.chop(1);
    double value = 0.0;
    double unit = 1.0;
    for (const QByteArray& part : text.split(':')) {
        bool ok = false;
        value += part.toDouble(&ok) * unit;
        if (!ok)
            return std::nan("");
        unit /= 60.0;
    }
    return sign * value;
}

void showDifference(double value, double expected, double tolerance) {
    QVERIFY2(std::abs(value - expected) <= tolerance,
             qPrintable(QStringLiteral("%1 instead of %2").arg(value, 0, 'g', 14).arg(expected, 0, 'g', 14)));
}

} // namespace

/// What the tool computes, against published values and against itself.
class ProjectedSystemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the projection module was not found"); }

    /// The rows of published_values.txt, whose head explains them, and of limits.txt and the files in gigs/, with the
    /// definition of their system.
    void publishedValue_data() {
        const Rows<QByteArray, QByteArray, QVector<double>, double, QVector<double>> row(
            {"definition", "what", "n", "unit", "trips"});
        QStringList files{RoomTest::dataPath("published_values.txt"), RoomTest::dataPath("limits.txt")};
        for (const QFileInfo& file : QDir(RoomTest::dataPath("gigs")).entryInfoList({"*.txt"}))
            files << file.filePath();
        QCOMPARE(files.size(), 15);
        for (const QString& file : files)
            addRows(row, file);
    }

    void publishedValue() {
        QFETCH(QByteArray, definition);
        QFETCH(QByteArray, what);
        QFETCH(QVector<double>, n);
        QFETCH(double, unit);
        QFETCH(QVector<double>, trips);
        const auto system = projectionModule()->createSystem(definition);
        QVERIFY(system);
        const double tolerance = n.last();
        const GeographicPoint place{n[0], n[1], what == "shift" ? n[2] : 0.0};
        if (what == "point") {
            const GridPoint expected{n[2] * unit, n[3] * unit};
            const auto grid = system->toGrid(place);
            const auto back = system->toGeographic(expected, 0.0);
            QVERIFY(grid && back);
            showDifference(grid->easting, expected.easting, tolerance);
            showDifference(grid->northing, expected.northing, tolerance);
            showDifference(distance(*back, place), 0.0, tolerance * std::sqrt(2.0));
            scaleIsTheDerivative(*system, GetProjEllipsoid(InitializeProj(definition)), place);
            stays(*system, place, trips);
        } else if (what == "radius") {
            showDifference(system->meanRadius(n[0]), n[1], tolerance);
        } else if (what == "shift") {
            const GeographicPoint expected{n[3], n[4], n[5]};
            const auto wgs84 = system->toWgs84(place);
            const auto back = system->fromWgs84(expected);
            QVERIFY(system->hasDatumShift() && wgs84 && back);
            showDifference(distance(*wgs84, expected), 0.0, tolerance);
            showDifference(distance(*back, place), 0.0, tolerance);
        } else {
            const auto scale = system->localScale(place);
            QVERIFY(scale);
            showDifference(what == "scale" ? scale->mean : scale->convergence, n[2], tolerance);
        }
    }

    /// Nothing comes back, and the next point is computed as if nothing had been asked.
    void impossiblePoint() {
        const auto system = projectionModule()->createSystem("+proj=lcc +lat_1=40 +lat_2=50 +ellps=GRS80");
        const double nan = std::nan("");
        const QList<QPair<const char*, GeographicPoint>> places{{"beyond the pole", {90.001, 0.0, 0.0}},
                                                                {"twice around", {0.0, 361.0, 0.0}},
                                                                {"no number", {nan, 0.0, 0.0}},
                                                                {"no height", {0.0, 0.0, nan}},
                                                                {"at infinity", {-90.0, 10.0, 0.0}}};
        for (const auto& place : places) {
            QVERIFY2(!system->toGrid(place.second) && !system->localScale(place.second), place.first);
            QVERIFY(!system->toGeographic({nan, 0.0}, 0.0));
            QVERIFY(system->toGrid({45.0, 3.0, 0.0}) && system->localScale({45.0, 3.0, 0.0}));
        }
    }

    /// On the central meridian at a height, the distortion is that of the scale factor and of R / (R + h).
    void distortionAtHeight() {
        const auto system =
            projectionModule()->createSystem("+proj=tmerc +lon_0=9 +k_0=0.9996 +x_0=500000 +a=6371000 +b=6371000");
        const GridPoint points[] = {{500000.0, 5000000.0}, {1e9, 1e9}};
        double ppm[2];
        system->linearDistortion(points, 2, 0.0, ppm);
        showDifference(ppm[0], -400.0, 0.001);
        QVERIFY(std::isnan(ppm[1]));
        system->linearDistortion(points, 1, 1000.0, ppm);
        showDifference(ppm[0], (0.9996 * 6371000.0 / 6372000.0 - 1.0) * 1e6, 0.001);

        // Not conformal: what counts is the meridians' stretching, 1 / cos(x / R) at x = 100 km (Snyder 1987, Cassini
        // projection).
        const auto cassini = projectionModule()->createSystem("+proj=cass +lat_0=50 +lon_0=9 +a=6371000 +b=6371000");
        const GridPoint east{100000.0, 0.0};
        cassini->linearDistortion(&east, 1, 0.0, ppm);
        showDifference(ppm[0], (1.0 / std::cos(100000.0 / 6371000.0) - 1.0) * 1e6, 0.01);
        // Higher up it is the parallels, which keep their scale on the grid.
        cassini->linearDistortion(&east, 1, 1000.0, ppm);
        showDifference(ppm[0], (6371000.0 / 6372000.0 - 1.0) * 1e6, 0.01);
    }

private:
    template <typename Row> static void addRows(const Row& row, const QString& file) {
        const QHash<QByteArray, int> sizes{{"point", 5}, {"scale", 4}, {"turn", 4}, {"radius", 3}, {"shift", 7}};
        const DictionaryGuard record;
        QByteArray system;
        double unit = 1.0;
        QVector<double> trips;
        int line = 0;
        for (const QByteArray& text : contentOf(file).split('\n')) {
            ++line;
            QByteArrayList items = text.split('#').first().simplified().split(' ');
            const QByteArray what = items.takeFirst();
            if (what == "system") {
                system = items.join(' ');
                record->clear();
                unit = 1.0;
                trips.clear();
            } else if (what == "unit") {
                unit = number(items.value(0));
            } else if (what == "trips") {
                trips = {number(items.value(0)), number(items.value(1))};
            } else if (sizes.contains(what)) {
                const QByteArray title = QFileInfo(file).fileName().toUtf8() + " line " + QByteArray::number(line) +
                                         ' ' + what + ": " + system;
                QVERIFY2(items.size() == sizes[what], title);
                QVector<double> numbers;
                for (const QByteArray& item : items)
                    numbers << number(item);
                row(title, coordParamToProjDefine(*record), what, numbers, unit, trips);
            } else if (!what.isEmpty() && what != "source") {
                const double degreesPerUnit = what.startsWith("_7r") ? 1.0 / 3600.0 : 1.0;
                record->setText(what, QByteArray::number(number(items.value(0)) * degreesPerUnit, 'g', 17));
            }
        }
    }

    /// A point stays where it is, however often it is computed there and back.
    static void stays(const IProjectedSystem& system, const GeographicPoint& place, const QVector<double>& trips) {
        GridPoint point = *system.toGrid(place);
        const GridPoint start = point;
        for (double trip = 0; trip < trips.value(0); ++trip)
            point = *system.toGrid(*system.toGeographic(point, 0.0));
        showDifference(distance(point, start), 0.0, trips.value(1));
    }

    /// Scale factors and convergence are those of 200 m along the meridian and the parallel through the point.
    static void scaleIsTheDerivative(const IProjectedSystem& system, const ProjEllipsoid& ellipsoid,
                                     const GeographicPoint& place) {
        const double e2 = 1.0 - std::pow(ellipsoid.b / ellipsoid.a, 2);
        const double w = std::sqrt(1.0 - e2 * std::pow(std::sin(Angle::toRadians(place.latitude)), 2));
        const double meridianRadius = ellipsoid.a * (1.0 - e2) / (w * w * w);
        const double parallelRadius = ellipsoid.a / w * std::cos(Angle::toRadians(place.latitude));

        const double step = 100.0;
        const double dLat = Angle::toDegrees(step / meridianRadius);
        const double dLon = Angle::toDegrees(step / parallelRadius);
        const auto south = system.toGrid({place.latitude - dLat, place.longitude, 0.0});
        const auto north = system.toGrid({place.latitude + dLat, place.longitude, 0.0});
        const auto west = system.toGrid({place.latitude, place.longitude - dLon, 0.0});
        const auto east = system.toGrid({place.latitude, place.longitude + dLon, 0.0});
        const auto scale = system.localScale(place);
        QVERIFY(south && north && west && east && scale);
        showDifference(scale->meridian, distance(*north, *south) / (2.0 * step), 5e-9);
        showDifference(scale->parallel, distance(*east, *west) / (2.0 * step), 5e-9);
        // The meridian's azimuth is 0, its grid bearing minus the convergence.
        const double bearing =
            Angle::toDegrees(std::atan2(north->easting - south->easting, north->northing - south->northing));
        showDifference(std::remainder(scale->convergence + bearing, 360.0), 0.0, 1e-6);
    }
};

ROOM_TEST(ProjectedSystemTest)
#include "ProjectedSystemTest.moc"

#include "panel/computing/FitToPoints.h"

#include "catalogue/Dictionary.h"
#include "panel/computing/DesignProposal.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/ProjectionFields.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"
#include "support/TextTable.h"

#include <QRegularExpression>
#include <QtMath>

#include <Eigen/LU>

#include <random>

namespace {

using Choice = FitToPoints::Choice;

double number(const SampleRecord& sample, const char* key) {
    return dictionary_number(*sample.record(), key, 0.0);
}

/// 12 places up to `degrees` about east and north of the origin, where the system puts them with that noise (m).
QVector<KnownPoint> pointsOf(const SampleRecord& sample, std::mt19937& random, double degrees, double noise) {
    const auto system = sample.system();
    std::uniform_real_distribution<double> around(-degrees, degrees);
    std::normal_distribution<double> error(0.0, noise);
    const double latitude = number(sample, "org_lat"), side = latitude == 90 ? -3 : latitude == -90 ? 3 : 1;
    QVector<KnownPoint> points;
    for (int i = 0; i < 12; ++i) {
        const GeographicPoint place{latitude + side + around(random), number(sample, "org_lon") + 1 + around(random),
                                    0};
        const GridPoint grid = *system->toGrid(place);
        points << KnownPoint{place, {grid.easting + error(random), grid.northing + error(random)}};
    }
    return points;
}

SampleRecord with(SampleRecord sample, const QByteArray& changes) {
    for (const QByteArray& change : changes.simplified().split(' ')) {
        if (!change.isEmpty())
            sample = sample.with(change.split('=')[0], change.split('=')[1]);
    }
    return sample;
}

FitToPoints fit(const SampleRecord& sample, const QVector<KnownPoint>& points, const Choice& choice) {
    return FitToPoints::solve(*sample.record(), *projectionModule(), points, choice);
}

/// Sum of squares of what the values leave in the sample's system.
double squares(const SampleRecord& sample, const QVector<KnownPoint>& points) {
    const auto system = sample.system();
    double sum = 0.0;
    for (const KnownPoint& point : points) {
        const GridPoint grid = *system->toGrid(point.own);
        sum += std::pow(grid.easting - point.grid.easting, 2) + std::pow(grid.northing - point.grid.northing, 2);
    }
    return sum;
}

} // namespace

class FitToPointsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Every method's own values come back from its points.
    void findsItsOwn_data() {
        QTest::addColumn<QByteArray>("sample");
        for (const SampleRecord& sample : SampleRecord::all())
            QTest::newRow(sample.title) << sample.title;
    }

    void findsItsOwn() {
        QFETCH(QByteArray, sample);
        const SampleRecord own = SampleRecord::named(sample);
        std::mt19937 random(1);
        const QVector<KnownPoint> points = pointsOf(own, random, 0.9, 0.0);
        SampleRecord other = with(own, "false_east=123 false_north=-456");
        const bool hasFactor = DesignProposal::isPossible(*own.record());
        if (hasFactor)
            other = with(other, number(own, "factor") == 1.0
                                    ? "factor=0.999 project_type=" +
                                          QByteArray::number(std::max(1.0, number(own, "project_type")))
                                    : "factor=1.0001");
        const FitToPoints found = fit(other, points, {});
        QCOMPARE(found.problem(), QString());
        QCOMPARE(found.changes().size(), hasFactor ? 3 : 2);
        CoordParamEditor editor;
        editor.setRecord(*other.record());
        found.apply(editor);
        for (const char* key : {"project_type", "factor", "false_east", "false_north"})
            QVERIFY2(std::abs(dictionary_number(editor.record(), key, 0.0) - number(own, key)) < 1.1e-4,
                     editor.record().getValue(key));
        QVERIFY(FitToPoints::rms(found.residualsBefore()) > 100.0);
        QVERIFY(FitToPoints::rms(found.residualsAfter()) < 5e-4);
    }

    void placesTheLine_data() {
        const Rows<QByteArray, QByteArray, QByteArray> row({"sample", "key", "value"});
        row("the next zone", "UTM", "org_lon", "21");
        row("across the antimeridian", "Gauss-Kruger", "org_lon", "-178");
        row("Lambert's parallel and origin", "Lambert one parallel", "parallel_1_lat", "17.1");
    }

    void placesTheLine() {
        QFETCH(QByteArray, sample);
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        SampleRecord own = SampleRecord::named(sample);
        if (value == "-178")
            own = own.with("org_lon", "178");
        SampleRecord other = own.with(key, value);
        if (key == "parallel_1_lat")
            other = other.with("org_lat", value);
        std::mt19937 random(2);
        const FitToPoints found = fit(other, pointsOf(own, random, 0.9, 0.0), {true, true, true, true});
        QCOMPARE(found.problem(), QString());
        CoordParamEditor editor;
        editor.setRecord(*other.record());
        found.apply(editor);
        for (const char* each : {key.constData(), "org_lat", "factor"})
            QVERIFY2(std::abs(dictionary_number(editor.record(), each, 0.0) - number(own, each)) < 2e-7,
                     editor.record().getValue(each));
        QVERIFY(FitToPoints::rms(found.residualsAfter()) < 1e-3);
    }

    /// Against an adjustment of its own that derives everything numerically, with its deviations.
    void secondSolution_data() {
        const Rows<QByteArray, double, bool> row({"sample", "noise", "line"});
        row("town", "UTM", 0.02, false);
        row("with the line", "UTM", 0.3, true);
        row("cone with the line", "Lambert one parallel", 5.0, true);
        row("oblique", "Oblique Mercator", 1.0, false);
    }

    void secondSolution() {
        QFETCH(QByteArray, sample);
        QFETCH(double, noise);
        QFETCH(bool, line);
        const SampleRecord own = SampleRecord::named(sample);
        std::mt19937 random(3);
        QByteArrayList keys = {"factor", "false_east", "false_north"};
        std::vector<double> steps = {1e-5, 1.0, 1.0};
        const bool isCone = sample.startsWith("Lambert");
        if (line) {
            keys.prepend(isCone ? "parallel_1_lat" : "org_lon");
            steps.insert(steps.begin(), 1e-3);
        }
        const auto moved = [&](const SampleRecord& from, const Eigen::VectorXd& values) {
            SampleRecord to = from;
            for (int i = 0; i < keys.size(); ++i)
                to = to.with(keys[i], QByteArray::number(values(i), 'g', 17));
            return line && isCone ? to.with("org_lat", QByteArray::number(values(0), 'g', 17)) : to;
        };
        const QVector<KnownPoint> points = pointsOf(own, random, 0.9, noise);
        Eigen::VectorXd values(keys.size());
        for (int i = 0; i < keys.size(); ++i)
            values(i) = number(own, keys[i]);
        Eigen::MatrixXd normal;
        for (int step = 0; step < 4; ++step) {
            Eigen::MatrixXd slopes(2 * points.size(), keys.size());
            Eigen::VectorXd misfits(2 * points.size());
            const auto now = moved(own, values).system();
            for (int column = 0; column < keys.size(); ++column) {
                Eigen::VectorXd change = Eigen::VectorXd::Zero(keys.size());
                change(column) = steps[std::size_t(column)];
                const auto above = moved(own, values + change).system(), below = moved(own, values - change).system();
                for (int i = 0; i < points.size(); ++i) {
                    const GridPoint high = *above->toGrid(points[i].own), low = *below->toGrid(points[i].own),
                                    here = *now->toGrid(points[i].own);
                    const Eigen::Index row = Eigen::Index(2) * i;
                    slopes(row, column) = (high.easting - low.easting) / 2;
                    slopes(row + 1, column) = (high.northing - low.northing) / 2;
                    misfits(row) = points[i].grid.easting - here.easting;
                    misfits(row + 1) = points[i].grid.northing - here.northing;
                }
            }
            normal = slopes.transpose() * slopes; // in units of the steps
            const Eigen::VectorXd change = normal.fullPivLu().solve(slopes.transpose() * misfits);
            for (int i = 0; i < keys.size(); ++i)
                values(i) += change(i) * steps[std::size_t(i)];
        }
        const FitToPoints found = fit(own, points, {true, true, true, line});
        QCOMPARE(found.changes().size(), keys.size());
        const Eigen::MatrixXd cofactors = normal.inverse();
        const double weight = std::sqrt(squares(moved(own, values), points) / double(2 * points.size() - keys.size()));
        QVERIFY(std::abs(found.unitWeight() / weight - 1.0) < 1e-4);
        for (const FitToPoints::Change& change : found.changes()) {
            const int at = keys.indexOf(change.field->key);
            QVERIFY(at >= 0);
            const double deviation = weight * std::sqrt(cofactors(at, at)) * steps[std::size_t(at)];
            QVERIFY2(std::abs(change.deviation / deviation - 1.0) < 1e-3, change.field->key);
            QVERIFY2(std::abs(change.after - values(at)) < 0.02 * deviation, change.field->key);
        }
        // What was rounded is made up for.
        QVERIFY(std::abs(FitToPoints::rms(found.residualsAfter()) /
                             std::sqrt(squares(moved(own, values), points) / double(points.size())) -
                         1.0) < 1e-3);
    }

    /// Far from the origin, where the ninth decimal of the factor is 3 mm.
    void roundingCostsNothing() {
        const SampleRecord own = SampleRecord::named("UTM"), other = own.with("factor", "0.99960000045");
        QVector<KnownPoint> points;
        for (const double latitude : {60.0, 60.1, 60.2}) {
            const GeographicPoint place{latitude, 15.0 + latitude / 600, 0.0};
            points << KnownPoint{place, *other.system()->toGrid(place)};
        }
        const FitToPoints found = fit(own, points, {});
        QVERIFY(std::abs(found.changes()[0].after - 0.9996) < 2e-9);
        QVERIFY(FitToPoints::rms(found.residualsBefore()) > 2e-3);
        QVERIFY(FitToPoints::rms(found.residualsAfter()) < 1e-4);
    }

    /// Which could be turned as well as swapped.
    void swappedOnALine() {
        const SampleRecord own = SampleRecord::named("Mercator");
        QVector<KnownPoint> points;
        for (const double latitude : {1.0, 2.0, 3.0}) {
            const GeographicPoint place{latitude, 110.0, 0.0};
            const GridPoint grid = *own.system()->toGrid(place);
            points << KnownPoint{place, {grid.northing, grid.easting}};
        }
        QCOMPARE(fit(own, points, {}).diagnosis(), QString("Easting and northing are swapped."));
        for (KnownPoint& point : points)
            point.grid = {point.grid.northing, point.grid.easting};
        QCOMPARE(fit(own, points, {}).diagnosis(), QString());
    }

    void holds() {
        std::mt19937 random(4);
        const SampleRecord own = SampleRecord::named("British grid");
        const auto points = pointsOf(own, random, 0.9, 0.0);
        const SampleRecord other = with(own, "false_east=400100 false_north=-100200");
        const auto keys = [&](const Choice& choice) {
            QStringList changed;
            const FitToPoints found = fit(other, points, choice);
            for (const auto& change : found.changes())
                changed << change.field->key;
            return changed.join(' ');
        };
        QCOMPARE(keys({true, false, false, false}), QString("false_east"));
        QCOMPARE(keys({false, true, true, false}), QString("factor false_north"));
        QCOMPARE(keys({false, false, false, false}), QString());
        // What is held stays, and the others make up for none of it.
        QVERIFY(std::abs(FitToPoints::rms(fit(other, points, {true, false, false, false}).residualsAfter()) - 200.0) <
                1e-3);
    }

    void problems_data() {
        const Rows<QByteArray, int, bool, QByteArray> row({"changes", "count", "elsewhere", "said"});
        row("no point", "", 0, false, "A fit needs points");
        row("one point for a factor", "", 1, false, "The points do not determine");
        row("no system", "org_lat=100", 3, false, "The projection gives no result");
        row("out of reach", "", 3, true, "The projection gives no result");
        row("two points", "", 2, false, "");
    }

    void problems() {
        QFETCH(QByteArray, changes);
        QFETCH(int, count);
        QFETCH(bool, elsewhere);
        QFETCH(QByteArray, said);
        std::mt19937 random(5);
        const SampleRecord own = SampleRecord::named("Double stereographic");
        QVector<KnownPoint> points = pointsOf(own, random, 0.9, 0.0).mid(0, count);
        if (elsewhere)
            points[0].own = {100, 5, 0};
        const FitToPoints found = fit(with(own, changes), points, {});
        QVERIFY2(said.isEmpty() ? found.problem().isEmpty() : found.problem().startsWith(said),
                 found.problem().toUtf8());
        QVERIFY(said.isEmpty() || found.changes().isEmpty());
        const QVector<KnownPoint> tooMany(FitToPoints::mostPoints + 1, {{52.0, 5.0, 0.0}, {155000.0, 463000.0}});
        QVERIFY(fit(own, tooMany, {}).problem().startsWith("A fit takes 10000 points"));
    }

    void diagnosis_data() { textRows("fits.txt"); }

    void diagnosis() {
        const auto [title, system, changes, order, said] = textRow<5>();
        std::mt19937 random(6);
        const SampleRecord record = SampleRecord::named(system);
        QVector<KnownPoint> points = pointsOf(with(record, changes), random, 0.9, 0.01);
        QByteArrayList axes = QByteArray(order).replace(" ft", "ft").replace(" m", "m").split(' ');
        for (KnownPoint& point : points) {
            const auto value = [&](const QByteArray& axis) {
                const double unit = axis.endsWith("ft") ? 1 / 0.3048 : axis.endsWith('m') ? 0.3048 : 1.0;
                return (axis.contains('E') ? point.grid.easting : point.grid.northing) *
                       (axis.startsWith('-') ? -unit : unit);
            };
            point.grid = {value(axes[0]), value(axes[1])};
        }
        const QString found = fit(record, points, {}).diagnosis();
        const QString form = QRegularExpression::escape(QString::fromUtf8(said)).replace("\\*", ".*");
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(form)).match(found).hasMatch(), found.toUtf8());
    }

    /// What remains when the scale is held, and the system is turned a little.
    void remainder() {
        std::mt19937 random(7);
        const SampleRecord own = SampleRecord::named("UTM");
        QVector<KnownPoint> points = pointsOf(own, random, 0.9, 0.0);
        for (KnownPoint& point : points)
            point.grid = {(point.grid.easting - 1e-5 * point.grid.northing) * 1.00002,
                          (point.grid.northing + 1e-5 * point.grid.easting) * 1.00002};
        const auto held = fit(own, points, {true, true, false, false}).remainder();
        QVERIFY(held && std::abs(held->rotation - qRadiansToDegrees(1e-5)) < 1e-9);
        QVERIFY(std::abs(held->scale - 20.0) < 1e-3);
        const auto free = fit(own, points, {}).remainder();
        QVERIFY(std::abs(free->rotation - qRadiansToDegrees(1e-5)) < 1e-8 && std::abs(free->scale) < 1e-2);
    }
};

ROOM_TEST(FitToPointsTest)
#include "FitToPointsTest.moc"

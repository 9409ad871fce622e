#include "panel/computing/ShiftFromPoints.h"

#include "panel/record/CoordParamEditor.h"
#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/SampleRecords.h"
#include "support/TextTable.h"

#include <QtMath>

#include <Eigen/Geometry>
#include <Eigen/LU>

#include <random>

namespace {

using Kind = ShiftFromPoints::Kind;
using Parameters = ShiftFromPoints::Parameters;
using Point = ShiftFromPoints::Point;

double length(const ShiftFromPoints::Residual& residual) {
    return std::hypot(residual.east, residual.north, residual.up);
}

double squares(const Parameters& shift, const QVector<Point>& points) {
    double sum = 0.0;
    for (const Point& point : points)
        sum += std::pow(length(ShiftFromPoints::residual(shift, point)), 2);
    return sum;
}

std::array<double, 3> numbers(const QByteArray& text) {
    const QByteArrayList parts = text.simplified().split(' ');
    return {parts.value(0).toDouble(), parts.value(1).toDouble(), parts.value(2).toDouble()};
}

/// A place of the table, and where it is on the ellipsoid, roughly where it is given in X Y Z.
std::pair<GeocentricPoint, GeographicPoint> place(const QByteArray& text) {
    const int colon = text.indexOf(':');
    const auto [first, second, third] = numbers(text.mid(colon + 1).replace("°", "").replace("m", ""));
    if (colon > 0) {
        const SampleRecord& sample = SampleRecord::named(text.left(colon));
        const DictionaryGuard record = sample.record();
        const auto place = *sample.system()->toGeographic({first, second}, third);
        return {
            EllipsoidAxes{dictionary_number(*record, "ellipsoid_a", 0), dictionary_number(*record, "ellipsoid_f", 0)}
                .toGeocentric(place),
            place};
    }
    if (text.contains("°"))
        return {EllipsoidAxes::wgs84().toGeocentric({first, second, third}), {first, second, third}};
    return {{first, second, third},
            {qRadiansToDegrees(std::atan2(third, std::hypot(first, second))),
             qRadiansToDegrees(std::atan2(second, first)), 0.0}};
}

Parameters parameters(const QByteArray& text) {
    Parameters values;
    const QByteArrayList parts = text.simplified().split(' ');
    for (int i = 0; i < 7; ++i)
        values[std::size_t(i)] = parts[i] == "-" ? qQNaN() : parts[i].toDouble();
    return values;
}

/// The shift's result by its definition.
template <typename Number> Eigen::Matrix<Number, 3, 1> moved(const Eigen::Matrix<Number, 7, 1>& v, const Point& point) {
    using Vector = Eigen::Matrix<Number, 3, 1>;
    const Vector own(point.own.x, point.own.y, point.own.z);
    const Vector rotation = v.template segment<3>(3) * (EIGEN_PI / 648000);
    return v.template head<3>() + (1 + v(6) / 1000000) * (own + rotation.cross(own));
}

/// The same adjustment by normal equations at the geocentre and numerical derivatives, in long double.
Parameters secondSolution(const QVector<Point>& points) {
    using Number = long double;
    using Values = Eigen::Matrix<Number, 7, 1>;
    Values values = Values::Zero();
    for (int step = 0; step < 4; ++step) {
        Eigen::Matrix<Number, 7, 7> normal = Eigen::Matrix<Number, 7, 7>::Zero();
        Values right = Values::Zero();
        for (const Point& point : points) {
            Eigen::Matrix<Number, 3, 7> slopes;
            for (int i = 0; i < 7; ++i) {
                const Values change = Values::Unit(i);
                slopes.col(i) = (moved<Number>(values + change, point) - moved<Number>(values - change, point)) / 2;
            }
            const Eigen::Matrix<Number, 3, 1> wgs84(point.wgs84.x, point.wgs84.y, point.wgs84.z);
            normal += slopes.transpose() * slopes;
            right += slopes.transpose() * (wgs84 - moved<Number>(values, point));
        }
        values += normal.fullPivLu().solve(right);
    }
    Parameters result;
    for (int i = 0; i < 7; ++i)
        result[std::size_t(i)] = double(values(i));
    return result;
}

/// `count` points within `degrees` of a place, moved by `shift` with that noise (m).
QVector<Point> randomPoints(std::mt19937& random, int count, double degrees, const Parameters& shift, double noise) {
    std::uniform_real_distribution<double> around(-degrees, degrees), height(0.0, 2000.0), latitude(-60.0, 60.0),
        longitude(-180.0, 180.0);
    std::normal_distribution<double> error(0.0, noise);
    const GeographicPoint centre{latitude(random), longitude(random), 0.0};
    QVector<Point> points;
    for (int i = 0; i < count; ++i) {
        Point point;
        point.name = QString::number(i);
        point.place = {centre.latitude + around(random), centre.longitude + around(random), height(random)};
        point.own = EllipsoidAxes{6377397.155, 299.1528128}.toGeocentric(point.place);
        const auto there = moved<double>(Eigen::Map<const Eigen::Matrix<double, 7, 1>>(shift.data()), point);
        point.wgs84 = {there.x() + error(random), there.y() + error(random), there.z() + error(random)};
        points << point;
    }
    return points;
}

const Parameters someShift = {598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};

} // namespace

class ShiftFromPointsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void published_data() {
        QTest::addColumn<QList<QByteArrayList>>("lines");
        QList<QByteArrayList> table = textTable("shift_points.txt");
        while (!table.isEmpty()) {
            const QByteArray title = table.takeFirst().first();
            QVERIFY2(title.startsWith("= "), title);
            QList<QByteArrayList> lines;
            while (!table.isEmpty() && !table.first().first().startsWith("= "))
                lines << table.takeFirst();
            QTest::newRow(title.mid(2)) << lines;
        }
    }

    void published() {
        QFETCH(QList<QByteArrayList>, lines);
        QVector<Point> points;
        std::optional<Parameters> given;
        ShiftFromPoints solution;
        int checks = 0;
        for (const QByteArrayList& line : lines) {
            const double tolerance = line.last().toDouble();
            if (line[0] == "point") {
                const auto [own, where] = place(line[2]);
                points << Point{line[1], where, own, place(line[3]).first};
                continue;
            }
            ++checks;
            if (line[0] == "given") {
                given = parameters(line[1]);
                for (const Point& point : points) {
                    const auto left = ShiftFromPoints::residual(*given, point);
                    const QByteArray seen =
                        QString("%1: %2 %3 %4").arg(point.name).arg(left.east).arg(left.north).arg(left.up).toUtf8();
                    QVERIFY2(std::hypot(left.east, left.north) <= line[2].toDouble(), seen);
                    QVERIFY2(std::abs(left.up) <= tolerance, seen);
                }
            } else if (line[0] == "found") {
                solution = ShiftFromPoints::solve(points, Kind(line[1].toInt()));
                QCOMPARE(solution.problem(), QString());
                const Parameters published = parameters(line[2]);
                for (std::size_t i = 0; i < 7; ++i)
                    QVERIFY2(qIsNaN(published[i]) || std::abs(solution.parameters()[i] - published[i]) <= tolerance,
                             QByteArray::number(solution.parameters()[i], 'f', 7));
                QVERIFY(!given || squares(solution.parameters(), points) <= squares(*given, points));
            } else {
                const auto [x, y, z] = numbers(line[2]);
                const auto point = std::find_if(points.cbegin(), points.cend(),
                                                [&](const Point& candidate) { return candidate.name == line[1]; });
                QVERIFY(std::abs(length(ShiftFromPoints::residual(solution.parameters(), *point)) -
                                 std::hypot(x, y, z)) < 0.0002);
            }
        }
        QVERIFY(checks > 0);
    }

    void secondSolution_data() {
        const Rows<int, double, double> row({"count", "degrees", "noise"});
        row("four points of a town", 4, 0.05, 0.01);
        row("twelve of a country", 12, 3.0, 0.5);
        row("many of a continent", 500, 20.0, 2.0);
        row("a large misfit", 6, 1.0, 500.0);
    }

    void secondSolution() {
        QFETCH(int, count);
        QFETCH(double, degrees);
        QFETCH(double, noise);
        std::mt19937 random(13);
        for (int run = 0; run < 20; ++run) {
            const QVector<Point> points = randomPoints(random, count, degrees, someShift, noise);
            const ShiftFromPoints first = ShiftFromPoints::solve(points, Kind::Seven);
            QCOMPARE(first.problem(), QString());
            const Parameters second = ::secondSolution(points);
            for (std::size_t i = 0; i < 7; ++i)
                QVERIFY(std::abs(first.parameters()[i] - second[i]) < 1e-4 * first.deviations()[i]);
            const double weight = std::sqrt(squares(second, points) / first.redundancy());
            QCOMPARE(first.redundancy(), 3 * count - 7);
            QVERIFY(std::abs(first.unitWeight() / weight - 1.0) < 1e-6);
        }
    }

    /// The standard deviations and correlations against what random errors really do to the parameters.
    void deviationsAndCorrelations() {
        std::mt19937 random(7);
        const QVector<Point> exact = randomPoints(random, 5, 4.0, someShift, 0.0);
        constexpr int runs = 4000;
        constexpr double noise = 0.02;
        std::normal_distribution<double> error(0.0, noise);
        Eigen::Matrix<double, 7, Eigen::Dynamic> errors(7, runs);
        double weight = 0.0;
        ShiftFromPoints shift;
        for (int run = 0; run < runs; ++run) {
            QVector<Point> points = exact;
            for (Point& point : points)
                point.wgs84 = {point.wgs84.x + error(random), point.wgs84.y + error(random),
                               point.wgs84.z + error(random)};
            shift = ShiftFromPoints::solve(points, Kind::Seven);
            weight += shift.unitWeight() * shift.unitWeight() / runs;
            for (std::size_t i = 0; i < 7; ++i)
                errors(Eigen::Index(i), run) = shift.parameters()[i] - someShift[i];
        }
        QVERIFY(std::abs(std::sqrt(weight) / noise - 1.0) < 0.05);
        const Eigen::Matrix<double, 7, 7> covariances = errors * errors.transpose() / runs;
        for (int i = 0; i < 7; ++i) {
            const double expected = shift.deviations()[std::size_t(i)] * noise / shift.unitWeight();
            QVERIFY(std::abs(std::sqrt(covariances(i, i)) / expected - 1.0) < 0.05);
        }
        QCOMPARE(shift.correlations().size(), 21);
        double stronger = 1.0;
        for (const auto& found : shift.correlations()) {
            QVERIFY(std::abs(found.value) <= stronger);
            stronger = std::abs(found.value);
            const double expected =
                covariances(found.first, found.second) /
                std::sqrt(covariances(found.first, found.first) * covariances(found.second, found.second));
            QVERIFY(std::abs(found.value - expected) < 0.06);
        }
    }

    /// Computed minus given, at 0 N 90 E, where X goes west, Y up and Z north.
    void residualDirections() {
        const GeographicPoint place{0.0, 90.0, 0.0};
        const GeocentricPoint there = EllipsoidAxes::wgs84().toGeocentric(place);
        const auto left = ShiftFromPoints::residual({3, 4, 5, 0, 0, 0, 0}, {"one", place, there, there});
        QVERIFY(std::abs(left.east + 3) < 1e-9 && std::abs(left.north - 5) < 1e-9 && std::abs(left.up - 4) < 1e-9);
    }

    void leavesOut() {
        std::mt19937 random(5);
        QVector<Point> points = randomPoints(random, 5, 10.0, someShift, 0.0);
        points[1].wgs84.x += 30.0;
        QVERIFY(ShiftFromPoints::solve(points, Kind::Seven).unitWeight() > 1.0);
        points[1].isUsed = false;
        const ShiftFromPoints shift = ShiftFromPoints::solve(points, Kind::Seven);
        QVERIFY(shift.unitWeight() < 1e-6);
        QVERIFY(std::abs(length(ShiftFromPoints::residual(shift.parameters(), points[1])) - 30.0) < 1e-4);
    }

    /// How often points of random errors are called outliers, and one that is off by 12 of them is.
    void outliers() {
        std::mt19937 random(19);
        constexpr int runs = 400, count = 12;
        int wrong = 0, found = 0;
        for (int run = 0; run < runs; ++run) {
            for (const Kind kind : {Kind::Seven, Kind::Three}) {
                const Parameters shift = kind == Kind::Seven ? someShift : Parameters{598.1, 73.7, 418.2};
                QVector<Point> points = randomPoints(random, count, 2.0, shift, 0.02);
                points[3].isUsed = false;
                wrong += ShiftFromPoints::solve(points, kind).outliers().count(true);
                points[7].wgs84.z += 0.24;
                const QVector<bool> outliers = ShiftFromPoints::solve(points, kind).outliers();
                QVERIFY(outliers.size() == count && !outliers[3]);
                found += outliers[7];
            }
        }
        QVERIFY2(wrong < 10, QByteArray::number(wrong)); // of 8,800
        QVERIFY2(found > 2 * runs * 0.95, QByteArray::number(found));
        QVERIFY(!ShiftFromPoints::solve(randomPoints(random, 4, 2.0, someShift, 9.0), Kind::Seven).outliers()[0]);
    }

    /// Places as "latitude longitude height" on the ellipsoid of both datums; the first words of what is said.
    void problems_data() {
        const Rows<int, QByteArray, QByteArray> row({"kind", "places", "said"});
        row("no point", 3, "", "Three parameters need one point");
        row("two points for seven", 7, "50 10 0, 51 10 0", "Seven parameters need three points");
        row("one of three left out", 7, "50 10 0, 51 10 0, -51 11 0", "Seven parameters need three points");
        row("one point for three", 3, "50 10 0", "");
        row("three for seven", 7, "50 10 0, 51 10 0, 51 11 0", "");
        row("one point twice", 7, "50 10 0, 51 10 0, 51 11 0, 50 10 0.0005", "\"1\" and \"4\" are the same point");
        row("twice for three", 3, "51 10 0, 50 10 0, 50 10 0", "\"2\" and \"3\" are the same point");
        row("one above the other", 3, "51 10 0, 50 10 0, 50 10 0.01", "");
        row("on a meridian", 7, "50 10 0, 51 10 700, 51.5 10 0", "The points lie on a line");
        row("on the equator around the Earth", 7, "0 10 0, 0 40 700, 0 70 0", "The points lie on a line");
        row("one above the other alone", 7, "50 10 0, 50 10 900, 50 10 500", "The points lie on a line");
    }

    void problems() {
        QFETCH(int, kind);
        QFETCH(QByteArray, places);
        QFETCH(QByteArray, said);
        QVector<Point> points;
        for (const QByteArray& text : places.split(',')) {
            const bool isUsed = !text.trimmed().startsWith('-');
            const auto [latitude, longitude, height] = numbers(QByteArray(text).replace("-", ""));
            const GeographicPoint where{latitude, longitude, height};
            const GeocentricPoint there = EllipsoidAxes::wgs84().toGeocentric(where);
            if (!text.isEmpty())
                points << Point{QString::number(points.size() + 1), where, there, there, isUsed};
        }
        const ShiftFromPoints shift = ShiftFromPoints::solve(points, Kind(kind));
        QVERIFY2(said.isEmpty() ? shift.problem().isEmpty() : shift.problem().startsWith(said),
                 shift.problem().toUtf8());
        CoordParamEditor editor;
        editor.setRecord(*SampleRecord::named("British grid").record());
        shift.apply(editor);
        QCOMPARE(editor.canGoBack(), said.isEmpty());
    }

    void refusesWhatNoRecordHolds() {
        std::mt19937 random(3);
        QVector<Point> points = randomPoints(random, 4, 1.0, someShift, 0.0);
        std::swap(points[0].wgs84, points[1].wgs84);
        std::swap(points[2].wgs84, points[3].wgs84);
        QVERIFY(ShiftFromPoints::solve(points, Kind::Seven).problem().startsWith("No datum shift is as large"));
    }

    void advises() {
        std::mt19937 random(11);
        const auto advice = [&](double degrees, Kind kind) {
            return ShiftFromPoints::solve(randomPoints(random, 30, degrees, someShift, 0.01), kind).advice();
        };
        QVERIFY(advice(0.3, Kind::Seven).contains("Three parameters are recommended"));
        QCOMPARE(advice(0.3, Kind::Three), QString());
        QCOMPARE(advice(30.0, Kind::Seven), QString());
    }

    /// What is taken over moves the points as the solution does; three parameters leave no other behind.
    void takesOver() {
        std::mt19937 random(17);
        for (const Kind kind : {Kind::Seven, Kind::Three}) {
            const SampleRecord sample = SampleRecord::named("Double stereographic");
            QVector<Point> points = randomPoints(random, 6, 2.0, someShift, 1.0);
            const ShiftFromPoints shift = ShiftFromPoints::solve(points, kind);
            CoordParamEditor editor;
            editor.setRecord(*SampleRecord::named("British grid").record());
            QVERIFY(ShiftFromPoints::ofRecord(editor.record()));
            shift.apply(editor);
            const auto stated = ShiftFromPoints::ofRecord(editor.record());
            QVERIFY(stated);
            QCOMPARE((*stated)[6] == 0.0, kind == Kind::Three);
            SampleRecord other = sample.with("_7type", "2");
            for (const char* key : {"_7dx", "_7dy", "_7dz", "_7rx", "_7ry", "_7rz", "_7ppm"})
                other = other.with(key, editor.record().getValue(key));
            const auto system = other.system();
            for (Point& point : points) {
                const GeocentricPoint there = EllipsoidAxes::wgs84().toGeocentric(*system->toWgs84(point.place));
                const auto found = ShiftFromPoints::residual(shift.parameters(), point);
                point.wgs84 = there;
                const auto none = ShiftFromPoints::residual(shift.parameters(), point);
                QVERIFY2(length(none) < 1e-4 && length(found) > 0.01, QByteArray::number(length(none)));
            }
        }
        QVERIFY(!ShiftFromPoints::ofRecord(*SampleRecord::named("UTM").record()));
    }
};

ROOM_TEST(ShiftFromPointsTest)
#include "ShiftFromPointsTest.moc"

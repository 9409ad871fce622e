#include "panel/computing/PlaneSimilarity.h"

#include "panel/computing/LeastSquares.h"
#include "support/RoomTest.h"

#include <QTest>
#include <QtMath>

class PlaneSimilarityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Ghilani and Wolf, Adjustment Computations, the example of a two-dimensional conformal transformation: its points
    /// give its scale to 1e-6, its rotation to 0.05", and its shift to a millimetre, which vouches for the digits here.
    void published() {
        const auto fit =
            PlaneSimilarity::between({{121.622, -128.066}, {141.228, 187.718}, {175.802, 135.728}},
                                     {{1049422.40, 51089.20}, {1049413.95, 49659.30}, {1049244.95, 49884.95}});
        QVERIFY(fit);
        QVERIFY(std::abs(fit->scale() - 4.51962) < 5e-6);
        QVERIFY(std::abs(fit->rotation() + 360.0 - (183 + 13 / 60.0 + 5.0 / 3600)) < 0.05 / 3600);
        QVERIFY(std::abs(fit->shift().easting - 1050003.715) < 0.001);
        QVERIFY(std::abs(fit->shift().northing - 50542.131) < 0.001);
    }

    /// Against the adjustment of scale * (cos, sin) and the shift by their design matrix.
    void deviations() {
        const QVector<GridPoint> from = {{0, 0}, {100, 10}, {90, 120}, {-20, 80}};
        const QVector<GridPoint> to = {{5, 7}, {100.3, -21.2}, {122.1, 85.9}, {5.8, 90.2}};
        Eigen::MatrixXd design(8, 4);
        Eigen::VectorXd places(8);
        for (int i = 0; i < 4; ++i) {
            const Eigen::Index row = Eigen::Index(2) * i;
            design.row(row) << from[i].easting, -from[i].northing, 1, 0;
            design.row(row + 1) << from[i].northing, from[i].easting, 0, 1;
            places.segment<2>(row) << to[i].easting, to[i].northing;
        }
        const LeastSquares second = LeastSquares::solve(design, places);
        const auto fit = PlaneSimilarity::between(from, to);
        QVERIFY(std::abs(fit->scale() - std::hypot(second.values(0), second.values(1))) < 1e-12);
        QVERIFY(std::abs(fit->scaleDeviation() - second.deviation(0)) < 1e-12);
        QVERIFY(std::abs(fit->rotationDeviation() - qRadiansToDegrees(second.deviation(1) / fit->scale())) < 1e-12);
    }

    void none() {
        QVERIFY(!PlaneSimilarity::between({{0, 0}, {1, 1}}, {{0, 0}, {2, 2}}));
        QVERIFY(!PlaneSimilarity::between({{1, 1}, {1, 1}, {1, 1}}, {{0, 0}, {2, 2}, {3, 4}}));
        QVERIFY(!PlaneSimilarity::between({{0, 0}, {2, 2}, {3, 4}}, {{1, 1}, {1, 1}, {1, 1}}));
    }
};

ROOM_TEST(PlaneSimilarityTest)
#include "PlaneSimilarityTest.moc"

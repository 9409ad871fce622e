#include "panel/computing/PlaneSimilarity.h"

#include "support/RoomTest.h"

#include <QTest>

class PlaneSimilarityTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Ghilani and Wolf, Adjustment Computations, the example of a two-dimensional conformal transformation.
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

    void none() {
        QVERIFY(!PlaneSimilarity::between({{0, 0}, {1, 1}}, {{0, 0}, {2, 2}}));
        QVERIFY(!PlaneSimilarity::between({{1, 1}, {1, 1}, {1, 1}}, {{0, 0}, {2, 2}, {3, 4}}));
        QVERIFY(!PlaneSimilarity::between({{0, 0}, {2, 2}, {3, 4}}, {{1, 1}, {1, 1}, {1, 1}}));
    }
};

ROOM_TEST(PlaneSimilarityTest)
#include "PlaneSimilarityTest.moc"

#include "platform/projection/engine/plane/IsometricLatitude.h"

#include "catalogue/Angle.h"
#include "support/RoomTest.h"
#include "support/Rows.h"

#include <QTest>

#include <cmath>

class IsometricLatitudeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thereAndBack_data() {
        const Rows<double> row({"e2"});
        for (const double e2 : {0.0, 0.0066943800229, 0.1, 0.5})
            row(QByteArray::number(e2), e2);
    }

    void thereAndBack() {
        QFETCH(double, e2);
        const double e = std::sqrt(e2);
        for (const double degrees : {-90.0, -89.9999999, -45.0, -1e-9, 0.0, 1e-12, 0.5, 33.3, 60.0, 89.0, 90.0}) {
            const double phi = Angle::toRadians(degrees);
            const double psi = IsometricLatitude::ofLatitude(phi, e);
            const double back = IsometricLatitude::toLatitude(psi, e);
            QVERIFY2(std::isfinite(psi) && std::abs(back - phi) < 1e-15, qPrintable(QString::number(degrees)));
            QVERIFY(std::abs(phi) > 0.1 || std::abs(back - phi) <= 1e-15 * std::abs(phi));
        }
        QCOMPARE(IsometricLatitude::toLatitude(1e9, e), Angle::pi / 2);
    }

    /// In the logarithms of Snyder's (1987) equation 7-7, for Clarke 1866 and the latitude 35 degrees.
    void known() {
        const double sine = std::sin(Angle::toRadians(35.0)), e = std::sqrt(0.0067686580);
        const double expected =
            std::log((1.0 + sine) / (1.0 - sine)) / 2.0 - e / 2.0 * std::log((1.0 + e * sine) / (1.0 - e * sine));
        QVERIFY(std::abs(IsometricLatitude::ofLatitude(Angle::toRadians(35.0), e) - expected) < 1e-15);
    }
};

ROOM_TEST(IsometricLatitudeTest)
#include "IsometricLatitudeTest.moc"

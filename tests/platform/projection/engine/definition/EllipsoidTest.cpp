#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/TextTable.h"

#include <QTest>

#include <cmath>

/// An ellipsoid's axes and its two names.
class EllipsoidTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void ellipsoids_data() { textRows("ellipsoids.txt"); }
    void ellipsoids() {
        const auto [items, id, name, a, b] = textRow<5>();
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(InitializeProj(("+proj=tmerc " + items).constData()));
        QCOMPARE(QByteArray(ellipsoid.id), id);
        QCOMPARE(QByteArray(ellipsoid.name), name);
        QVERIFY(std::abs(ellipsoid.a - a.toDouble()) < 1e-8);
        QVERIFY2(std::abs(ellipsoid.b - b.toDouble()) < 1e-6, QByteArray::number(ellipsoid.b, 'f', 10));
        // Nothing to name is null, not an empty text.
        QVERIFY((ellipsoid.id == nullptr) == id.isEmpty() && (ellipsoid.name == nullptr) == name.isEmpty());
    }
};

ROOM_TEST(EllipsoidTest)
#include "EllipsoidTest.moc"

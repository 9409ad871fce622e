#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"
#include "support/Rows.h"
#include "support/TextTable.h"

#include <cmath>

/// An ellipsoid's axes and its two names.
class EllipsoidTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(projectionModule(), "the module lies in ../lib"); }

    void ellipsoids_data() {
        const Rows<QByteArray, QByteArray, QByteArray, double, double> row({"items", "id", "name", "a", "b"});
        for (const QByteArrayList& columns : textTable("ellipsoids.txt"))
            row(columns[0], columns[0], columns[1], columns[2], columns[3].toDouble(), columns[4].toDouble());
    }

    void ellipsoids() {
        QFETCH(QByteArray, items);
        QFETCH(QByteArray, id);
        QFETCH(QByteArray, name);
        QFETCH(double, a);
        QFETCH(double, b);
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(InitializeProj(("+proj=tmerc " + items).constData()));
        QCOMPARE(QByteArray(ellipsoid.id), id);
        QCOMPARE(QByteArray(ellipsoid.name), name);
        QVERIFY2(std::abs(ellipsoid.a - a) < 1e-8 && std::abs(ellipsoid.b - b) < 1e-6,
                 qPrintable(QString::number(ellipsoid.b, 'f', 10)));
        // Nothing to name is null, not an empty text.
        QVERIFY((ellipsoid.id == nullptr) == id.isEmpty() && (ellipsoid.name == nullptr) == name.isEmpty());
    }
};

ROOM_TEST(EllipsoidTest)
#include "EllipsoidTest.moc"

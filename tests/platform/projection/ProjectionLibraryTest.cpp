#include "platform/projection/ProjectionLibrary.h"

#include "platform/projection/IProjectionModule.h"
#include "support/RoomTest.h"

#include <QTest>

IProjectionModule* projectionModule() {
    return nullptr;
}

/// The projection library's functions where the module can't be loaded.
class ProjectionLibraryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyDefinitionIsTheEmptyOne() {
        const ProjHandle handle = InitializeProj("+proj=tmerc +ellps=bessel +towgs84=1,2,3");
        QCOMPARE(QByteArray(GetProjDefine(handle)), QByteArray());
        const ProjEllipsoid ellipsoid = GetProjEllipsoid(handle);
        QCOMPARE(QByteArray(ellipsoid.name), QByteArray("GRS 1980"));
        QCOMPARE(ellipsoid.a, 6378137.0);
        QCOMPARE(ellipsoid.b, 6356752.314140356); // Moritz, Geodetic Reference System 1980: 6356752.3141
        const ProjTowgs84 shift = GetTowgs84(handle);
        for (const double value : {shift.dx, shift.dy, shift.dz, shift.rx, shift.ry, shift.rz, shift.ppm})
            QCOMPARE(value, 0.0);
    }
};

ROOM_TEST(ProjectionLibraryTest)
#include "ProjectionLibraryTest.moc"

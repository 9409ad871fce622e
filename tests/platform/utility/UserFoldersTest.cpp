#include "catalogue/UserFolders.h"

#include "support/OwnHome.h"
#include "support/RoomTest.h"

#include <QDir>
#include <QStandardPaths>
#include <QTest>

class UserFoldersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whereTheSystemHasThem() {
        QCOMPARE(UserFolders::documents(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        QCOMPARE(UserFolders::programData(), QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    }

    void inAFolderThatIsNamed() {
        const OwnHome home;
        QCOMPARE(UserFolders::documents(), home.path() + "/Documents");
        QCOMPARE(UserFolders::programData(), home.path() + "/Data");
    }
};

ROOM_TEST(UserFoldersTest)
#include "UserFoldersTest.moc"

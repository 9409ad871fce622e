#include "platform/desktop/Applicationx.h"

#include "support/RoomTest.h"

#include <QFont>
#include <QIcon>
#include <QTest>

/// What the application object of this test program's own start has set up.
class ApplicationxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void preparesTheProcess() {
        QCOMPARE(QCoreApplication::applicationName(), QString("test"));
        QCOMPARE(QGuiApplication::desktopFileName(), QString("test"));
        QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
        for (const int size : {16, 32, 48, 128})
            QVERIFY(QApplication::windowIcon().availableSizes().contains(QSize(size, size)));
    }
};

ROOM_TEST(ApplicationxTest)
#include "ApplicationxTest.moc"

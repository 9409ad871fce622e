#include "catalogue/Sdk.h"

#include "catalogue/ICoordSystem.h"
#include "catalogue/IDictionary.h"
#include "catalogue/ISystemConfig.h"
#include "support/RoomTest.h"

#include <QTest>

class SdkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void configuration() {
        ISystemConfig* config = get_system_config_parameter();
        QCOMPARE(config, get_system_config_parameter());
        QCOMPARE(config->getParameters()->getValue("name"), "Coordinate System Manager");
        config->getParameters()->setText("name", "changed");
        config->reload();
        QCOMPARE(config->getParameters()->getValue("name"), "Coordinate System Manager");
        QCOMPARE(get_instance_ICoordSystem("", 0), get_instance_ICoordSystem("", 0));
    }
};

ROOM_TEST(SdkTest)
#include "SdkTest.moc"

#include "catalogue/Sdk.h"

#include "catalogue/ISystemConfig.h"
#include "platform/sdk/Catalogue.h"
#include "platform/sdk/InstanceLock.h"
#include "platform/sdk/SystemConfig.h"
#include "platform/sdk/ToolFolder.h"
#include "platform/utility/ApplicationFolder.h"

#include <QCoreApplication>
#include <QPointer>

#include <memory>

ICoordSystem* get_instance_ICoordSystem(const char*, int) {
    static auto* const catalogue = new Catalogue(applicationFolder() + QLatin1String("/../etc/Vornhalde/data"),
                                                 toolFolder() + QLatin1String("/rescue"));
    return catalogue;
}

ISystemConfig* get_system_config_parameter() {
    static auto* const config = new SystemConfig;
    return config;
}

// The path says nothing: there is one instance for a user, wherever it was started from.
int instance_is_run(const char*, bool bringToFront) {
    // It ends with the application object: from then on the next start may take over.
    static QPointer<InstanceLock> running;
    if (running)
        return 0;
    auto lock = std::make_unique<InstanceLock>();
    if (lock->tryLock()) {
        lock->setParent(QCoreApplication::instance());
        running = lock.release();
        return 0;
    }
    if (bringToFront)
        InstanceLock::activateOther();
    return 1;
}

// The definition's origin latitude is in decimal degrees already, and so are all angles of the parameter record: there
// is nothing to convert.
double Radian2Angle(double* value) { // NOLINT(readability-non-const-parameter): the interface has it so
    return value ? *value : 0.0;
}

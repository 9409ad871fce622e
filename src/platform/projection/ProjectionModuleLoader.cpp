#include "catalogue/Path.h"
#include "platform/projection/IProjectionModule.h"

#include <QLibrary>
#include <QThreadPool>

namespace {

QString modulePath() {
    char path[4096];
    process_resolve_path(path, sizeof path, "$(APP_DIR)/../lib/vorn_projection");
    return QString::fromLocal8Bit(path);
}

// The library stays loaded until the process ends: handles and texts that it gave out stay valid.
IProjectionModule* load() {
    using Entry = IProjectionModule* (*)();
    const auto entry = reinterpret_cast<Entry>(QLibrary::resolve(modulePath(), "vorn_projection_module"));
    return entry ? entry() : nullptr;
}

} // namespace

IProjectionModule* projectionModule() {
    static IProjectionModule* const module = load();
    return module;
}

void prepareProjectionModule() {
    static bool isPrepared = false;
    if (!isPrepared)
        QThreadPool::globalInstance()->start([path = modulePath()] { QLibrary(path).load(); });
    isPrepared = true;
}

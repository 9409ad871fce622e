#include "catalogue/Path.h"
#include "platform/projection/IProjectionModule.h"

#include <QLibrary>

namespace {

// The library stays loaded until the process ends: handles and texts that it gave out stay valid.
IProjectionModule* load() {
    char path[4096];
    process_resolve_path(path, sizeof path, "$(APP_DIR)/../lib/vorn_projection");
    using Entry = IProjectionModule* (*)();
    const auto entry =
        reinterpret_cast<Entry>(QLibrary::resolve(QString::fromLocal8Bit(path), "vorn_projection_module"));
    return entry ? entry() : nullptr;
}

} // namespace

IProjectionModule* projectionModule() {
    static IProjectionModule* const module = load();
    return module;
}

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

using Entry = IProjectionModule* (*)();

// The first thread that asks loads the library, others wait for it: two loads at once would count it as used twice. It
// stays loaded until the process ends: handles and texts that it gave out stay valid.
Entry entryOf(const QString& path) {
    static const auto entry = reinterpret_cast<Entry>(QLibrary::resolve(path, "vorn_projection_module"));
    return entry;
}

IProjectionModule* load() {
    const Entry entry = entryOf(modulePath());
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
        QThreadPool::globalInstance()->start([path = modulePath()] { entryOf(path); });
    isPrepared = true;
}

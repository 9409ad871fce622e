#include "platform/projection/engine/ProjectionModule.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT IProjectionModule* vorn_projection_module() {
    static ProjectionModule module;
    return &module;
}

#include "platform/projection/ProjectionLibrary.h"

#include "platform/projection/IProjectionLibrary.h"
#include "platform/projection/IProjectionModule.h"

namespace {

IProjectionLibrary* library() {
    IProjectionModule* const module = projectionModule();
    return module ? &module->library() : nullptr;
}

} // namespace

// Without the module every definition is the empty one.

ProjHandle InitializeProj(const char* definition) {
    IProjectionLibrary* const proj = library();
    return proj ? proj->initialize(definition) : nullptr;
}

const char* GetProjDefine(ProjHandle handle) {
    IProjectionLibrary* const proj = library();
    return proj ? proj->define(handle) : "";
}

ProjEllipsoid GetProjEllipsoid(ProjHandle handle) {
    if (IProjectionLibrary* const proj = library())
        return proj->ellipsoid(handle);
    constexpr double a = 6378137.0;
    constexpr double inverseFlattening = 298.257222101;
    return {"GRS80", a, a - a / inverseFlattening, "GRS 1980"};
}

ProjTowgs84 GetTowgs84(ProjHandle handle) {
    IProjectionLibrary* const proj = library();
    return proj ? proj->towgs84(handle) : ProjTowgs84{};
}

#include "platform/projection/ProjectionLibrary.h"

#include "platform/projection/IProjectionModule.h"

// Without the module every definition is the empty one.

ProjHandle InitializeProj(const char* definition) {
    IProjectionModule* const module = projectionModule();
    return module ? module->initialize(definition) : nullptr;
}

const char* GetProjDefine(ProjHandle handle) {
    IProjectionModule* const module = projectionModule();
    return module ? module->define(handle) : "";
}

ProjEllipsoid GetProjEllipsoid(ProjHandle handle) {
    if (IProjectionModule* const module = projectionModule())
        return module->ellipsoid(handle);
    constexpr double a = 6378137.0;
    constexpr double inverseFlattening = 298.257222101;
    return {"GRS80", a, a - a / inverseFlattening, "GRS 1980"};
}

ProjTowgs84 GetTowgs84(ProjHandle handle) {
    IProjectionModule* const module = projectionModule();
    return module ? module->towgs84(handle) : ProjTowgs84{};
}

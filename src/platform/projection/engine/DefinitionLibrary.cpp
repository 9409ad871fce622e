#include "platform/projection/engine/DefinitionLibrary.h"

DefinitionLibrary::DefinitionLibrary(const ProjContext& context) : context(context) {
}

ProjHandle DefinitionLibrary::initialize(const char* definition) {
    Q_UNUSED(context)
    return definitions.insert(definition)->constData();
}

const char* DefinitionLibrary::define(ProjHandle handle) const {
    return handle ? static_cast<const char*>(handle) : "";
}

ProjEllipsoid DefinitionLibrary::ellipsoid(ProjHandle) const {
    return {"GRS80", 6378137.0, 6356752.314140356, "GRS 1980"};
}

ProjTowgs84 DefinitionLibrary::towgs84(ProjHandle) const {
    return {};
}

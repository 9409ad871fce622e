#include "platform/projection/engine/definition/DefinitionLibrary.h"

ProjHandle DefinitionLibrary::initialize(const char* definition) {
    const QByteArray text = QByteArray(definition).simplified();
    const auto known = definitions.find(text);
    if (known != definitions.end())
        return &known->second;
    return &definitions.emplace(text, ProjDefinition(text, context, names)).first->second;
}

const ProjDefinition& DefinitionLibrary::definitionOf(ProjHandle handle) {
    return *static_cast<const ProjDefinition*>(handle ? handle : initialize(""));
}

const char* DefinitionLibrary::define(ProjHandle handle) {
    return definitionOf(handle).text();
}

ProjEllipsoid DefinitionLibrary::ellipsoid(ProjHandle handle) {
    return definitionOf(handle).ellipsoid();
}

ProjTowgs84 DefinitionLibrary::towgs84(ProjHandle handle) {
    return definitionOf(handle).towgs84();
}

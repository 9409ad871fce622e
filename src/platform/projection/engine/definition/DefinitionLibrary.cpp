#include "platform/projection/engine/definition/DefinitionLibrary.h"

ProjHandle DefinitionLibrary::initialize(const char* definition) {
    const QByteArray text = QByteArray(definition).simplified();
    const auto known = definitions.find(text);
    if (known != definitions.end())
        return &known->second;
    return &definitions.emplace(text, ProjDefinition(text, context, names)).first->second;
}

const ProjDefinition& DefinitionLibrary::definition(ProjHandle handle) {
    return *static_cast<const ProjDefinition*>(handle ? handle : initialize(""));
}

#pragma once

#include "platform/projection/engine/definition/EllipsoidNames.h"
#include "platform/projection/engine/definition/ProjDefinition.h"

#include <map>

/// Keeps each definition that it was asked for once; a handle is the address of one.
class DefinitionLibrary {
public:
    explicit DefinitionLibrary(const ProjContext& context) : context(context), names(context) {}

    ProjHandle initialize(const char* definition);

    /// What the handle stands for; null is the empty definition.
    const ProjDefinition& definition(ProjHandle handle);

private:
    const ProjContext& context;
    EllipsoidNames names;
    std::map<QByteArray, ProjDefinition> definitions;
};

#pragma once

#include "platform/projection/IProjectionLibrary.h"
#include "platform/projection/engine/definition/EllipsoidNames.h"
#include "platform/projection/engine/definition/ProjDefinition.h"

#include <map>

/// The projection library over PROJ. It keeps each definition that it was asked for once; a handle is the address of
/// one.
class DefinitionLibrary : public IProjectionLibrary {
public:
    explicit DefinitionLibrary(const ProjContext& context) : context(context), names(context) {}

    ProjHandle initialize(const char* definition) override;
    const char* define(ProjHandle handle) override;
    ProjEllipsoid ellipsoid(ProjHandle handle) override;
    ProjTowgs84 towgs84(ProjHandle handle) override;

private:
    const ProjDefinition& definitionOf(ProjHandle handle);

    const ProjContext& context;
    EllipsoidNames names;
    std::map<QByteArray, ProjDefinition> definitions;
};

#pragma once

#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/DefinitionLibrary.h"
#include "platform/projection/engine/EpsgRegistry.h"
#include "platform/projection/engine/Geodesy.h"
#include "platform/projection/engine/ProjContext.h"
#include "platform/projection/engine/WktReader.h"

/// Composes the module: one PROJ context, and over it one object behind each interface.
class ProjectionModule : public IProjectionModule {
public:
    ProjectionModule();

    IProjectionLibrary& library() override;
    IWktReader& wktReader() override;
    IGeodesy& geodesy() override;
    IEpsgRegistry& registry() override;

private:
    ProjContext context;
    DefinitionLibrary definitionLibrary;
    WktReader reader;
    Geodesy projGeodesy;
    EpsgRegistry epsgRegistry;
};

#pragma once

#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/EpsgRegistry.h"
#include "platform/projection/engine/computing/Geodesy.h"
#include "platform/projection/engine/definition/DefinitionLibrary.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/wkt/WktReader.h"

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

#pragma once

#include "platform/projection/IProjectionModule.h"
#include "platform/projection/engine/EpsgRegistry.h"
#include "platform/projection/engine/computing/Geodesy.h"
#include "platform/projection/engine/definition/DefinitionLibrary.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/reading/DefinitionReader.h"
#include "platform/projection/engine/wkt/WktReader.h"

/// Composes the module: one PROJ context, and over it one object for each task.
class ProjectionModule : public IProjectionModule {
public:
    ProjectionModule()
        : library(context)
        , reader(context)
        , definitionReader(context, library, reader)
        , geodesy(context)
        , epsgRegistry(context) {}

    ProjHandle initialize(const char* definition) override { return library.initialize(definition); }
    const char* define(ProjHandle handle) override { return library.definition(handle).text(); }
    ProjEllipsoid ellipsoid(ProjHandle handle) override { return library.definition(handle).ellipsoid(); }
    ProjTowgs84 towgs84(ProjHandle handle) override { return library.definition(handle).towgs84(); }

    WktSystem readWkt(const QByteArray& wkt) override { return reader.read(wkt); }
    ReadDefinition readDefinition(const QByteArray& text) override { return definitionReader.read(text); }
    QByteArray exportWkt(const QByteArray& definition, const WktNames& names, WktDialect dialect,
                         bool indented) override {
        return geodesy.exportWkt(definition, names, dialect, indented);
    }
    std::unique_ptr<IProjectedSystem> createSystem(const QByteArray& definition) override {
        return geodesy.createSystem(definition);
    }

    IEpsgRegistry& registry() override { return epsgRegistry; }
    QByteArray version() override { return proj_info().version; }

private:
    ProjContext context;
    DefinitionLibrary library;
    WktReader reader;
    DefinitionReader definitionReader;
    Geodesy geodesy;
    EpsgRegistry epsgRegistry;
};

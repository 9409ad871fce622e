#include "platform/projection/engine/ProjectionModule.h"

ProjectionModule::ProjectionModule()
    : definitionLibrary(context), reader(context), projGeodesy(context), epsgRegistry(context) {
}

IProjectionLibrary& ProjectionModule::library() {
    return definitionLibrary;
}

IWktReader& ProjectionModule::wktReader() {
    return reader;
}

IGeodesy& ProjectionModule::geodesy() {
    return projGeodesy;
}

IEpsgRegistry& ProjectionModule::registry() {
    return epsgRegistry;
}

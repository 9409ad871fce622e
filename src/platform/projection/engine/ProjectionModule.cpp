#include "platform/projection/engine/ProjectionModule.h"

ProjectionModule::ProjectionModule() : definitionLibrary(context) {
}

IProjectionLibrary& ProjectionModule::library() {
    return definitionLibrary;
}

IWktReader& ProjectionModule::wktReader() {
    return reader;
}

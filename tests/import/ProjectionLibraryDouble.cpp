#include "ProjectionLibraryDouble.h"

#include "catalogue/Sdk.h"

#include <QtGlobal>

ProjectionLibraryDouble& ProjectionLibraryDouble::instance() {
    static ProjectionLibraryDouble library;
    return library;
}

void ProjectionLibraryDouble::reset() {
    calls.clear();
    definitionIsNull = false;
    definition.clear();
    ellipsoid = {"GRS80", 6378137.0, 6356752.314140356, "GRS 1980"};
    shift = {};
    system = {};
    moduleIsMissing = false;
    readText.clear();
}

WktSystem ProjectionLibraryDouble::read(const QByteArray& wkt) {
    readText = wkt;
    return system;
}

IProjectionLibrary& ProjectionLibraryDouble::library() {
    qFatal("The import calls the projection library through its functions.");
}

IGeodesy& ProjectionLibraryDouble::geodesy() {
    qFatal("The import does not compute.");
}

IEpsgRegistry& ProjectionLibraryDouble::registry() {
    qFatal("The import does not look into the registry.");
}

IProjectionModule* projectionModule() {
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    return library.moduleIsMissing ? nullptr : &library;
}

const char* GetProjDefine(ProjHandle) {
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    library.calls.append("GetProjDefine");
    return library.definitionIsNull ? nullptr : library.definition.constData();
}

ProjEllipsoid GetProjEllipsoid(ProjHandle) {
    ProjectionLibraryDouble::instance().calls.append("GetProjEllipsoid");
    return ProjectionLibraryDouble::instance().ellipsoid;
}

ProjTowgs84 GetTowgs84(ProjHandle) {
    ProjectionLibraryDouble::instance().calls.append("GetTowgs84");
    return ProjectionLibraryDouble::instance().shift;
}

double Radian2Angle(double* value) {
    ProjectionLibraryDouble::instance().calls.append("Radian2Angle");
    return *value;
}

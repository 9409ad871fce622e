#include "ProjectionLibraryDouble.h"

#include "catalogue/Sdk.h"
#include "import/ProjDefineToCoordParam.h"

ProjectionLibraryDouble& ProjectionLibraryDouble::instance() {
    static ProjectionLibraryDouble library;
    return library;
}

void ProjectionLibraryDouble::reset() {
    calls.clear();
    definitionIsNull = false;
    definition.clear();
    projEllipsoid = {"GRS80", 6378137.0, 6356752.314140356, "GRS 1980"};
    shift = {};
    angleFactor = 1;
    system = {};
    moduleIsMissing = false;
    readText.clear();
}

DictionaryGuard ProjectionLibraryDouble::converted(const QByteArray& text) {
    definition = text;
    DictionaryGuard result;
    projDefineToCoordParam(this, result.get());
    return result;
}

void ProjectionLibraryDouble::record(const char* call, ProjHandle handle) {
    calls.append(handle == this ? QByteArray(call) : QByteArray(call) + '?');
}

ProjHandle ProjectionLibraryDouble::initialize(const char* text) {
    calls.append(QByteArray("InitializeProj ") + text);
    return this;
}

const char* ProjectionLibraryDouble::define(ProjHandle handle) {
    record("GetProjDefine", handle);
    return definitionIsNull ? nullptr : definition.constData();
}

ProjEllipsoid ProjectionLibraryDouble::ellipsoid(ProjHandle handle) {
    record("GetProjEllipsoid", handle);
    return projEllipsoid;
}

ProjTowgs84 ProjectionLibraryDouble::towgs84(ProjHandle handle) {
    record("GetTowgs84", handle);
    return shift;
}

WktSystem ProjectionLibraryDouble::readWkt(const QByteArray& wkt) {
    readText = wkt;
    return system;
}

ReadDefinition ProjectionLibraryDouble::readDefinition(const QByteArray&) {
    qFatal("The import reads files only.");
}

QByteArray ProjectionLibraryDouble::exportWkt(const QByteArray&, const WktNames&, WktDialect, bool) {
    qFatal("The import writes no WKT.");
}

std::unique_ptr<IProjectedSystem> ProjectionLibraryDouble::createSystem(const QByteArray&) {
    qFatal("The import does not compute.");
}

IEpsgRegistry& ProjectionLibraryDouble::registry() {
    qFatal("The import does not look into the registry.");
}

IProjectionModule* projectionModule() {
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    return library.moduleIsMissing ? nullptr : &library;
}

double Radian2Angle(double* value) {
    ProjectionLibraryDouble& library = ProjectionLibraryDouble::instance();
    library.calls.append("Radian2Angle");
    return *value * library.angleFactor;
}

#include "panel/record/ProjectionFields.h"

#include "catalogue/IDictionary.h"

namespace {

using namespace CoordParamKey;

constexpr double farthest = 1e9; ///< metres: a false easting may begin with the number of a zone

ParamField originLatitude(const char* label, double initial = 0.0) {
    return {orgLat, Quantity::Latitude, label, -90.0, 90.0, initial};
}

/// A latitude that can't be a pole's.
ParamField latitude(const char* key, const char* label, double initial) {
    return {key, Quantity::Latitude, label, -90.0, 90.0, initial, true};
}

ParamField longitude(const char* key, const char* label, double initial = 0.0) {
    return {key, Quantity::Longitude, label, -180.0, 180.0, initial};
}

ParamField scale(const char* label, double initial = 1.0) {
    return {factor, Quantity::ScaleFactor, label, 0.1, 10.0, initial};
}

ParamField length(const char* key, const char* label) {
    return {key, Quantity::Length, label, -farthest, farthest, 0.0};
}

// Close to the names that the EPSG registry gives the parameters and methods.
constexpr const char* latitudeOfOrigin = QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of origin");
constexpr const char* centralMeridian = QT_TRANSLATE_NOOP("DlgCoordParam", "Central meridian");
constexpr const char* scaleFactor = QT_TRANSLATE_NOOP("DlgCoordParam", "Scale factor");
constexpr const char* falseEasting = QT_TRANSLATE_NOOP("DlgCoordParam", "False easting");
constexpr const char* falseNorthing = QT_TRANSLATE_NOOP("DlgCoordParam", "False northing");
constexpr const char* standardParallel = QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel");
constexpr const char* latitudeOfCentre = QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of centre");
constexpr const char* longitudeOfCentre = QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of centre");
constexpr const char* azimuthOfLine = QT_TRANSLATE_NOOP("DlgCoordParam", "Azimuth of the line");
constexpr const char* eastingAtCentre = QT_TRANSLATE_NOOP("DlgCoordParam", "Easting at centre");
constexpr const char* northingAtCentre = QT_TRANSLATE_NOOP("DlgCoordParam", "Northing at centre");
constexpr const char* longitudeOfOrigin = QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of origin");
constexpr const char* firstParallel = QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel 1");
constexpr const char* secondParallel = QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel 2");
constexpr const char* firstLatitude = QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of point 1");
constexpr const char* firstLongitude = QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of point 1");
constexpr const char* secondLatitude = QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of point 2");
constexpr const char* secondLongitude = QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of point 2");

/// A scale factor that comes on top of a standard parallel, if at all.
ParamField additionalScale() {
    return {factor, Quantity::ScaleFactor, scaleFactor, 0.1, 10.0, 1.0, false, true};
}

std::vector<ParamField> transverseMercator(double initialScale) {
    return {originLatitude(latitudeOfOrigin), longitude(orgLon, centralMeridian), scale(scaleFactor, initialScale),
            length(falseEast, falseEasting), length(falseNorth, falseNorthing)};
}

} // namespace

const std::vector<ProjectionFields>& ProjectionFields::all() {
    static const ParamField mercatorParallel = {
        cuttingRadius, Quantity::TrueScaleParallel, standardParallel, -90.0, 90.0, 0.0, true};
    static const ParamField polarParallel = {
        cuttingRadius, Quantity::TrueScaleParallel, standardParallel, -90.0, 90.0, 0.0, false, true};
    static const std::vector<ProjectionFields> methods = {
        {ProjectionMethod::TransverseMercator, QT_TRANSLATE_NOOP("DlgCoordParam", "Gauss-Krüger (scale factor 1)"),
         transverseMercator(1.0)},
        // With the scale of UTM at first: the scale 1 would make it the method above.
        {ProjectionMethod::TransverseMercatorScaled, QT_TRANSLATE_NOOP("DlgCoordParam", "Transverse Mercator"),
         transverseMercator(0.9996)},
        {ProjectionMethod::Mercator,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Mercator"),
         {longitude(orgLon, centralMeridian), scale(scaleFactor), length(falseEast, falseEasting),
          length(falseNorth, falseNorthing)}},
        {ProjectionMethod::MercatorStandardParallel,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Mercator (standard parallel)"),
         {mercatorParallel, longitude(orgLon, centralMeridian), length(falseEast, falseEasting),
          length(falseNorth, falseNorthing)}},
        {ProjectionMethod::ObliqueMercatorAzimuth,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Mercator (azimuth)"),
         {latitude(orgLat, latitudeOfCentre, 0.0),
          longitude(orgLon, longitudeOfCentre),
          {azimuth, Quantity::Azimuth, azimuthOfLine, -360.0, 360.0, 0.0},
          scale(scaleFactor),
          length(falseEast, eastingAtCentre),
          length(falseNorth, northingAtCentre)}},
        {ProjectionMethod::Stereographic,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Stereographic"),
         {originLatitude(latitudeOfOrigin), longitude(orgLon, longitudeOfOrigin), polarParallel, additionalScale(),
          length(falseEast, falseEasting), length(falseNorth, falseNorthing)}},
        {ProjectionMethod::ObliqueStereographic,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Stereographic (double)"),
         {originLatitude(latitudeOfOrigin), longitude(orgLon, longitudeOfOrigin), scale(scaleFactor),
          length(falseEast, falseEasting), length(falseNorth, falseNorthing)}},
        {ProjectionMethod::LambertOneParallel,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Lambert Conic Conformal (1SP)"),
         {originLatitude(latitudeOfOrigin, 45.0), longitude(orgLon, centralMeridian),
          latitude(parallel1Lat, standardParallel, 45.0), scale(scaleFactor), length(falseEast, falseEasting),
          length(falseNorth, falseNorthing)}},
        {ProjectionMethod::LambertTwoParallels,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Lambert Conic Conformal (2SP)"),
         {originLatitude(latitudeOfOrigin), longitude(orgLon, centralMeridian),
          latitude(parallel1Lat, firstParallel, 30.0), latitude(parallel2Lat, secondParallel, 60.0), additionalScale(),
          length(falseEast, falseEasting), length(falseNorth, falseNorthing)}},
        {ProjectionMethod::ObliqueMercatorTwoPoints,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Mercator (two points)"),
         {latitude(orgLat, latitudeOfCentre, 0.0), latitude(lat1, firstLatitude, 30.0), longitude(lon1, firstLongitude),
          latitude(lat2, secondLatitude, 60.0), longitude(lon2, secondLongitude, 30.0), scale(scaleFactor),
          length(falseEast, eastingAtCentre), length(falseNorth, northingAtCentre)}},
        {ProjectionMethod::CassiniSoldner,
         QT_TRANSLATE_NOOP("DlgCoordParam", "Cassini-Soldner"),
         {originLatitude(latitudeOfOrigin), longitude(orgLon, centralMeridian), length(falseEast, falseEasting),
          length(falseNorth, falseNorthing)}},
    };
    return methods;
}

const ProjectionFields* ProjectionFields::find(int code) {
    for (const ProjectionFields& projection : all()) {
        if (int(projection.method) == code)
            return &projection;
    }
    return nullptr;
}

const ProjectionFields* ProjectionFields::ofRecord(const IDictionary& record) {
    bool isCode = false;
    const int code = QByteArray(record.getValue(projectType)).trimmed().toInt(&isCode);
    return isCode ? find(code) : nullptr;
}

const ParamField* ProjectionFields::field(const char* key) const {
    for (const ParamField& field : fields) {
        if (field.is(key))
            return &field;
    }
    return nullptr;
}

#include "panel/record/ProjectionFields.h"

#include "catalogue/IDictionary.h"
#include "catalogue/MethodParameters.h"

#include <algorithm>
#include <iterator>

namespace {

/// A parameter as the panel shows it.
struct ShownParameter {
    const MethodParameter* parameter;
    const char* label; ///< close to the name that the EPSG registry gives it
    double initial;
    bool endsExcluded = false; ///< a latitude that can't be a pole's
};

/// In the order in which a geodesist reads them.
constexpr ShownParameter shownParameters[] = {
    {&Parameter::standardParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel"), 0.0, true},
    {&Parameter::latitudeOfOrigin, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of origin"), 0.0},
    {&Parameter::latitudeOfCentre, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of centre"), 0.0, true},
    {&Parameter::centralMeridian, QT_TRANSLATE_NOOP("DlgCoordParam", "Central meridian"), 0.0},
    {&Parameter::longitudeOfOrigin, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of origin"), 0.0},
    {&Parameter::longitudeOfCentre, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of centre"), 0.0},
    {&Parameter::firstLatitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of point 1"), 30.0, true},
    {&Parameter::firstLongitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of point 1"), 0.0},
    {&Parameter::secondLatitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude of point 2"), 60.0, true},
    {&Parameter::secondLongitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude of point 2"), 30.0},
    {&Parameter::azimuthOfLine, QT_TRANSLATE_NOOP("DlgCoordParam", "Azimuth of the line"), 0.0},
    {&Parameter::onlyParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel"), 45.0, true},
    {&Parameter::firstParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel 1"), 30.0, true},
    {&Parameter::secondParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel 2"), 60.0, true},
    {&Parameter::polarParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Standard parallel"), 0.0},
    {&Parameter::scaleFactor, QT_TRANSLATE_NOOP("DlgCoordParam", "Scale factor"), 1.0},
    {&Parameter::scaleOnParallels, QT_TRANSLATE_NOOP("DlgCoordParam", "Scale factor"), 1.0},
    {&Parameter::polarScale, QT_TRANSLATE_NOOP("DlgCoordParam", "Scale factor"), 1.0},
    {&Parameter::falseEasting, QT_TRANSLATE_NOOP("DlgCoordParam", "False easting"), 0.0},
    {&Parameter::falseNorthing, QT_TRANSLATE_NOOP("DlgCoordParam", "False northing"), 0.0},
    {&Parameter::eastingAtCentre, QT_TRANSLATE_NOOP("DlgCoordParam", "Easting at centre"), 0.0},
    {&Parameter::northingAtCentre, QT_TRANSLATE_NOOP("DlgCoordParam", "Northing at centre"), 0.0},
};

ParamField fieldOf(const ShownParameter& shown) {
    const auto field = [&shown](Quantity quantity, double minimum, double maximum, bool optional = false) {
        return ParamField{shown.parameter->recordKey, quantity, shown.label, minimum, maximum, shown.initial,
                          shown.endsExcluded,         optional};
    };
    constexpr double farthest = 1e9; // metres: a false easting may begin with the number of a zone
    switch (shown.parameter->kind) {
    case Parameter::Kind::Latitude:
        return field(Quantity::Latitude, -90.0, 90.0);
    case Parameter::Kind::Longitude:
        return field(Quantity::Longitude, -180.0, 180.0);
    case Parameter::Kind::Azimuth:
        return field(Quantity::Azimuth, -360.0, 360.0);
    case Parameter::Kind::StandardParallel:
        return field(Quantity::StandardParallel, -90.0, 90.0);
    case Parameter::Kind::PolarParallel:
        return field(Quantity::StandardParallel, -90.0, 90.0, true);
    case Parameter::Kind::Scale:
        return field(Quantity::ScaleFactor, 0.1, 10.0);
    case Parameter::Kind::ScaleOnParallels:
    case Parameter::Kind::PolarScale:
        return field(Quantity::ScaleFactor, 0.1, 10.0, true);
    case Parameter::Kind::Length:
        break;
    }
    return field(Quantity::Length, -farthest, farthest);
}

struct NamedMethod {
    ProjectionMethod method;
    const char* name; ///< close to the one that the EPSG registry gives it
};

constexpr NamedMethod namedMethods[] = {
    {ProjectionMethod::TransverseMercator, QT_TRANSLATE_NOOP("DlgCoordParam", "Gauss-Krüger (scale factor 1)")},
    {ProjectionMethod::TransverseMercatorScaled, QT_TRANSLATE_NOOP("DlgCoordParam", "Transverse Mercator")},
    {ProjectionMethod::Mercator, QT_TRANSLATE_NOOP("DlgCoordParam", "Mercator")},
    {ProjectionMethod::MercatorStandardParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Mercator (standard parallel)")},
    {ProjectionMethod::ObliqueMercatorAzimuth, QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Mercator (azimuth)")},
    {ProjectionMethod::Stereographic, QT_TRANSLATE_NOOP("DlgCoordParam", "Stereographic")},
    {ProjectionMethod::ObliqueStereographic, QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Stereographic (double)")},
    {ProjectionMethod::LambertOneParallel, QT_TRANSLATE_NOOP("DlgCoordParam", "Lambert Conic Conformal (1SP)")},
    {ProjectionMethod::LambertTwoParallels, QT_TRANSLATE_NOOP("DlgCoordParam", "Lambert Conic Conformal (2SP)")},
    {ProjectionMethod::ObliqueMercatorTwoPoints, QT_TRANSLATE_NOOP("DlgCoordParam", "Oblique Mercator (two points)")},
    {ProjectionMethod::CassiniSoldner, QT_TRANSLATE_NOOP("DlgCoordParam", "Cassini-Soldner")},
};

/// A system that is made a transverse Mercator one starts with the scale of UTM (the scale 1 would make it
/// Gauss-Krüger), and a cone with one parallel has its origin on it.
void adjustInitial(ParamField& field, ProjectionMethod method) {
    if (method == ProjectionMethod::TransverseMercatorScaled && field.is(CoordParamKey::factor))
        field.initial = 0.9996;
    if (method == ProjectionMethod::LambertOneParallel && field.is(CoordParamKey::orgLat))
        field.initial = 45.0;
}

ProjectionFields fieldsOf(const NamedMethod& named) {
    ProjectionFields projection{named.method, named.name, {}};
    const MethodParameters& parameters = *MethodParameters::find(int(named.method));
    for (const ShownParameter& shown : shownParameters) {
        if (std::find(parameters.begin(), parameters.end(), shown.parameter) == parameters.end())
            continue;
        projection.fields.push_back(fieldOf(shown));
        adjustInitial(projection.fields.back(), named.method);
    }
    return projection;
}

} // namespace

const std::vector<ProjectionFields>& ProjectionFields::all() {
    static const std::vector<ProjectionFields> methods = [] {
        std::vector<ProjectionFields> made;
        std::transform(std::begin(namedMethods), std::end(namedMethods), std::back_inserter(made), fieldsOf);
        return made;
    }();
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
    const int code = QByteArray(record.getValue(CoordParamKey::projectType)).trimmed().toInt(&isCode);
    return isCode ? find(code) : nullptr;
}

const ParamField* ProjectionFields::field(const char* key) const {
    for (const ParamField& field : fields) {
        if (field.is(key))
            return &field;
    }
    return nullptr;
}

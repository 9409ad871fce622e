#include "panel/record/ProjectionAdvice.h"

#include "catalogue/Angle.h"
#include "catalogue/Dictionary.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <QRegularExpression>

#include <cmath>

namespace Key = CoordParamKey;

namespace {

double number(const IDictionary& record, const char* key) {
    return dictionary_number(record, key, 0.0);
}

bool isPolar(const IDictionary& record) {
    return std::fabs(number(record, Key::orgLat)) == 90.0;
}

bool isTransverseMercator(const ProjectionFields& projection) {
    return projection.method == ProjectionMethod::TransverseMercator ||
           projection.method == ProjectionMethod::TransverseMercatorScaled;
}

/// The distance between two longitudes in degrees, 0 to 180.
double apart(double longitude, double other) {
    return std::fabs(std::remainder(longitude - other, 360.0));
}

} // namespace

QString ProjectionAdvice::problem(const IDictionary& record) {
    const ProjectionFields* projection = ProjectionFields::ofRecord(record);
    if (!coordParamDefinesProjection(record))
        return missing(projection, record);
    if (!projection || !isDegenerate(*projection, record))
        return QString();
    return projection->method == ProjectionMethod::ObliqueMercatorTwoPoints
               ? tr("No projection: latitudes of the points equal, or the first 0.")
               : tr("No projection: the standard parallels cancel out.");
}

QString ProjectionAdvice::missing(const ProjectionFields* projection, const IDictionary& record) {
    if (!DatumFields::semiMajorAxis().isSound(record) || !DatumFields::inverseFlattening().isSound(record))
        return tr("No projection yet: the system has no ellipsoid.");
    const char* type = record.getValue(Key::projectType);
    if (!type)
        return tr("No projection yet: choose the method.");
    if (!projection)
        return tr("No projection: the method \"%1\" is unknown.").arg(QString::fromLocal8Bit(type));
    if (fitsNoMethod(record))
        return tr("No projection: the definition fits none of the methods.");
    for (const ParamField& field : projection->fields) {
        if (!record.getValue(field.key) || !field.isSound(record))
            return tr("No projection: \"%1\" is missing or wrong.").arg(field.labelText());
    }
    if (projection->method == ProjectionMethod::Stereographic && isPolar(record) && StandardParallel::ofRecord(record))
        return tr("No projection: a standard parallel needs the scale factor 1.");
    return tr("No projection: the scale factor is missing.");
}

bool ProjectionAdvice::fitsNoMethod(const IDictionary& record) {
    const ProjectionFields* projection = ProjectionFields::ofRecord(record);
    return projection && projection->method == ProjectionMethod::TransverseMercator && record.getValue(Key::factor) &&
           number(record, Key::factor) != 1.0;
}

bool ProjectionAdvice::isDegenerate(const ProjectionFields& projection, const IDictionary& record) {
    // The limits are PROJ's.
    constexpr double same = Angle::toDegrees(1e-10);
    constexpr double sameForPoints = Angle::toDegrees(1e-7);
    switch (projection.method) {
    case ProjectionMethod::LambertOneParallel:
        return std::fabs(number(record, Key::parallel1Lat)) < same;
    case ProjectionMethod::LambertTwoParallels:
        return std::fabs(number(record, Key::parallel1Lat) + number(record, Key::parallel2Lat)) < same;
    case ProjectionMethod::ObliqueMercatorTwoPoints:
        return std::fabs(number(record, Key::lat1) - number(record, Key::lat2)) <= sameForPoints ||
               std::fabs(number(record, Key::lat1)) <= sameForPoints;
    default:
        return false;
    }
}

QString ProjectionAdvice::warning(const ProjectionFields& projection, const ParamField& field,
                                  const IDictionary& record) {
    double value;
    if (!field.read(record, &value) || !field.accepts(value))
        return QString();
    if (field.quantity == Quantity::ScaleFactor)
        return scaleWarning(projection, record, value);
    if (field.quantity == Quantity::StandardParallel)
        return parallelWarning(projection, record, value);
    if (field.is(Key::parallel1Lat) || field.is(Key::parallel2Lat))
        return coneWarning(projection, record);
    if (field.quantity == Quantity::Longitude && isTransverseMercator(projection))
        return meridianWarning(record, value);
    if (field.quantity == Quantity::Azimuth)
        return azimuthWarning(value);
    return QString();
}

QString ProjectionAdvice::scaleWarning(const ProjectionFields& projection, const IDictionary& record, double factor) {
    if (projection.method == ProjectionMethod::Stereographic && isPolar(record) && StandardParallel::ofRecord(record))
        return factor == 1.0 ? QString() : tr("Must be 1: the standard parallel sets the scale.");
    return std::fabs(factor - 1.0) > 0.01 ? tr("Unusual: scale factors lie close to 1.") : QString();
}

QString ProjectionAdvice::parallelWarning(const ProjectionFields& projection, const IDictionary& record,
                                          double latitude) {
    if (projection.method == ProjectionMethod::Stereographic)
        return isPolar(record) ? QString() : tr("Without effect: the origin is no pole.");
    return latitude == 0.0 ? tr("With 0° this is the plain Mercator projection.") : QString();
}

QString ProjectionAdvice::coneWarning(const ProjectionFields& projection, const IDictionary& record) {
    if (projection.method == ProjectionMethod::LambertOneParallel)
        return number(record, Key::parallel1Lat) != number(record, Key::orgLat)
                   ? tr("Usually equal to the latitude of origin.")
                   : QString();
    // Where they cancel altogether, problem() says so.
    return std::fabs(number(record, Key::parallel1Lat) + number(record, Key::parallel2Lat)) < 1.0
               ? tr("The standard parallels nearly cancel out.")
               : QString();
}

/// The method's formulas know the azimuth's sine only.
QString ProjectionAdvice::azimuthWarning(double azimuth) {
    const double turn = std::remainder(azimuth, 360.0);
    if (std::fabs(turn) <= 90.0)
        return QString();
    const double other = std::copysign(180.0, turn) - turn;
    return tr("Gives the line of %1°. For the line of this azimuth, type %2°.")
        .arg(NumberText::shortest(other), NumberText::shortest(-other + 0.0));
}

QString ProjectionAdvice::meridianWarning(const IDictionary& record, double meridian) {
    // A system that calls itself UTM.
    static const QRegularExpression utm("\\bUTM *(?:zone)? *([0-9]{1,2})(?![0-9])",
                                        QRegularExpression::CaseInsensitiveOption);
    const int utmZone = utm.match(QString::fromLocal8Bit(record.getValue(Key::name))).captured(1).toInt();
    if (utmZone >= 1 && utmZone <= 60 && apart(meridian, 6.0 * utmZone - 183.0) > 1e-9)
        return tr("Zone %1 of UTM has the central meridian %2°.").arg(utmZone).arg(6 * utmZone - 183);

    // Gauss-Krüger eastings begin with the zone: 3 or 6 degrees wide, or 1 degree in Finland. Below zone 8 some
    // countries number otherwise.
    const double easting = number(record, Key::falseEast), zone = std::floor(easting / 1e6);
    if (number(record, Key::factor) != 1.0 || zone < 8.0 || zone > 120.0 || easting - zone * 1e6 != 500000.0)
        return QString();
    const bool fits =
        apart(meridian, 3.0 * zone) < 1e-9 || apart(meridian, 6.0 * zone - 3.0) < 1e-9 || apart(meridian, zone) < 1e-9;
    return fits ? QString() : tr("Does not fit zone %1 of the false easting.").arg(zone);
}

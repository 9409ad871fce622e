#include "import/CoordParamToProjDefine.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "platform/projection/ProjNumber.h"

#include <cmath>
#include <limits>

namespace {

constexpr double degree = 3.141592653589793 / 180;

/// What a conversion and its inverse add to a number lies beyond the twelfth decimal: without it, 42 comes back as 42.
double withoutRoundingError(double value) {
    return std::round(value * 1e12) / 1e12;
}

/// Puts a definition together from a record. It is complete until a number that it needs is missing or out of range.
class DefinitionText {
public:
    explicit DefinitionText(const IDictionary& record) : record(record) {}

    double number(const char* key) const {
        return dictionary_number(record, key, std::numeric_limits<double>::quiet_NaN());
    }

    void require(bool condition) { complete = complete && condition; }

    void add(const char* item, double value) {
        require(std::isfinite(value));
        if (complete)
            text += QByteArray(" +") + item + '=' + projNumber(value);
    }

    void addFrom(const char* item, const char* key) { add(item, number(key)); }

    void addProjection(const char* name) { text += QByteArray("+proj=") + name; }

    void addScale() {
        const double factor = number(CoordParamKey::factor);
        require(factor > 0);
        add("k_0", factor);
    }

    void append(const QByteArray& items) { text += items; }

    bool isComplete() const { return complete; }

    QByteArray result() const { return complete ? text : QByteArray(); }

private:
    const IDictionary& record;
    QByteArray text;
    bool complete = true;
};

/// The latitude whose parallel of true scale has the record's cutting radius, a cos(latitude) = radius; 0 to 90
/// degrees. NaN for a radius outside 0 to a.
double trueScaleLatitude(const DefinitionText& definition) {
    const double latitude =
        std::acos(definition.number(CoordParamKey::cuttingRadius) / definition.number(CoordParamKey::ellipsoidA));
    return withoutRoundingError(latitude / degree);
}

void addTransverseMercator(DefinitionText& definition) {
    definition.addProjection("tmerc");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    definition.addScale();
}

void addMercator(DefinitionText& definition) {
    definition.addProjection("merc");
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    definition.addScale();
}

void addMercatorStandardParallel(DefinitionText& definition) {
    definition.addProjection("merc");
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    const double latitude = trueScaleLatitude(definition);
    definition.require(latitude < 90);
    definition.add("lat_ts", latitude);
}

void addObliqueMercatorAzimuth(DefinitionText& definition) {
    definition.addProjection("omerc");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lonc", CoordParamKey::orgLon);
    definition.addFrom("alpha", CoordParamKey::azimuth);
    definition.addScale();
}

void addObliqueMercatorTwoPoints(DefinitionText& definition) {
    definition.addProjection("omerc");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lat_1", CoordParamKey::lat1);
    definition.addFrom("lon_1", CoordParamKey::lon1);
    definition.addFrom("lat_2", CoordParamKey::lat2);
    definition.addFrom("lon_2", CoordParamKey::lon2);
    definition.addScale();
}

/// A polar one has its scale either at the pole or through a parallel of true scale on the pole's side; an oblique one
/// has it at its centre, and PROJ takes no parallel there.
void addStereographic(DefinitionText& definition) {
    definition.addProjection("stere");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    const double latitude = definition.number(CoordParamKey::orgLat);
    const double trueScale = trueScaleLatitude(definition);
    definition.require(std::isfinite(trueScale));
    if (std::abs(latitude) != 90 || trueScale == 90) {
        definition.addScale();
        return;
    }
    const double factor = definition.number(CoordParamKey::factor);
    definition.require(factor == 1 || factor == 0);
    definition.add("lat_ts", std::copysign(trueScale, latitude));
}

void addObliqueStereographic(DefinitionText& definition) {
    definition.addProjection("sterea");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    definition.addScale();
}

void addLambertOneParallel(DefinitionText& definition) {
    definition.addProjection("lcc");
    definition.addFrom("lat_1", CoordParamKey::parallel1Lat);
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    definition.addScale();
}

void addLambertTwoParallels(DefinitionText& definition) {
    definition.addProjection("lcc");
    definition.addFrom("lat_1", CoordParamKey::parallel1Lat);
    definition.addFrom("lat_2", CoordParamKey::parallel2Lat);
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
    // The parallels alone give the scale; a factor (Michigan's variant, EPSG method 1051) is rare, and 0 means none.
    if (definition.number(CoordParamKey::factor) == 0)
        definition.add("k_0", 1);
    else
        definition.addScale();
}

void addCassiniSoldner(DefinitionText& definition) {
    definition.addProjection("cass");
    definition.addFrom("lat_0", CoordParamKey::orgLat);
    definition.addFrom("lon_0", CoordParamKey::orgLon);
}

void addProjectionOfMethod(DefinitionText& definition) {
    const double method = definition.number(CoordParamKey::projectType);
    definition.require(method >= 0 && method <= 11 && method == std::floor(method));
    if (!definition.isComplete())
        return;
    switch (static_cast<ProjectionMethod>(static_cast<int>(method))) {
    case ProjectionMethod::TransverseMercator:
        definition.require(definition.number(CoordParamKey::factor) == 1);
        return addTransverseMercator(definition);
    case ProjectionMethod::TransverseMercatorScaled:
        return addTransverseMercator(definition);
    case ProjectionMethod::Mercator:
        return addMercator(definition);
    case ProjectionMethod::MercatorStandardParallel:
        return addMercatorStandardParallel(definition);
    case ProjectionMethod::ObliqueMercatorAzimuth:
        return addObliqueMercatorAzimuth(definition);
    case ProjectionMethod::Stereographic:
        return addStereographic(definition);
    case ProjectionMethod::ObliqueStereographic:
        return addObliqueStereographic(definition);
    case ProjectionMethod::LambertOneParallel:
        return addLambertOneParallel(definition);
    case ProjectionMethod::LambertTwoParallels:
        return addLambertTwoParallels(definition);
    case ProjectionMethod::ObliqueMercatorTwoPoints:
        return addObliqueMercatorTwoPoints(definition);
    case ProjectionMethod::CassiniSoldner:
        return addCassiniSoldner(definition);
    }
    definition.require(false);
}

void addEllipsoid(DefinitionText& definition) {
    const double a = definition.number(CoordParamKey::ellipsoidA);
    const double inverseFlattening = definition.number(CoordParamKey::ellipsoidF);
    definition.require(a > 0 && (inverseFlattening == 0 || inverseFlattening > 1));
    definition.add("a", a);
    if (inverseFlattening == 0)
        definition.add("b", a);
    else
        definition.add("rf", inverseFlattening);
}

void addShift(DefinitionText& definition, const IDictionary& record) {
    if (dictionary_number(record, CoordParamKey::shiftType, 0) != 2)
        return;
    const auto value = [&record](const char* key) { return projNumber(dictionary_number(record, key, 0)); };
    const auto arcSeconds = [&record](const char* key) {
        return projNumber(withoutRoundingError(dictionary_number(record, key, 0) * 3600));
    };
    definition.append(" +towgs84=" + value(CoordParamKey::shiftDx) + ',' + value(CoordParamKey::shiftDy) + ',' +
                      value(CoordParamKey::shiftDz) + ',' + arcSeconds(CoordParamKey::shiftRx) + ',' +
                      arcSeconds(CoordParamKey::shiftRy) + ',' + arcSeconds(CoordParamKey::shiftRz) + ',' +
                      value(CoordParamKey::shiftPpm));
}

} // namespace

QByteArray coordParamToProjDefine(const IDictionary& record) {
    DefinitionText definition(record);
    addProjectionOfMethod(definition);
    definition.addFrom("x_0", CoordParamKey::falseEast);
    definition.addFrom("y_0", CoordParamKey::falseNorth);
    addEllipsoid(definition);
    addShift(definition, record);
    definition.append(" +units=m +no_defs");
    return definition.result();
}

bool coordParamDefinesProjection(const IDictionary& record) {
    return !coordParamToProjDefine(record).isEmpty();
}

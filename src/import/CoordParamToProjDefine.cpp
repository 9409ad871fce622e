#include "import/CoordParamToProjDefine.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "catalogue/MethodParameters.h"
#include "import/ParallelRadius.h"
#include "platform/projection/ProjNumber.h"

#include <cmath>
#include <limits>

namespace {

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

    void addScale(const char* item, double factor) {
        require(factor > 0);
        add(item, factor);
    }

    void start(const char* projection) { text = QByteArray("+proj=") + projection; }

    void append(const QByteArray& items) { text += items; }

    bool isComplete() const { return complete; }

    QByteArray result() const { return complete ? text : QByteArray(); }

private:
    const IDictionary& record;
    QByteArray text;
    bool complete = true;
};

/// The standard parallel; see ParallelRadius::toLatitude().
double standardParallel(const DefinitionText& definition) {
    return withoutRoundingError(ParallelRadius::toLatitude(definition.number(CoordParamKey::ellipsoidA),
                                                           definition.number(CoordParamKey::cuttingRadius)));
}

/// Whether a stereographic projection has its scale through a parallel. An oblique one has it at its centre, and PROJ
/// takes no parallel there.
bool hasPolarParallel(const DefinitionText& definition) {
    return std::abs(definition.number(CoordParamKey::orgLat)) == 90 && standardParallel(definition) != 90;
}

void addParameter(DefinitionText& definition, const MethodParameter& parameter) {
    const double value = definition.number(parameter.recordKey);
    switch (parameter.kind) {
    case Parameter::Kind::Latitude:
    case Parameter::Kind::Longitude:
    case Parameter::Kind::Azimuth:
    case Parameter::Kind::Length:
        return definition.add(parameter.projKey, value);
    case Parameter::Kind::StandardParallel: {
        const double latitude = standardParallel(definition);
        definition.require(latitude < 90);
        return definition.add(parameter.projKey, latitude);
    }
    case Parameter::Kind::PolarParallel: {
        const double latitude = standardParallel(definition);
        definition.require(std::isfinite(latitude));
        // It lies on the pole's side.
        if (hasPolarParallel(definition))
            definition.add(parameter.projKey, std::copysign(latitude, definition.number(CoordParamKey::orgLat)));
        return;
    }
    case Parameter::Kind::PolarScale:
        if (!hasPolarParallel(definition))
            return definition.addScale(parameter.projKey, value);
        return definition.require(value == 1 || value == 0);
    case Parameter::Kind::ScaleOnParallels:
        // A factor (Michigan's variant, EPSG method 1051) is rare.
        return definition.addScale(parameter.projKey, value == 0 ? 1 : value);
    case Parameter::Kind::Scale:
        return definition.addScale(parameter.projKey, value);
    }
}

void addProjection(DefinitionText& definition) {
    const double code = definition.number(CoordParamKey::projectType);
    const MethodParameters* const method = MethodParameters::find(code > -1 && code < 99 ? int(code) : -1);
    definition.require(method && code == std::floor(code));
    if (!definition.isComplete())
        return;
    if (method->method == ProjectionMethod::TransverseMercator)
        definition.require(definition.number(CoordParamKey::factor) == 1);
    definition.start(method->projName);
    for (const MethodParameter* const parameter : *method)
        addParameter(definition, *parameter);
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
    addProjection(definition);
    addEllipsoid(definition);
    addShift(definition, record);
    definition.append(" +units=m +no_defs");
    return definition.result();
}

bool coordParamDefinesProjection(const IDictionary& record) {
    return !coordParamToProjDefine(record).isEmpty();
}

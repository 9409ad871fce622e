#include "panel/record/CoordParamEditor.h"

#include "import/ParallelRadius.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <cmath>
#include <cstring>

using namespace CoordParamKey;

namespace {

constexpr char noSeparator = '\0';

bool sameText(const char* text, const char* other) {
    return text && other && std::strcmp(text, other) == 0;
}

/// Whether the method's standard parallel is for the user to choose.
bool hasParallel(std::optional<ProjectionMethod> method) {
    return method == ProjectionMethod::MercatorStandardParallel || method == ProjectionMethod::Stereographic;
}

} // namespace

void CoordParamEditor::setRecord(const IDictionary& record) {
    dictionary_assign(values.get(), &record);
    forgetReplaced();
}

void CoordParamEditor::forgetReplaced() {
    replaced->clear();
    initial->clear();
    replacedRadius->clear();
}

std::optional<double> CoordParamEditor::semiMajorAxis() const {
    double a;
    return DatumFields::semiMajorAxis().read(*values, &a) && a > 0.0 ? std::optional<double>(a) : std::nullopt;
}

bool CoordParamEditor::setField(const ParamField& field, const FieldInput& input) {
    double number;
    if (!input.valid)
        return false;
    const std::optional<double> axis = semiMajorAxis(), parallel = StandardParallel::ofRecord(*values);
    if (field.quantity == Quantity::StandardParallel) {
        // Without an axis there is no radius to keep the parallel by.
        const bool isNone = field.optional && input.value == 0.0;
        return axis && putNumber(field.key, isNone ? 0.0 : ParallelRadius::ofLatitude(*axis, input.value));
    }
    if (sameText(values->getValue(field.key), input.text.constData()) && !values->getNumber(field.key, &number))
        return false;
    values->setText(field.key, input.text.constData());
    if (field.is(factor))
        followFactor();
    else if (field.is(ellipsoidA))
        followAxis(axis, parallel);
    return true;
}

/// Sets a number that is computed, unless the record holds it already, give or take its last bits.
bool CoordParamEditor::putNumber(const char* key, double value) {
    const bool isSame = values->getValue(key) &&
                        std::fabs(value - dictionary_number(*values, key, value + 1.0)) <= std::fabs(value) * 4e-16;
    if (!isSame)
        dic_set_value(values.get(), key, "%f", value);
    return !isSame;
}

void CoordParamEditor::setEllipsoid(const IDictionary& ellipsoid) {
    const std::optional<double> axis = semiMajorAxis(), parallel = StandardParallel::ofRecord(*values);
    for (const char* key : {ellipsoidName, ellipsoidA, ellipsoidF})
        dictionary_copy(values.get(), &ellipsoid, key, noSeparator);
    followAxis(axis, parallel);
}

std::optional<ProjectionMethod> CoordParamEditor::method() const {
    const ProjectionFields* fields = ProjectionFields::ofRecord(*values);
    return fields ? std::optional<ProjectionMethod>(fields->method) : std::nullopt;
}

void CoordParamEditor::followFactor() {
    const std::optional<ProjectionMethod> now = method();
    if (now != ProjectionMethod::TransverseMercator && now != ProjectionMethod::TransverseMercatorScaled)
        return;
    const ProjectionMethod right = dictionary_number(*values, factor, 0.0) == 1.0
                                       ? ProjectionMethod::TransverseMercator
                                       : ProjectionMethod::TransverseMercatorScaled;
    if (right != now)
        dic_set_value(values.get(), projectType, "%d", int(right));
}

void CoordParamEditor::followAxis(std::optional<double> axisBefore, std::optional<double> parallel) {
    if (semiMajorAxis() == axisBefore)
        return;
    if (method() == ProjectionMethod::Mercator)
        setParallel(0.0);
    else if (method() == ProjectionMethod::MercatorStandardParallel)
        setParallel(parallel.value_or(0.0));
    else if (method() == ProjectionMethod::Stereographic)
        setParallel(parallel);
}

void CoordParamEditor::setParallel(std::optional<double> parallel) {
    const std::optional<double> a = semiMajorAxis();
    if (a)
        putNumber(cuttingRadius, parallel ? ParallelRadius::ofLatitude(*a, *parallel) : 0.0);
}

void CoordParamEditor::setMethod(ProjectionMethod chosen) {
    const ProjectionFields* fields = ProjectionFields::find(int(chosen));
    if (!fields)
        return;
    const std::optional<ProjectionMethod> before = method();
    restoreReplaced();
    dic_set_value(values.get(), projectType, "%d", int(chosen));
    chooseParallel(before);
    complete(*fields);
}

void CoordParamEditor::chooseParallel(std::optional<ProjectionMethod> before) {
    const bool hadParallel = hasParallel(before), hasParallelNow = hasParallel(method());
    if (hadParallel && !hasParallelNow) {
        for (const char* key : {ellipsoidA, cuttingRadius})
            dictionary_copy(replacedRadius.get(), values.get(), key, noSeparator);
    } else if (!hadParallel && hasParallelNow && replacedRadius->getValue(cuttingRadius)) {
        dictionary_copy(values.get(), replacedRadius.get(), cuttingRadius, noSeparator);
        if (!sameText(values->getValue(ellipsoidA), replacedRadius->getValue(ellipsoidA)))
            setParallel(StandardParallel::ofRecord(*replacedRadius));
    }
    const std::optional<double> parallel = StandardParallel::ofRecord(*values);
    if (method() == ProjectionMethod::Mercator || (method() == ProjectionMethod::MercatorStandardParallel && !parallel))
        setParallel(0.0);
    else if (method() == ProjectionMethod::Stereographic && (!parallel || *parallel == 0.0))
        setParallel(std::nullopt); // the equator is no parallel of a polar projection
}

double CoordParamEditor::initialValue(const ProjectionFields& fields, const ParamField& field) const {
    // With one parallel the origin usually lies on it.
    const double origin = dictionary_number(*values, orgLat, 0.0);
    const bool isOriginsParallel = fields.method == ProjectionMethod::LambertOneParallel && field.is(parallel1Lat) &&
                                   origin != 0.0 && field.accepts(origin);
    return isOriginsParallel ? origin : field.initial;
}

void CoordParamEditor::complete(const ProjectionFields& fields) {
    const bool degenerate = ProjectionAdvice::isDegenerate(fields, *values);
    for (const ParamField& field : fields.fields) {
        if (field.quantity == Quantity::StandardParallel)
            continue;
        const bool isPartOfLine = field.quantity == Quantity::Latitude && !field.is(orgLat);
        double value;
        if (!field.read(*values, &value) || !field.accepts(value) || (degenerate && isPartOfLine))
            put(field.key, initialValue(fields, field));
    }
    // Gauss-Krüger has the scale factor 1, and only Gauss-Krüger; beside a standard parallel it is 1 as well.
    const bool isScaleOne = dictionary_number(*values, factor, 0.0) == 1.0;
    const bool mustBeOne = fields.method == ProjectionMethod::TransverseMercator ||
                           (fields.method == ProjectionMethod::Stereographic && StandardParallel::ofRecord(*values));
    if ((mustBeOne && !isScaleOne) || (fields.method == ProjectionMethod::TransverseMercatorScaled && isScaleOne))
        put(factor, fields.field(factor)->initial);
}

void CoordParamEditor::put(const char* key, double value) {
    dictionary_copy(replaced.get(), values.get(), key, noSeparator);
    dic_set_value(values.get(), key, "%f", value);
    dictionary_copy(initial.get(), values.get(), key, noSeparator);
}

void CoordParamEditor::restoreReplaced() {
    for (int i = 0; i < replaced->count(); ++i) {
        const char* key = replaced->getKey(i);
        if (sameText(values->getValue(key), initial->getValue(key)))
            dictionary_copy(values.get(), replaced.get(), key, noSeparator);
    }
    replaced->clear();
    initial->clear();
}

void CoordParamEditor::setShift(bool sevenParameters) {
    dic_set_value(values.get(), shiftType, "%d", sevenParameters ? 2 : 0);
    if (!sevenParameters)
        return;
    for (const ParamField& field : DatumFields::shift()) {
        if (!field.isSound(*values))
            dic_set_value(values.get(), field.key, "%f", field.initial);
    }
}

void CoordParamEditor::reverseRotations() {
    for (const char* key : {shiftRx, shiftRy, shiftRz}) {
        if (dictionary_number(*values, key, 0.0) == 0.0)
            continue;
        // The text is turned as it stands, so that turning twice gives back the same text.
        QByteArray text = QByteArray(values->getValue(key)).trimmed();
        if (text.startsWith('-') || text.startsWith('+'))
            text = (text.startsWith('+') ? "-" : "") + text.mid(1);
        else
            text.prepend('-');
        double number;
        if (values->getNumber(key, &number))
            values->setNumber(key, text.constData(), -number);
        else
            values->setText(key, text.constData());
    }
}

void CoordParamEditor::setGeoid(const char* name) {
    if (name && *name)
        values->setText(geoidName, name);
    else
        values->remove(geoidName);
}

void CoordParamEditor::replaceValues(const IDictionary& source) {
    const std::optional<double> axis = semiMajorAxis(), parallel = StandardParallel::ofRecord(*values);
    if (source.getValue(shiftType)) {
        for (const ParamField& field : DatumFields::shift())
            values->remove(field.key);
    }
    for (int i = 0; i < source.count(); ++i)
        dictionary_copy(values.get(), &source, source.getKey(i), noSeparator);
    if (!source.getValue(projectType))
        followFactor();
    if (!source.getValue(cuttingRadius))
        followAxis(axis, parallel);
    forgetReplaced();
}

#include "panel/CoordParamEditor.h"

#include "panel/DatumFields.h"
#include "panel/ProjectionAdvice.h"
#include "panel/ProjectionFields.h"
#include "panel/TrueScaleParallel.h"

#include <cmath>
#include <cstring>
#include <utility>

using namespace CoordParamKey;

namespace {

constexpr char noSeparator = '\0';

bool sameText(const char* text, const char* other) {
    return text && other && std::strcmp(text, other) == 0;
}

} // namespace

void CoordParamEditor::setRecord(const IDictionary& record) {
    dictionary_assign(values.get(), &record);
    forgetReplaced();
}

void CoordParamEditor::forgetReplaced() {
    replaced->clear();
    initial->clear();
    replacedParallel.reset();
}

std::optional<double> CoordParamEditor::semiMajorAxis() const {
    double a;
    return DatumFields::semiMajorAxis().read(*values, &a) && a > 0.0 ? std::optional<double>(a) : std::nullopt;
}

void CoordParamEditor::setField(const ParamField& field, const FieldInput& input) {
    if (!input.valid)
        return;
    if (field.quantity == Quantity::TrueScaleParallel) {
        if (const std::optional<double> a = semiMajorAxis())
            dic_set_value(values.get(), field.key, "%f",
                          input.text == "0" && field.optional ? 0.0 : TrueScaleParallel::radius(*a, input.value));
        return;
    }
    const std::optional<double> parallel = TrueScaleParallel::ofRecord(*values);
    values->setText(field.key, input.text.constData());
    if (std::strcmp(field.key, factor) == 0)
        followFactor();
    else if (std::strcmp(field.key, ellipsoidA) == 0)
        followAxis(parallel);
}

void CoordParamEditor::setEllipsoid(const IDictionary& ellipsoid) {
    const std::optional<double> parallel = TrueScaleParallel::ofRecord(*values);
    for (const char* key : {ellipsoidName, ellipsoidA, ellipsoidF})
        dictionary_copy(values.get(), &ellipsoid, key, noSeparator);
    followAxis(parallel);
}

std::optional<ProjectionKind> CoordParamEditor::kind() const {
    const ProjectionFields* fields = ProjectionFields::ofRecord(*values);
    return fields ? std::optional<ProjectionKind>(fields->kind) : std::nullopt;
}

void CoordParamEditor::followFactor() {
    const std::optional<ProjectionKind> now = kind();
    if (now != ProjectionKind::TransverseMercator && now != ProjectionKind::TransverseMercatorScaled)
        return;
    const ProjectionKind right = dictionary_number(*values, factor, 0.0) == 1.0
                                     ? ProjectionKind::TransverseMercator
                                     : ProjectionKind::TransverseMercatorScaled;
    if (right != now)
        dic_set_value(values.get(), projectType, "%d", int(right));
}

void CoordParamEditor::followAxis(std::optional<double> parallel) {
    const std::optional<ProjectionKind> now = kind();
    if (now == ProjectionKind::Mercator)
        parallel = 0.0;
    else if (now == ProjectionKind::MercatorStandardParallel)
        parallel = parallel.value_or(0.0);
    if (parallel)
        setParallel(parallel);
}

void CoordParamEditor::setParallel(std::optional<double> parallel) {
    const std::optional<double> a = semiMajorAxis();
    if (!a)
        return;
    const double radius = parallel ? TrueScaleParallel::radius(*a, *parallel) : 0.0;
    if (std::fabs(radius - dictionary_number(*values, cuttingRadius, -1.0)) > 1e-9)
        dic_set_value(values.get(), cuttingRadius, "%f", radius);
}

void CoordParamEditor::setKind(ProjectionKind chosen) {
    const ProjectionFields* fields = ProjectionFields::find(int(chosen));
    if (!fields)
        return;
    const std::optional<ProjectionKind> before = kind();
    std::optional<double> parallel = TrueScaleParallel::ofRecord(*values);
    if (before == ProjectionKind::Mercator && chosen != ProjectionKind::Mercator && replacedParallel)
        parallel = std::exchange(replacedParallel, std::nullopt);
    else if (before != ProjectionKind::Mercator && chosen == ProjectionKind::Mercator)
        replacedParallel = parallel;

    restoreReplaced();
    dic_set_value(values.get(), projectType, "%d", int(chosen));
    complete(*fields);
    if (chosen == ProjectionKind::Stereographic)
        setParallel(parallel == 0.0 ? std::nullopt : parallel); // the equator is no parallel of a polar projection
    else
        followAxis(parallel);
}

double CoordParamEditor::initialValue(const ProjectionFields& fields, const ParamField& field) const {
    // With one parallel the origin usually lies on it.
    const double origin = dictionary_number(*values, orgLat, 0.0);
    const bool isOriginsParallel = fields.kind == ProjectionKind::LambertOneParallel &&
                                   std::strcmp(field.key, parallel1Lat) == 0 && origin != 0.0 && field.accepts(origin);
    return isOriginsParallel ? origin : field.initial;
}

void CoordParamEditor::complete(const ProjectionFields& fields) {
    const bool degenerate = ProjectionAdvice::isDegenerate(fields, *values);
    for (const ParamField& field : fields.fields) {
        if (field.quantity == Quantity::TrueScaleParallel)
            continue;
        const bool isPartOfLine = field.quantity == Quantity::Latitude && std::strcmp(field.key, orgLat) != 0;
        if (!values->getValue(field.key) || !field.isSound(*values) || (degenerate && isPartOfLine))
            put(field.key, initialValue(fields, field));
    }
    const bool isScaleOne = dictionary_number(*values, factor, 0.0) == 1.0;
    if ((fields.kind == ProjectionKind::TransverseMercator && !isScaleOne) ||
        (fields.kind == ProjectionKind::TransverseMercatorScaled && isScaleOne))
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
    const std::optional<double> parallel = TrueScaleParallel::ofRecord(*values);
    if (source.getValue(shiftType)) {
        for (const ParamField& field : DatumFields::shift())
            values->remove(field.key);
    }
    for (int i = 0; i < source.count(); ++i)
        dictionary_copy(values.get(), &source, source.getKey(i), noSeparator);
    if (!source.getValue(projectType))
        followFactor();
    if (!source.getValue(cuttingRadius))
        followAxis(parallel);
    forgetReplaced();
}

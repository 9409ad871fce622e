#include "panel/record/CoordParamEditor.h"

#include "import/ParallelRadius.h"
#include "panel/record/DatumFields.h"
#include "panel/record/ProjectionAdvice.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <QString>

#include <cmath>
#include <cstring>

namespace Key = CoordParamKey;

namespace {

constexpr char noSeparator = '\0';

bool isSameText(const char* text, const char* other) {
    return text == other || (text && other && std::strcmp(text, other) == 0);
}

/// Whether both hold the same text of `key`, with the same number behind it, or neither holds it.
bool isSameValue(const IDictionary& record, const IDictionary& other, const char* key) {
    double number = 0.0, otherNumber = 0.0;
    return isSameText(record.getValue(key), other.getValue(key)) &&
           record.getNumber(key, &number) == other.getNumber(key, &otherNumber) && number == otherNumber;
}

bool isSameRecord(const IDictionary& record, const IDictionary& other) {
    bool isSame = record.count() == other.count();
    for (int i = 0; isSame && i < record.count(); ++i)
        isSame = isSameText(record.getKey(i), other.getKey(i)) && isSameValue(record, other, record.getKey(i));
    return isSame;
}

std::optional<ProjectionMethod> methodOf(const IDictionary& record) {
    const ProjectionFields* fields = ProjectionFields::ofRecord(record);
    return fields ? std::optional<ProjectionMethod>(fields->method) : std::nullopt;
}

std::optional<double> semiMajorAxis(const IDictionary& record) {
    double a;
    return DatumFields::semiMajorAxis().read(record, &a) && a > 0.0 ? std::optional<double>(a) : std::nullopt;
}

/// Sets a number that is computed, unless the record holds it already, give or take its last bits.
void putNumber(IDictionary& record, const char* key, double value) {
    const bool isSame = record.getValue(key) &&
                        std::fabs(value - dictionary_number(record, key, value + 1.0)) <= std::fabs(value) * 4e-16;
    if (!isSame)
        dic_set_value(&record, key, "%f", value);
}

/// Sets the radius of a standard parallel. Without an axis there is no radius to keep it by.
void putParallel(IDictionary& record, double latitude) {
    if (const std::optional<double> a = semiMajorAxis(record))
        putNumber(record, Key::cuttingRadius, ParallelRadius::ofLatitude(*a, latitude));
}

void putNoParallel(IDictionary& record) {
    putNumber(record, Key::cuttingRadius, 0.0);
}

/// Whether a scale factor of the one method says something in the other: they scale the same line or point.
bool sharesScale(std::optional<ProjectionMethod> from, ProjectionMethod to) {
    const auto line = [](ProjectionMethod method) {
        switch (method) {
        case ProjectionMethod::TransverseMercatorScaled:
            return ProjectionMethod::TransverseMercator;
        case ProjectionMethod::ObliqueMercatorTwoPoints:
            return ProjectionMethod::ObliqueMercatorAzimuth;
        case ProjectionMethod::ObliqueStereographic:
            return ProjectionMethod::Stereographic;
        default:
            return method;
        }
    };
    return from && line(*from) == line(to);
}

} // namespace

void CoordParamEditor::State::assign(const State& other) {
    dictionary_assign(values.get(), other.values.get());
    dictionary_assign(chosen.get(), other.chosen.get());
}

bool CoordParamEditor::State::isSame(const State& other) const {
    return isSameRecord(*values, *other.values) && isSameRecord(*chosen, *other.chosen);
}

void CoordParamEditor::setRecord(const IDictionary& record) {
    dictionary_assign(now.values.get(), &record);
    dictionary_assign(now.chosen.get(), now.values.get());
    dictionary_assign(shown.get(), now.values.get());
    startTyping();
    isUndone = false;
}

template <typename Change> void CoordParamEditor::edit(const Change& change) {
    change(*now.values);
    change(*now.chosen);
}

template <typename Change> void CoordParamEditor::editAxis(const Change& change) {
    edit([&](IDictionary& record) {
        const std::optional<double> axis = semiMajorAxis(record), parallel = StandardParallel::ofRecord(record);
        change(record);
        followAxis(record, axis, parallel);
    });
}

void CoordParamEditor::followAxis(IDictionary& record, std::optional<double> axisBefore,
                                  std::optional<double> parallel) {
    if (semiMajorAxis(record) == axisBefore)
        return;
    const std::optional<ProjectionMethod> method = methodOf(record);
    if (method == ProjectionMethod::Mercator)
        putParallel(record, 0.0);
    else if (method == ProjectionMethod::MercatorStandardParallel)
        putParallel(record, parallel.value_or(0.0));
    else if (parallel && (method == ProjectionMethod::Stereographic || &record == now.chosen.get()))
        putParallel(record, *parallel);
}

bool CoordParamEditor::setField(const ParamField& field, const FieldInput& input) {
    if (!input.valid)
        return false;
    State before;
    before.assign(now);
    const auto set = [&](IDictionary& record) { record.setText(field.key, input.text.constData()); };
    if (field.quantity == Quantity::StandardParallel) {
        const bool isNone = field.optional && input.value == 0.0;
        edit([&](IDictionary& record) { isNone ? putNoParallel(record) : putParallel(record, input.value); });
    } else if (field.is(Key::ellipsoidA)) {
        editAxis(set);
    } else {
        edit(set);
        if (field.is(Key::factor))
            followFactor();
    }
    return !now.isSame(before);
}

bool CoordParamEditor::type(const ParamField& field, const FieldInput& input) {
    State before;
    before.assign(now);
    now.assign(beforeTyping);
    setField(field, input);
    return !now.isSame(before);
}

bool CoordParamEditor::typeText(const char* key, const QString& text) {
    State before;
    before.assign(now);
    now.assign(beforeTyping);
    setText(key, text);
    return !now.isSame(before);
}

bool CoordParamEditor::cancelTyping() {
    const bool isSame = now.isSame(beforeTyping);
    now.assign(beforeTyping);
    return !isSame;
}

void CoordParamEditor::setEllipsoid(const IDictionary& ellipsoid) {
    editAxis([&](IDictionary& record) {
        for (const char* key : {Key::ellipsoidName, Key::ellipsoidA, Key::ellipsoidF})
            dictionary_copy(&record, &ellipsoid, key, noSeparator);
    });
}

/// A new scale factor: for the method that the record has now, or makes it the other transverse Mercator method.
void CoordParamEditor::followFactor() {
    const std::optional<ProjectionMethod> method = methodOf(*now.values);
    if (method == ProjectionMethod::TransverseMercator || method == ProjectionMethod::TransverseMercatorScaled) {
        const ProjectionMethod right = dictionary_number(*now.values, Key::factor, 0.0) == 1.0
                                           ? ProjectionMethod::TransverseMercator
                                           : ProjectionMethod::TransverseMercatorScaled;
        if (right != method)
            dic_set_value(now.values.get(), Key::projectType, "%d", int(right));
    }
    dictionary_copy(now.chosen.get(), now.values.get(), Key::projectType, noSeparator);
}

void CoordParamEditor::setMethod(ProjectionMethod chosen) {
    const ProjectionFields* fields = ProjectionFields::find(int(chosen));
    if (!fields)
        return;
    dictionary_assign(now.values.get(), now.chosen.get());
    if (methodOf(*now.values) != chosen)
        dic_set_value(now.values.get(), Key::projectType, "%d", int(chosen));
    fillParallel();
    fill(*fields);
}

void CoordParamEditor::fillParallel() {
    const std::optional<ProjectionMethod> method = methodOf(*now.values);
    const std::optional<double> parallel = StandardParallel::ofRecord(*now.values);
    if (method == ProjectionMethod::Mercator || (method == ProjectionMethod::MercatorStandardParallel && !parallel))
        putParallel(*now.values, 0.0);
    else if (method == ProjectionMethod::Stereographic && (!parallel || *parallel == 0.0))
        putNoParallel(*now.values); // the equator is no parallel of a polar projection
}

double CoordParamEditor::initialValue(const ProjectionFields& fields, const ParamField& field) const {
    // With one parallel the origin usually lies on it.
    const double origin = dictionary_number(*now.values, Key::orgLat, 0.0);
    const bool isOriginsParallel = fields.method == ProjectionMethod::LambertOneParallel &&
                                   field.is(Key::parallel1Lat) && origin != 0.0 && field.accepts(origin);
    return isOriginsParallel ? origin : field.initial;
}

/// Whether the value that is there can stand in the method, as far as one value tells.
bool CoordParamEditor::makesSense(const ProjectionFields& fields, const ParamField& field) const {
    double value;
    const std::optional<ProjectionMethod> before = methodOf(*now.chosen);
    if (!field.read(*now.values, &value)) // an optional value may have been left out on purpose
        return field.optional && now.values->getValue(field.key) && before == fields.method;
    if (!field.accepts(value))
        return false;
    if (field.quantity == Quantity::ScaleFactor)
        return sharesScale(before, fields.method);
    const bool isPole = field.is(Key::orgLat) && std::fabs(value) == 90.0;
    return !isPole || fields.method == ProjectionMethod::Stereographic ||
           fields.method == ProjectionMethod::ObliqueStereographic;
}

void CoordParamEditor::fill(const ProjectionFields& fields) {
    const auto put = [this](const ParamField& field, double value) {
        if (dictionary_number(*now.values, field.key, value + 1.0) != value)
            dic_set_value(now.values.get(), field.key, "%f", value);
    };
    const bool isDegenerate = ProjectionAdvice::isDegenerate(fields, *now.values);
    for (const ParamField& field : fields.fields) {
        const bool isPartOfLine = field.quantity == Quantity::Latitude && !field.is(Key::orgLat);
        if (field.quantity != Quantity::StandardParallel &&
            (!makesSense(fields, field) || (isDegenerate && isPartOfLine)))
            put(field, initialValue(fields, field));
    }
    // Gauss-Krüger has the scale factor 1, and only Gauss-Krüger; beside a standard parallel it is 1 as well.
    const bool isScaleOne = dictionary_number(*now.values, Key::factor, 0.0) == 1.0;
    const bool mustBeOne =
        fields.method == ProjectionMethod::TransverseMercator ||
        (fields.method == ProjectionMethod::Stereographic && StandardParallel::ofRecord(*now.values));
    if ((mustBeOne && !isScaleOne) || (fields.method == ProjectionMethod::TransverseMercatorScaled && isScaleOne))
        put(*fields.field(Key::factor), fields.field(Key::factor)->initial);
}

bool CoordParamEditor::isToChoose(const ParamField& field) const {
    const bool isSettled = field.is(Key::factor) && methodOf(*now.values) == ProjectionMethod::TransverseMercator;
    double value;
    return !isSettled && field.read(*now.values, &value) && !isSameValue(*now.values, *now.chosen, field.key);
}

void CoordParamEditor::setShift(bool sevenParameters) {
    edit([&](IDictionary& record) {
        dic_set_value(&record, Key::shiftType, "%d", sevenParameters ? 2 : 0);
        for (const ParamField& field : DatumFields::shift()) {
            if (sevenParameters && !field.isSound(record))
                dic_set_value(&record, field.key, "%f", field.initial);
        }
    });
}

void CoordParamEditor::reverseRotations() {
    const auto reverse = [](IDictionary& record, const char* key) {
        if (dictionary_number(record, key, 0.0) == 0.0)
            return;
        // The text is turned as it stands, so that turning twice gives back the same text.
        QByteArray text = QByteArray(record.getValue(key)).trimmed();
        if (text.startsWith('-') || text.startsWith('+'))
            text = (text.startsWith('+') ? "-" : "") + text.mid(1);
        else
            text.prepend('-');
        double number;
        if (record.getNumber(key, &number))
            record.setNumber(key, text.constData(), -number);
        else
            record.setText(key, text.constData());
    };
    edit([&](IDictionary& record) {
        for (const char* key : {Key::shiftRx, Key::shiftRy, Key::shiftRz})
            reverse(record, key);
    });
}

bool CoordParamEditor::setText(const char* key, const QString& text) {
    State before;
    before.assign(now);
    edit([&](IDictionary& record) {
        if (text.isEmpty())
            record.remove(key);
        else
            record.setText(key, text.toLocal8Bit().constData());
    });
    return !now.isSame(before);
}

void CoordParamEditor::replaceValues(const IDictionary& source) {
    const auto replace = [&](IDictionary& record) {
        if (source.getValue(Key::shiftType)) {
            record.remove(Key::datumName);
            record.remove(Key::pastedText);
            for (const ParamField& field : DatumFields::shift())
                record.remove(field.key);
        }
        for (int i = 0; i < source.count(); ++i)
            dictionary_copy(&record, &source, source.getKey(i), noSeparator);
    };
    if (source.getValue(Key::cuttingRadius))
        edit(replace);
    else
        editAxis(replace);
    if (source.getValue(Key::factor) && !source.getValue(Key::projectType))
        followFactor();
}

bool CoordParamEditor::canGoBack() const {
    return !isSameRecord(*now.values, *shown);
}

void CoordParamEditor::goBack() {
    undone.assign(now);
    isUndone = true;
    dictionary_assign(now.values.get(), shown.get());
    dictionary_assign(now.chosen.get(), shown.get());
}

bool CoordParamEditor::canGoForward() const {
    return isUndone && !canGoBack();
}

void CoordParamEditor::goForward() {
    now.assign(undone);
    isUndone = false;
}

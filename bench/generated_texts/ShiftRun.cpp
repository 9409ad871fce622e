#include "ShiftRun.h"

#include "catalogue/Angle.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ProjDefineToCoordParam.h"
#include "import/WktToCoordParam.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr int coordinateFrame = 9607;
constexpr int molodenskyBadekas = 9636;
constexpr const char* formNames[] = {"TOWGS84", "BOUNDCRS", "BOUNDCRS with units", "+towgs84"};

constexpr int heldMethods[] = {9603, 9606, coordinateFrame, molodenskyBadekas};

/// The codes of the seven parameters, in the order of +towgs84.
constexpr int parameterCodes[] = {8605, 8606, 8607, 8608, 8609, 8610, 8611};

template <std::size_t size> QByteArray joined(const std::array<double, size>& values) {
    QByteArray text;
    for (const double value : values)
        text += (text.isEmpty() ? "" : ",") + QByteArray::number(value, 'g', 17);
    return text;
}

bool agree(double left, double right) {
    return std::abs(left - right) <= 1e-12 * std::max(1.0, std::abs(right));
}

/// The last place of a factor near 1, in ppm.
constexpr double factorsLastPlace = 2.3e-10;

} // namespace

ShiftRun::ShiftRun(unsigned long long seed) : context(proj_context_create()), random(seed) {
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
}

ShiftRun::~ShiftRun() {
    proj_context_destroy(context);
}

bool ShiftRun::run(int every) {
    const QVector<Transformation> transformations = readTransformations();
    for (int i = 0; i < transformations.size(); i += every) {
        for (const Form form : {Form::ToWgs84, Form::Bound, Form::BoundWithUnits, Form::Proj}) {
            take(transformations[i], form);
            take(withOtherNumbers(transformations[i]), form);
        }
    }
    std::printf("%d transformations\n%-60s %8s %8s %8s %8s\n", transformations.size(), "", "shifts", "right",
                "left out", "wrong");
    int wrong = 0;
    for (auto form = byForm.begin(); form != byForm.end(); ++form) {
        std::printf("%-60s %8d %8d %8d %8d\n", form.key().constData(), form->shifts, form->right, form->leftOut,
                    form->wrong);
        wrong += form->wrong;
    }
    return wrong == 0;
}

QVector<ShiftRun::Transformation> ShiftRun::readTransformations() const {
    QVector<Transformation> transformations;
    const auto codes = proj_get_codes_from_database(context, "EPSG", PJ_TYPE_TRANSFORMATION, 0);
    for (auto code = codes; code && *code; ++code) {
        const Transformation transformation = readTransformation(*code);
        if (!transformation.parameters.isEmpty())
            transformations.append(transformation);
    }
    proj_string_list_destroy(codes);
    return transformations;
}

/// Without parameters when it is another method's or leads to another datum than WGS 84.
ShiftRun::Transformation ShiftRun::readTransformation(const char* code) const {
    const ProjObject operation(
        proj_create_from_database(context, "EPSG", code, PJ_CATEGORY_COORDINATE_OPERATION, 0, nullptr));
    const char* name = nullptr;
    const char* method = nullptr;
    if (!operation || !proj_coordoperation_get_method_info(context, operation.get(), &name, nullptr, &method))
        return {};
    Transformation transformation{code, name, QByteArray(method).toInt(), {}};
    const ProjObject target(proj_get_target_crs(context, operation.get()));
    if (std::find(std::begin(heldMethods), std::end(heldMethods), transformation.method) == std::end(heldMethods) ||
        !target || QByteArray(proj_get_name(target.get())) != "WGS 84")
        return {};
    for (int i = 0; i < proj_coordoperation_get_param_count(context, operation.get()); ++i) {
        const char* parameter = nullptr;
        const char* parameterCode = nullptr;
        const char* unit = nullptr;
        double value = 0;
        double factor = 0;
        proj_coordoperation_get_param(context, operation.get(), i, &parameter, nullptr, &parameterCode, &value, nullptr,
                                      &factor, &unit, nullptr, nullptr, nullptr);
        transformation.parameters.append({parameter, parameterCode, TextGenerator::number(value), unit, factor});
    }
    return transformation;
}

/// Other numbers of as many decimals.
ShiftRun::Transformation ShiftRun::withOtherNumbers(Transformation transformation) {
    for (Parameter& parameter : transformation.parameters) {
        const int point = parameter.number.indexOf('.');
        const int decimals = point < 0 || parameter.number.contains('e') ? 0 : parameter.number.size() - point - 1;
        const double other = parameter.number.toDouble() * (random.below(4001) - 2000) / 1000;
        if (!parameter.number.contains('e'))
            parameter.number = QByteArray::number(other, 'f', decimals);
    }
    return transformation;
}

ShiftRun::Shift ShiftRun::shiftOf(const Transformation& transformation) {
    Shift shift{};
    for (const Parameter& parameter : transformation.parameters) {
        const auto code = std::find(std::begin(parameterCodes), std::end(parameterCodes), parameter.code.toInt());
        const auto index = static_cast<std::size_t>(code - std::begin(parameterCodes));
        if (index == shift.size())
            continue;
        const double value = parameter.number.toDouble();
        if (index < 3) {
            shift[index] = value * parameter.factor;
        } else if (index < 6) {
            const double arcSeconds =
                parameter.unit == "arc-second" ? value : Angle::toDegrees(value * parameter.factor) * 3600;
            shift[index] = transformation.method == coordinateFrame ? -arcSeconds : arcSeconds;
        } else {
            shift[index] = parameter.unit == "parts per million" ? value : value * parameter.factor * 1e6;
        }
    }
    return shift;
}

/// Without units, rotations are in arc-seconds and the scale difference is the factor 1 + ppm / 1e6 (ISO 19162:2019,
/// abridged transformations).
QByteArray ShiftRun::boundCrs(const Transformation& transformation, const QByteArray& crs, bool hasUnits) {
    QByteArray parameters;
    for (const Parameter& parameter : transformation.parameters) {
        const int code = parameter.code.toInt();
        const bool isRotation = code >= 8608 && code <= 8610;
        const char* const keyword = isRotation ? "ANGLEUNIT" : code == 8611 ? "SCALEUNIT" : "LENGTHUNIT";
        const double value = parameter.number.toDouble() * parameter.factor;
        QByteArray number = parameter.number;
        if (!hasUnits && code == 8611)
            number = QByteArray::number(1 + value, 'g', 17);
        else if (!hasUnits && isRotation && parameter.unit != "arc-second")
            number = QByteArray::number(Angle::toDegrees(value) * 3600, 'g', 17);
        else if (!hasUnits && !isRotation)
            number = QByteArray::number(value, 'g', 17);
        parameters += ",PARAMETER[\"" + parameter.name + "\"," + number;
        if (hasUnits)
            parameters += QByteArray(",") + keyword + "[\"" + parameter.unit + "\"," +
                          QByteArray::number(parameter.factor, 'g', 15) + ']';
        parameters += ",ID[\"EPSG\"," + parameter.code + "]]";
    }
    return "BOUNDCRS[SOURCECRS[" + crs +
           "],TARGETCRS[GEOGCRS[\"WGS 84\",DATUM[\"World Geodetic System 1984\",ELLIPSOID[\"WGS "
           "84\",6378137,298.257223563]],CS[ellipsoidal,2],AXIS[\"latitude\",north,ORDER[1]],AXIS[\"longitude\",east,"
           "ORDER[2]],ANGLEUNIT[\"degree\",0.0174532925199433],ID[\"EPSG\",4326]]],ABRIDGEDTRANSFORMATION[\"Local to "
           "WGS "
           "84\",METHOD[\"" +
           transformation.methodName + "\",ID[\"EPSG\"," + QByteArray::number(transformation.method) + "]]" +
           parameters + "]]";
}

void ShiftRun::take(const Transformation& transformation, Form form) {
    const bool isBound = form == Form::Bound || form == Form::BoundWithUnits;
    if (transformation.method == molodenskyBadekas && !isBound)
        return;
    GeneratedText generated = TextGenerator::generate(random);
    while (generated.text.isWkt2() != isBound || generated.text.dialect == Dialect::Esri ||
           generated.meaning.projection != "tmerc")
        generated = TextGenerator::generate(random);
    QByteArray text;
    const DictionaryGuard record;
    if (form == Form::Proj) {
        text = generated.meaning.definition() + " +towgs84=" + joined(shiftOf(transformation));
        projDefineToCoordParam(InitializeProj(text.constData()), record.get());
    } else {
        if (form == Form::ToWgs84)
            generated.text.toWgs84 = joined(shiftOf(transformation));
        text = generated.text.write();
        if (isBound)
            text = boundCrs(transformation, text, form == Form::BoundWithUnits);
        WktToCoordParam::write(text, record.get());
    }
    judge(form, transformation, text, generated.meaning, *record);
}

void ShiftRun::judge(Form form, const Transformation& transformation, const QByteArray& text, const Meaning& meaning,
                     const IDictionary& record) {
    const QByteArray name = formNames[static_cast<int>(form)];
    Count& count = byForm[name + ", " + transformation.methodName];
    namespace Key = CoordParamKey;
    constexpr const char* keys[] = {Key::shiftDx, Key::shiftDy, Key::shiftDz, Key::shiftRx,
                                    Key::shiftRy, Key::shiftRz, Key::shiftPpm};
    Shift read{};
    for (std::size_t i = 0; i < read.size(); ++i)
        read[i] = dictionary_number(record, keys[i], 0) * (i >= 3 && i < 6 ? 3600 : 1);
    const Shift said = transformation.method == molodenskyBadekas ? Shift{} : shiftOf(transformation);
    const double ppmTolerance = form == Form::Bound ? factorsLastPlace : 0;
    const bool isRight = std::equal(read.begin(), read.end() - 1, said.begin(), agree) &&
                         (agree(read[6], said[6]) || std::abs(read[6] - said[6]) < ppmTolerance);
    const bool isLeftOut = dictionary_number(record, Key::shiftType, -1) == 0;
    const double deviation = oracle.deviation(meaning, coordParamToProjDefine(record));
    ++count.shifts;
    if (deviation <= 1e-6 && (isRight || isLeftOut)) {
        ++(isLeftOut && (!isRight || transformation.method == molodenskyBadekas) ? count.leftOut : count.right);
        return;
    }
    ++count.wrong;
    std::printf("WRONG %s of EPSG:%s, %g m\n  %s\n  says %s\n  read %s\n", name.constData(),
                transformation.code.constData(), deviation, text.constData(), joined(said).constData(),
                joined(read).constData());
}

#include "panel/record/DatumFields.h"

#include "catalogue/CoordParamKey.h"

#include <cmath>

namespace Key = CoordParamKey;

const ParamField& DatumFields::semiMajorAxis() {
    static const ParamField field = {
        Key::ellipsoidA, Quantity::Length, QT_TRANSLATE_NOOP("DlgCoordParam", "Semi-major axis a"), 1e3, 1e9,
        6378137.0};
    return field;
}

const ParamField& DatumFields::inverseFlattening() {
    static const ParamField field = {Key::ellipsoidF,
                                     Quantity::InverseFlattening,
                                     QT_TRANSLATE_NOOP("DlgCoordParam", "Inverse flattening 1/f"),
                                     0.0,
                                     1e9,
                                     298.257222101};
    return field;
}

const std::vector<ParamField>& DatumFields::shift() {
    static const auto translation = [](const char* key, const char* label) {
        return ParamField{key, Quantity::Length, label, -1e7, 1e7, 0.0};
    };
    static const auto rotation = [](const char* key, const char* label) {
        return ParamField{key, Quantity::SmallRotation, label, -3600.0, 3600.0, 0.0};
    };
    static const std::vector<ParamField> fields = {
        translation(Key::shiftDx, QT_TRANSLATE_NOOP("DlgCoordParam", "Translation X")),
        translation(Key::shiftDy, QT_TRANSLATE_NOOP("DlgCoordParam", "Translation Y")),
        translation(Key::shiftDz, QT_TRANSLATE_NOOP("DlgCoordParam", "Translation Z")),
        rotation(Key::shiftRx, QT_TRANSLATE_NOOP("DlgCoordParam", "Rotation X")),
        rotation(Key::shiftRy, QT_TRANSLATE_NOOP("DlgCoordParam", "Rotation Y")),
        rotation(Key::shiftRz, QT_TRANSLATE_NOOP("DlgCoordParam", "Rotation Z")),
        {Key::shiftPpm, Quantity::ScaleDifference, QT_TRANSLATE_NOOP("DlgCoordParam", "Scale difference"), -1e5, 1e5,
         0.0}};
    return fields;
}

QString DatumFields::warning(const ParamField& field, const IDictionary& record) {
    double value;
    if (!field.read(record, &value) || !field.accepts(value))
        return QString();
    switch (field.quantity) {
    case Quantity::InverseFlattening:
        if (value == 0.0)
            return ParamField::tr("A sphere.");
        return value < 290.0 || value > 310.0 ? ParamField::tr("Unusual for the Earth.") : QString();
    case Quantity::Length:
        if (&field == &semiMajorAxis())
            return value < 6.35e6 || value > 6.4e6 ? ParamField::tr("Unusual for the Earth.") : QString();
        // The registry's largest: 2,624 m, 153 arc-seconds, 268 ppm.
        return std::fabs(value) > 3000.0 ? ParamField::tr("Unusually large.") : QString();
    case Quantity::SmallRotation:
        return std::fabs(value) > 60.0 ? ParamField::tr("Unusually large.") : QString();
    case Quantity::ScaleDifference:
        return std::fabs(value) > 100.0 ? ParamField::tr("Unusually large.") : QString();
    default:
        return QString();
    }
}

#include "panel/record/RecordDifferences.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/record/DatumFields.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"

#include <algorithm>
#include <cmath>

namespace {

namespace Key = CoordParamKey;

/// What a text form rounds away, in the unit in which the record keeps the value; each is far below 0.1 mm on the
/// ground.
double tolerance(const ParamField& field) {
    switch (field.quantity) {
    case Quantity::Length:
        return 1e-6;
    case Quantity::StandardParallel:
        return 1e-5; // a radius in metres
    case Quantity::ScaleFactor:
        return 1e-13;
    case Quantity::InverseFlattening:
        return 1e-9;
    case Quantity::ScaleDifference:
        return 1e-8; // ppm; WKT 2 has it as a factor
    case Quantity::Latitude:
    case Quantity::Longitude:
    case Quantity::Azimuth:
        return 1e-11;
    case Quantity::SmallRotation:
        return 1e-13;
    }
    return 0.0;
}

bool isSame(double left, double right, const ParamField& field) {
    // ESRI's dialect has azimuths of up to 180 degrees to either side.
    const bool isDirection = field.quantity == Quantity::Azimuth || field.quantity == Quantity::Longitude;
    const double difference = isDirection ? std::remainder(left - right, 360.0) : left - right;
    return std::abs(difference) <= tolerance(field);
}

bool hasSameNumber(const IDictionary& left, const IDictionary& right, const ParamField& field) {
    return isSame(dictionary_number(left, field.key, 0.0), dictionary_number(right, field.key, 0.0), field);
}

bool hasSameText(const IDictionary& left, const IDictionary& right, const char* key) {
    return QByteArray(left.getValue(key)) == QByteArray(right.getValue(key));
}

bool hasShift(const IDictionary& record) {
    return dictionary_number(record, Key::shiftType, 0.0) == 2.0;
}

bool hasSameShift(const IDictionary& left, const IDictionary& right) {
    const auto& fields = DatumFields::shift();
    return std::all_of(fields.begin(), fields.end(), [&](const ParamField& field) {
        const double leftValue = hasShift(left) ? dictionary_number(left, field.key, 0.0) : 0.0;
        const double rightValue = hasShift(right) ? dictionary_number(right, field.key, 0.0) : 0.0;
        return isSame(leftValue, rightValue, field);
    });
}

} // namespace

QStringList recordDifferences(const IDictionary& record, const IDictionary& imported) {
    QStringList lost;
    if (!hasSameText(record, imported, Key::name))
        lost.append(PanelText::tr("the name"));
    if (!hasSameText(record, imported, Key::ellipsoidName))
        lost.append(PanelText::tr("the ellipsoid's name"));
    for (const ParamField* field : {&DatumFields::semiMajorAxis(), &DatumFields::inverseFlattening()}) {
        if (!hasSameNumber(record, imported, *field))
            lost.append(field->labelText());
    }
    const ProjectionFields* projection = ProjectionFields::ofRecord(record);
    if (!projection || projection != ProjectionFields::ofRecord(imported)) {
        lost.append(PanelText::tr("the projection method"));
    } else {
        for (const ParamField& field : projection->fields) {
            if (!hasSameNumber(record, imported, field))
                lost.append(field.labelText());
        }
    }
    if (!hasSameShift(record, imported))
        lost.append(PanelText::tr("the datum shift"));
    return lost;
}

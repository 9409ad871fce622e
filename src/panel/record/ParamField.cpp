#include "panel/record/ParamField.h"

#include "catalogue/Dictionary.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/StandardParallel.h"

#include <QRegularExpression>

#include <cmath>
#include <cstring>

namespace {

AngleRole role(Quantity quantity) {
    switch (quantity) {
    case Quantity::Longitude:
        return AngleRole::Longitude;
    case Quantity::Azimuth:
        return AngleRole::Azimuth;
    default:
        return AngleRole::Latitude;
    }
}

/// The text without `unit` at its end; seconds in any way in which they are written.
QString withoutUnit(QString text, QString unit) {
    static const QRegularExpression seconds("''|[\\x{2033}\\x{201C}\\x{201D}]|\\x{2032}\\x{2032}|\\x{2019}\\x{2019}");
    text = text.trimmed();
    if (unit == "\"")
        text.replace(seconds, unit);
    return !unit.isEmpty() && text.endsWith(unit, Qt::CaseInsensitive) ? text.chopped(unit.size()) : text;
}

double toDegrees(double arcSeconds) {
    return arcSeconds / 3600.0;
}

} // namespace

bool ParamField::is(const char* otherKey) const {
    return std::strcmp(key, otherKey) == 0;
}

bool ParamField::isAngle() const {
    return quantity == Quantity::Latitude || quantity == Quantity::Longitude || quantity == Quantity::Azimuth ||
           quantity == Quantity::StandardParallel;
}

bool ParamField::accepts(double value) const {
    if (quantity == Quantity::InverseFlattening && value != 0.0 && value <= 1.0)
        return false;
    return endsExcluded ? value > minimum && value < maximum : value >= minimum && value <= maximum;
}

QString ParamField::unitText(AngleNotation notation) const {
    if (isAngle())
        return notation == AngleNotation::DecimalDegrees ? "°" : "° ' \"";
    switch (quantity) {
    case Quantity::Length:
        return "m";
    case Quantity::SmallRotation:
        return "\"";
    case Quantity::ScaleDifference:
        return "ppm";
    default:
        return QString();
    }
}

QString ParamField::rangeText() const {
    if (quantity == Quantity::InverseFlattening)
        return tr("Allowed: 0 (sphere), or more than 1.");
    const QString unit = unitText(AngleNotation::DecimalDegrees);
    const bool isSign = isAngle() || quantity == Quantity::SmallRotation; // a sign stands close to its number
    const QString end = NumberText::shortest(maximum) + (isSign || unit.isEmpty() ? unit : ' ' + unit);
    if (endsExcluded)
        return tr("Allowed: between %1 and %2.").arg(NumberText::shortest(minimum), end);
    return minimum == -maximum ? tr("Allowed: ±%1.").arg(end)
                               : tr("Allowed: %1 to %2.").arg(NumberText::shortest(minimum), end);
}

FieldInput ParamField::parse(const QString& text) const {
    FieldInput input;
    if (text.trimmed().isEmpty()) {
        input.valid = optional;
        input.text = "0";
        input.reason = optional ? QString() : PanelText::joined({rangeText(), tr("A value is needed.")});
        return input;
    }
    QString plain;
    if (isAngle()) {
        const AngleInput angle = AngleText::parseTyped(text, role(quantity));
        input.valid = angle.valid;
        input.value = angle.degrees;
        input.reason = angle.reason;
        plain = angle.decimal;
    } else {
        const QString number = withoutUnit(text, unitText(AngleNotation::DecimalDegrees));
        input.valid = NumberText::parseTyped(number, &input.value, &plain);
        if (!input.valid)
            input.reason = NumberText::refusal(number);
    }
    if (input.valid && !accepts(input.value))
        input.valid = false;
    if (!input.valid)
        input.reason = PanelText::joined({rangeText(), input.reason});
    else if (quantity == Quantity::SmallRotation)
        input.text = NumberText::shortest(toDegrees(input.value)).toLatin1();
    else
        input.text = plain.toLatin1();
    return input;
}

bool ParamField::read(const IDictionary& record, double* value) const {
    if (quantity == Quantity::StandardParallel) {
        const std::optional<double> latitude = StandardParallel::ofRecord(record);
        *value = latitude.value_or(0.0);
        return latitude.has_value();
    }
    const double number = dictionary_number(record, key, std::nan(""));
    if (std::isnan(number) || (optional && number == 0.0))
        return false;
    if (quantity == Quantity::SmallRotation)
        *value = NumberText::fewestDigits(number * 3600.0, number, std::fabs(number) * 5e-16, toDegrees);
    else
        *value = number;
    return true;
}

double ParamField::number(const IDictionary& record) const {
    return dictionary_number(record, key, 0.0);
}

bool ParamField::isSound(const IDictionary& record) const {
    double value;
    return read(record, &value) ? accepts(value) : optional;
}

QString ParamField::shownText(const IDictionary& record, AngleNotation notation) const {
    double value;
    if (!read(record, &value))
        return optional || quantity == Quantity::StandardParallel ? QString()
                                                                  : QString::fromLocal8Bit(record.getValue(key));
    if (quantity == Quantity::StandardParallel || (isAngle() && notation == AngleNotation::DegreesMinutesSeconds))
        return AngleText::format(value, notation);
    if (quantity == Quantity::SmallRotation)
        return NumberText::shortest(value);
    const QString text = NumberText::ofRecord(record, key);
    return isAngle() ? AngleText::withoutNoise(text) : text;
}

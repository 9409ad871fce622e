#include "panel/record/LengthUnit.h"

#include "panel/record/NumberText.h"

#include <cmath>

LengthUnit::Kind LengthUnit::chosenUnit = LengthUnit::Metre;

double LengthUnit::metres(Kind unit) {
    return unit == Metre ? 1.0 : unit == InternationalFoot ? 0.3048 : 1200.0 / 3937.0;
}

QString LengthUnit::symbol(Kind unit) {
    return unit == Metre ? "m" : unit == InternationalFoot ? "ft" : "ftUS";
}

bool LengthUnit::parse(const QString& text, double* metres) {
    QString number = text.trimmed(), plain;
    if (number.endsWith(symbol(), Qt::CaseInsensitive))
        number.chop(symbol().size());
    double value = 0.0;
    if (!NumberText::parseTyped(number, &value, &plain))
        return false;
    *metres = value * LengthUnit::metres();
    return true;
}

QString LengthUnit::text(double metres) {
    if (std::isnan(metres))
        return QString();
    const QString text = QString::number(metres / LengthUnit::metres(), 'f', 4);
    return text == "-0.0000" ? "0.0000" : text;
}

QString LengthUnit::refusal() {
    return tr("Not a length in %1 with a decimal point.").arg(symbol());
}

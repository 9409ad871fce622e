#include "panel/record/LengthUnit.h"

LengthUnit::Kind LengthUnit::chosenUnit = LengthUnit::Metre;

double LengthUnit::metres(Kind unit) {
    return unit == Metre ? 1.0 : unit == InternationalFoot ? 0.3048 : 1200.0 / 3937.0;
}

QString LengthUnit::symbol(Kind unit) {
    return unit == Metre ? "m" : unit == InternationalFoot ? "ft" : "ftUS";
}

#pragma once

#include "panel/record/AngleText.h"

#include <string>
#include <string_view>

/// Numbers in texts of points, as NumberText and AngleText read them, but a plain one twenty times as fast: a list may
/// hold millions. Texts are UTF-8 (or, where they are no UTF-8, in the older encoding of the user's system) without
/// blanks around them.
namespace PointNumber {

/// False for a text that is no number; `number` is untouched then. With `decimalComma`, the decimal point is a comma
/// and points may group the digits; a point alone could be either, and is refused.
bool read(std::string_view text, bool decimalComma, double* number);

/// The same for an angle in degrees, in any notation.
bool readAngle(std::string_view text, bool decimalComma, AngleRole role, double* degrees);

/// A text as UTF-8, whichever of the two it is in.
std::string toUtf8(std::string_view text);

} // namespace PointNumber

#pragma once

#include <QByteArray>
#include <QLocale>

/// `value` as a definition's text holds it: the fewest digits that read back as the same number, in fixed notation,
/// since a reader that cuts a definition at every "+" would cut an exponent.
inline QByteArray projNumber(double value) {
    return QByteArray::number(value, 'f', QLocale::FloatingPointShortest);
}

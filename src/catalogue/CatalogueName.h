#pragma once

#include <QString>

/// Whether the catalogue can hold `name`: it is not empty, has no "," (the catalogue joins names by it), and comes back
/// the same from the local 8-bit encoding. A NUL or half a surrogate pair, which a paste can bring, would not.
inline bool isCatalogueName(const QString& name) {
    return !name.isEmpty() && !name.contains(QLatin1Char(',')) &&
           QString::fromLocal8Bit(name.toLocal8Bit().constData()) == name;
}

#pragma once

#include <QStringList>

class IDictionary;

/// What of `record` is not in `imported`, named as on the panel: the name, the ellipsoid, fields of the method, the
/// datum shift. Numbers count as equal when what is between them matters less than 0.1 mm on the ground.
QStringList recordDifferences(const IDictionary& record, const IDictionary& imported);

#pragma once

#include <QString>
#include <QVector>

class IDictionary;

namespace SystemDescription {

/// One value as people read it, with its unit.
struct Line {
    QString name;
    QString value;
};

/// What defines the record's system, in the panel's words, angles in the notation chosen now: where it is from, remark,
/// projection, ellipsoid, datum and shift, geoid model, PROJ definition. What the record lacks is
/// left out.
QVector<Line> of(const IDictionary& record);

} // namespace SystemDescription

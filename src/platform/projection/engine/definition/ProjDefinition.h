#pragma once

#include "platform/projection/ProjectionLibrary.h"
#include "platform/projection/engine/definition/Ellipsoid.h"

class EllipsoidNames;
class ProjContext;

/// One definition taken apart: what a handle stands for. A text that PROJ could not read is the empty definition, on
/// GRS 1980 and without a shift.
class ProjDefinition {
public:
    ProjDefinition(const QByteArray& definition, const ProjContext& context, EllipsoidNames& names);

    /// See GetProjDefine().
    const char* text() const { return normalised.constData(); }
    ProjEllipsoid ellipsoid() const;
    const ProjTowgs84& towgs84() const { return shift; }

private:
    Ellipsoid axes;
    QByteArray ellipsoidName;
    ProjTowgs84 shift{};
    QByteArray normalised;
};

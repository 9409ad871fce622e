#pragma once

#include <QByteArray>

class IDictionary;

/// The inverse of projDefineToCoordParam(): a parameter record's projection, ellipsoid and datum shift as a PROJ
/// definition, from the record's numbers with all their digits. Degrees and metres, as PROJ's parameters of the same
/// methods; +towgs84 (with "_7type" 2 only; a missing value counts as 0) in metres, arc-seconds and ppm in the
/// position-vector convention. What each method consists of stands in MethodParameters.h.
///
/// Empty when the record defines no projection: a key that its method needs is missing or no number, the type is
/// unknown, the ellipsoid is none, a scale factor is not above 0, or the type is 0 with a factor other than 1.
QByteArray coordParamToProjDefine(const IDictionary& record);

/// Whether coordParamToProjDefine() gives a definition.
bool coordParamDefinesProjection(const IDictionary& record);

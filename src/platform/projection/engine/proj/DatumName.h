#pragma once

#include <QByteArray>

#include <proj.h>

/// What a datum is called.
namespace DatumName {

/// As WKT writes it, counted from Greenwich: "CH1903", not "CH1903 (Bern)". Empty where there is no name but one that
/// says so ("unknown", EPSG's "Not specified (based on Clarke 1866 ellipsoid)").
QByteArray of(PJ_CONTEXT* context, const PJ* datum);

/// What EPSG adds to the name of a datum whose longitudes count from elsewhere; empty for Greenwich.
QByteArray meridianSuffix(PJ_CONTEXT* context, const PJ* datum);

} // namespace DatumName

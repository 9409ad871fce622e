#pragma once

#include "platform/projection/engine/proj/ProjObject.h"

#include <QByteArray>

/// `crs` bound to WGS 84 by a shift of three or seven numbers joined by ",", as in +towgs84 (metres, arc-seconds in the
/// position-vector convention, ppm). Null when the shift can't be read.
ProjObject boundToWgs84(PJ_CONTEXT* context, const ProjObject& crs, const QByteArray& towgs84);

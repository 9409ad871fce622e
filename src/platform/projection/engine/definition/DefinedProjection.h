#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"

#include <QByteArray>

#include <memory>

class ProjContext;

/// The projection of a definition (its datum shift plays no part), computed by what keeps the micrometre; null when
/// PROJ can't make a projection of it. That is PROJ itself, but for the oblique Mercator: near the azimuths 90 and -90
/// PROJ's omerc is off by up to 0.3 m, and loses 0.5 mm with each turn there and back; see ObliqueMercator.h.
std::unique_ptr<PlaneProjection> definedProjection(const ProjContext& context, const QByteArray& definition);

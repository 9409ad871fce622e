#pragma once

#include "platform/projection/engine/plane/PlaneProjection.h"

#include <QByteArray>

#include <memory>

class ProjContext;

/// The projection of a definition, whose datum shift plays no part; null when PROJ can't make a projection of it. What
/// PROJ does not compute to the micrometre at its limits is computed by the classes of engine/plane: omerc, stere,
/// sterea, lcc, and tmerc on a sphere; bench/limits measures it. The rest, and what has items that these don't know, is
/// PROJ's.
std::unique_ptr<PlaneProjection> definedProjection(const ProjContext& context, const QByteArray& definition);

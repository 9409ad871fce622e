#pragma once

#include <QByteArray>

struct Ellipsoid;
class ProjContext;
class ProjItems;

/// Whether PROJ accepts both projections and computes the same from them: at three places around the origin of
/// `normalised`, up to 3 degrees away in either direction, within a millionth of its unit. Datum and axis items play no
/// part.
bool isSameProjection(const ProjContext& context, const ProjItems& given, const QByteArray& normalised,
                      const Ellipsoid& ellipsoid);

#pragma once

#include <QByteArray>

class ProjItems;

/// The longitude from Greenwich in degrees of a prime meridian that PROJ knows by this name in lower case; NaN for
/// another.
double namedMeridian(const QByteArray& name);

/// The longitude of a definition's prime meridian from Greenwich in degrees; NaN for one that PROJ does not know.
double primeMeridianOf(const ProjItems& items);

/// A longitude that is counted from a prime meridian, counted from Greenwich instead: -180 to 180 degrees. NaN
/// beyond two turns, which is no longitude.
double fromGreenwich(double longitude, double primeMeridian);

#pragma once

#include <QByteArray>

struct Ellipsoid;
class ProjItems;

/// A definition's projection in the parameters that the parameter record's methods have (MethodParameters.h): utm as
/// tmerc, ups as stere, +lat_ts where a standard parallel gives the scale. Longitudes are counted from Greenwich, -180
/// to 180 degrees; +k_0, +x_0 and +y_0 (metres) are always there, +k_0=1 where no scale is given. Empty when the
/// projection is none of these or a parameter is no number; whether the text is the projection that was given is for
/// isSameProjection() to prove.
///
/// Two methods are another one in other words:
/// - Hotine oblique Mercator variant A (+no_uoff) becomes variant B by moving the false origin along the central line,
///   from the natural origin to the projection centre (EPSG guidance note 7-2, methods 9812 and 9815);
/// - the Swiss oblique Mercator (somerc) becomes Hotine's variant B with azimuth 90, as the EPSG registry defines the
///   Swiss and Hungarian grids; ObliqueMercator and PROJ's somerc agree to 1e-8 m over both countries.
///
/// Written by hand, since PROJ's own reader gets only 19 of the 28 definitions right that the tests list as normalised,
/// and 21 of the 25 that no method holds.
QByteArray normalisedProjection(const ProjItems& items, const Ellipsoid& ellipsoid);

/// Whether projections of that name in PROJ may be among the record's methods.
bool isKnownProjection(const QByteArray& projName);

/// The origin and the parallels of a definition without its projection and scale, longitudes from Greenwich.
QByteArray parametersWithoutProjection(const ProjItems& items);

#pragma once

/// The isometric latitude: the ordinate of Mercator's projection on an ellipsoid with the radius 1 and the eccentricity
/// `e` (0 to below 1), psi = asinh(tan(phi)) - e atanh(e sin(phi)). Radians; finite at the poles, too, where phi is as
/// near to a right angle as its digits allow.
namespace IsometricLatitude {

double ofLatitude(double phi, double e);

/// By Newton's method (Karney 2011, Transverse Mercator with an accuracy of a few nanometers, equations 19 to 21).
double toLatitude(double psi, double e);

} // namespace IsometricLatitude

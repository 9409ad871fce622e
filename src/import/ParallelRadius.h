#pragma once

/// How a parameter record keeps a standard parallel: as the radius that the parallel has on a sphere with the
/// semi-major axis, a cos(latitude), so without its sign.
namespace ParallelRadius {

/// The radius in metres for a semi-major axis in metres and a latitude in degrees.
double ofLatitude(double semiMajorAxis, double latitude);

/// The latitude in degrees, 0 to 90; more for a negative radius, NaN for one outside -a to a.
double toLatitude(double semiMajorAxis, double radius);

} // namespace ParallelRadius

#include "panel/computing/EllipsoidAxes.h"

#include "catalogue/Angle.h"

#include <cmath>

GeocentricPoint EllipsoidAxes::toGeocentric(const GeographicPoint& point) const {
    const double flattening = inverseFlattening == 0.0 ? 0.0 : 1.0 / inverseFlattening;
    const double e2 = flattening * (2.0 - flattening);
    const double phi = Angle::toRadians(point.latitude);
    const double lambda = Angle::toRadians(point.longitude);
    const double normal = a / std::sqrt(1.0 - e2 * std::sin(phi) * std::sin(phi));
    const double radius = (normal + point.height) * std::cos(phi);
    return {radius * std::cos(lambda), radius * std::sin(lambda), (normal * (1.0 - e2) + point.height) * std::sin(phi)};
}

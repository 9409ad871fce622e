#include "panel/computing/GroundDistance.h"

#include "catalogue/Angle.h"
#include "platform/projection/IProjectedSystem.h"

#include <cmath>

double groundDistance(const GeographicPoint& left, const GeographicPoint& right, double radius) {
    const double north = Angle::toRadians(left.latitude - right.latitude) * radius;
    const double east = Angle::toRadians(std::remainder(left.longitude - right.longitude, 360.0)) * radius *
                        std::cos(Angle::toRadians(left.latitude));
    return std::hypot(north, east, left.height - right.height);
}

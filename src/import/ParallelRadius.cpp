#include "import/ParallelRadius.h"

#include "catalogue/Angle.h"

#include <cmath>

double ParallelRadius::ofLatitude(double semiMajorAxis, double latitude) {
    return semiMajorAxis * std::cos(Angle::toRadians(latitude));
}

double ParallelRadius::toLatitude(double semiMajorAxis, double radius) {
    return Angle::toDegrees(std::acos(radius / semiMajorAxis));
}

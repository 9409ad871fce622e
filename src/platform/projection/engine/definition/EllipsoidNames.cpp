#include "platform/projection/engine/definition/EllipsoidNames.h"

#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/RegistryEllipsoids.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

double inverseFlattening(double a, double b) {
    return a == b ? std::numeric_limits<double>::infinity() : a / (a - b);
}

bool sameAxes(double a, double b, double otherA, double otherB) {
    constexpr double decimals4 = 0.6e-4;
    constexpr double decimals6 = 0.6e-6;
    if (std::abs(a - otherA) > decimals4)
        return false;
    return std::abs(b - otherB) < decimals4 ||
           std::abs(inverseFlattening(a, b) - inverseFlattening(otherA, otherB)) < decimals6;
}

/// Ascending in the order in which the registry took its entries in: its first codes are 7001 and up; those below were
/// given later.
int age(const RegistryEllipsoid& ellipsoid) {
    return ellipsoid.code >= 7000 ? ellipsoid.code : ellipsoid.code + 10000;
}

} // namespace

void EllipsoidNames::readRegistry() {
    ellipsoids = registryEllipsoids(context.get());
    std::sort(ellipsoids.begin(), ellipsoids.end(), [](const RegistryEllipsoid& left, const RegistryEllipsoid& right) {
        return std::make_pair(left.deprecated, age(left)) < std::make_pair(right.deprecated, age(right));
    });
}

QByteArray EllipsoidNames::nameOf(double a, double b) {
    if (ellipsoids.empty())
        readRegistry();
    QByteArray name;
    double nearest = std::numeric_limits<double>::infinity();
    for (const RegistryEllipsoid& ellipsoid : ellipsoids) {
        const double distance = std::abs(a - ellipsoid.a) + std::abs(b - ellipsoid.b);
        if (distance < nearest && sameAxes(a, b, ellipsoid.a, ellipsoid.b)) {
            nearest = distance;
            name = ellipsoid.name;
        }
    }
    return name;
}

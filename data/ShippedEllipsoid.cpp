#include "ShippedEllipsoid.h"

#include "NaturalOrder.h"
#include "platform/projection/ProjNumber.h"

#include <QString>

#include <algorithm>

namespace {

QByteArray figure(double value) {
    const QByteArray text = projNumber(value);
    return text.contains('.') ? text : text + ".0";
}

/// Whether a valid ellipsoid has the name of this deprecated one.
bool isReplaced(const RegistryEllipsoid& ellipsoid, const std::vector<RegistryEllipsoid>& registry) {
    return ellipsoid.deprecated && std::any_of(registry.begin(), registry.end(), [&](const RegistryEllipsoid& other) {
               return !other.deprecated && other.name == ellipsoid.name;
           });
}

} // namespace

std::vector<ShippedEllipsoid> shippedEllipsoids(const std::vector<RegistryEllipsoid>& registry) {
    std::vector<ShippedEllipsoid> ellipsoids;
    for (const RegistryEllipsoid& ellipsoid : registry) {
        if (!isReplaced(ellipsoid, registry))
            ellipsoids.push_back({ellipsoid.name, figure(ellipsoid.a), figure(ellipsoid.inverseFlattening)});
    }
    std::sort(ellipsoids.begin(), ellipsoids.end(), [](const ShippedEllipsoid& left, const ShippedEllipsoid& right) {
        return naturalLess(QString::fromUtf8(left.name), QString::fromUtf8(right.name));
    });
    return ellipsoids;
}

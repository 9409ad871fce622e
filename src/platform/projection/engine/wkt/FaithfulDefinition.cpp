#include "platform/projection/engine/wkt/FaithfulDefinition.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/wkt/ProjectedWkt.h"

#include <algorithm>
#include <cmath>

namespace {

/// Every number that the definition says, and those that it says without writing them down.
QVector<double> numbersOf(const ProjItems& definition, const Ellipsoid& ellipsoid) {
    QVector<double> numbers;
    for (const ProjItems::Item& item : definition.all()) {
        const double number = ProjItems::toNumber(item.value);
        if (!std::isnan(number))
            numbers.append(number);
    }
    const QByteArray projection = definition.text("proj");
    if (projection == "utm")
        numbers += {definition.number("zone", 0) * 6 - 183, 0.9996, 500000, 10000000};
    if (projection == "somerc")
        numbers += 90;
    if (projection == "merc") {
        // The scale on the equator, by which ESRI's texts may state the standard parallel: the inverse of the scale k
        // on it, k = sqrt(1 - e^2 sin^2(phi)) / cos(phi) (Snyder 1987, (7-8)).
        const double phi = Angle::toRadians(definition.angle("lat_ts", 0));
        numbers += std::cos(phi) / std::sqrt(1 - ellipsoid.e2() * std::pow(std::sin(phi), 2));
    }
    return numbers;
}

/// Definitions have 15 digits; 1e-9 degrees are 0.1 mm on the ground.
bool agree(double left, double right) {
    return std::abs(left - right) <= 1e-9 + 1e-11 * std::abs(right);
}

bool isIn(const QVector<double>& numbers, double value, double unit) {
    return std::any_of(numbers.begin(), numbers.end(), [=](double number) {
        return agree(value, number) || agree(value * unit, number) ||
               agree(std::remainder(Angle::toDegrees(value * unit) - number, 360), 0);
    });
}

bool hasUnits(const ProjectedWkt& wkt) {
    return std::all_of(wkt.units.begin(), wkt.units.end(), [](double unit) { return unit > 0; });
}

bool hasParameters(const ProjItems& definition, const ProjectedWkt& wkt, const Ellipsoid& ellipsoid) {
    const QVector<double> numbers = numbersOf(definition, ellipsoid);
    return std::all_of(wkt.parameters.begin(), wkt.parameters.end(), [&](const ProjectedWkt::Parameter& parameter) {
        const bool isNeutral = parameter.value == 0 || (parameter.value == 1 && parameter.name.contains("scale"));
        return isNeutral || std::any_of(wkt.units.begin(), wkt.units.end(),
                                        [&](double unit) { return isIn(numbers, parameter.value, unit); });
    });
}

bool hasEllipsoid(const ProjItems& definition, const ProjectedWkt& wkt, const Ellipsoid& ellipsoid) {
    constexpr double tolerance = 5e-4;
    const double a = wkt.semiMajorAxis;
    // The web's Mercator takes latitudes on the ellipsoid for latitudes on a sphere.
    const bool isWebMercator = definition.text("nadgrids") == "@null" && ellipsoid.b == ellipsoid.a;
    const double b = wkt.inverseFlattening == 0 || isWebMercator ? a : a - a / wkt.inverseFlattening;
    return std::abs(ellipsoid.a - a) < tolerance && std::abs(ellipsoid.b - b) < tolerance;
}

bool hasMeridian(const ProjItems& definition, const ProjectedWkt& wkt) {
    const double meridian = primeMeridianOf(definition);
    const auto isMeridian = [=](double longitude) { return std::abs(longitude - meridian) < 1e-8; };
    return isMeridian(wkt.primeMeridian) || std::any_of(wkt.units.begin(), wkt.units.end(), [&](double unit) {
               return isMeridian(Angle::toDegrees(wkt.primeMeridian * unit));
           });
}

/// Around a pole both axes point along meridians: the easting along the central one + 90 degrees, the northing along
/// the opposite of the central one at the north pole and along itself at the south pole.
bool hasPolarAxes(const ProjItems& definition, const ProjectedWkt& wkt) {
    const double latitude = definition.angle("lat_0", 0);
    if (std::abs(latitude) != 90 || !definition.text("proj").startsWith("stere"))
        return false;
    const QByteArray direction = latitude > 0 ? "south" : "north";
    const double central = definition.angle("lon_0", 0);
    const double meridians[] = {central + 90, latitude > 0 ? central + 180 : central};
    return wkt.axes.count(direction) == 2 &&
           std::all_of(wkt.axisMeridians.begin(), wkt.axisMeridians.end(), [&](double meridian) {
               return std::any_of(std::begin(meridians), std::end(meridians), [meridian](double expected) {
                   return std::abs(std::remainder(meridian - expected, 360)) < 1e-6;
               });
           });
}

bool hasAxes(const ProjItems& definition, const ProjectedWkt& wkt) {
    const bool eastNorth = wkt.axes.contains("east") && wkt.axes.contains("north");
    const bool unsaid = std::all_of(wkt.axes.begin(), wkt.axes.end(),
                                    [](const QByteArray& axis) { return axis == "other" || axis == "unspecified"; });
    return unsaid || eastNorth || hasPolarAxes(definition, wkt);
}

} // namespace

bool isFaithful(const ProjItems& definition, const ProjectedWkt& wkt) {
    Ellipsoid ellipsoid;
    return !wkt.method.contains("belgium") && ellipsoid.read(definition) && hasEllipsoid(definition, wkt, ellipsoid) &&
           hasUnits(wkt) && hasMeridian(definition, wkt) && hasAxes(definition, wkt) &&
           hasParameters(definition, wkt, ellipsoid);
}

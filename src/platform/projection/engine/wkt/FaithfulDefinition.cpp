#include "platform/projection/engine/wkt/FaithfulDefinition.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/NormalisedProjection.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/wkt/ProjectedWkt.h"
#include "platform/projection/engine/wkt/StatedProjection.h"

#include <QByteArrayList>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

/// Definitions have 15 digits; 1e-9 degrees are 0.1 mm on the ground. Units are known by their name and ten digits, and
/// computed with all of them.
bool agree(double left, double right) {
    return std::abs(left - right) <= 1e-9 + 1e-10 * std::abs(right);
}

/// Whether two normalised projections are the same.
bool areSame(const QByteArray& left, const QByteArray& right) {
    const ProjItems leftItems(left);
    const ProjItems rightItems(right);
    return std::equal(leftItems.all().begin(), leftItems.all().end(), rightItems.all().begin(), rightItems.all().end(),
                      [](const ProjItems::Item& item, const ProjItems::Item& other) {
                          if (item.key != other.key || item.key == "proj")
                              return item.key == other.key && item.value == other.value;
                          const double number = ProjItems::toNumber(item.value);
                          const double otherNumber = ProjItems::toNumber(other.value);
                          return item.key.startsWith("lon") ? std::abs(std::remainder(number - otherNumber, 360)) < 1e-8
                                                            : agree(number, otherNumber);
                      });
}

/// Whether they can be an ellipsoid's in metres: not in kilometres, nor the Earth's in feet or yards, nor the minor
/// axis in place of the inverse flattening.
bool areAxes(double semiMajorAxis, double inverseFlattening) {
    constexpr double smallest = 1e5; // the moons and planets that are mapped have larger ones
    constexpr double earth = 6.37e6;
    const auto isEarthIn = [=](double unit) { return std::abs(semiMajorAxis * unit / earth - 1) < 0.01; };
    const bool isMinorAxis = inverseFlattening > 0.9 * semiMajorAxis && inverseFlattening <= semiMajorAxis;
    return semiMajorAxis > smallest && !isEarthIn(0.3048) && !isEarthIn(0.9144) && !isMinorAxis &&
           (inverseFlattening == 0 || inverseFlattening > 1);
}

/// It takes latitudes on the ellipsoid for latitudes on a sphere.
bool isMercatorOfTheWeb(const ProjectedWkt& wkt) {
    return wkt.method == "popularvisualisationpseudomercator";
}

bool hasEllipsoid(const ProjItems& definition, const ProjectedWkt& wkt, const Ellipsoid& ellipsoid) {
    constexpr double tolerance = 5e-4;
    const double a = wkt.semiMajorAxis;
    // The web's Mercator takes latitudes on the ellipsoid for latitudes on a sphere.
    const bool isWebMercator = definition.text("nadgrids") == "@null" && ellipsoid.b == ellipsoid.a;
    const double b = wkt.inverseFlattening == 0 || isWebMercator ? a : a - a / wkt.inverseFlattening;
    return areAxes(a, wkt.inverseFlattening) && std::abs(ellipsoid.a - a) < tolerance &&
           std::abs(ellipsoid.b - b) < tolerance;
}

bool areAlong(const QVector<double>& meridians, std::initializer_list<double> expected) {
    return std::all_of(meridians.begin(), meridians.end(), [=](double meridian) {
        return std::any_of(expected.begin(), expected.end(), [meridian](double longitude) {
            return std::abs(std::remainder(meridian - longitude, 360)) < 1e-6;
        });
    });
}

/// Around a pole both axes point along meridians: the easting along the central one + 90 degrees, the northing along
/// the opposite of the central one at the north pole and along itself at the south pole. PROJ writes the meridians of a
/// central one of 0 whichever it is.
bool hasPolarAxes(const ProjItems& definition, const ProjectedWkt& wkt) {
    const double latitude = definition.angle("lat_0", 0);
    if (std::abs(latitude) != 90 || !definition.text("proj").startsWith("stere"))
        return false;
    const QByteArray direction = latitude > 0 ? "south" : "north";
    const double central = definition.angle("lon_0", 0);
    const double opposite = latitude > 0 ? 180 : 0;
    return wkt.axes.count(direction) == 2 && (areAlong(wkt.axisMeridians, {central + 90, central + opposite}) ||
                                              areAlong(wkt.axisMeridians, {90, opposite}));
}

bool hasAxes(const ProjItems& definition, const ProjectedWkt& wkt) {
    const bool eastNorth = wkt.axes.contains("east") && wkt.axes.contains("north");
    const bool unsaid = std::all_of(wkt.axes.begin(), wkt.axes.end(),
                                    [](const QByteArray& axis) { return axis == "other" || axis == "unspecified"; });
    return unsaid || eastNorth || hasPolarAxes(definition, wkt);
}

QByteArray without(const ProjItems& definition, bool (*isOut)(const QByteArray& key)) {
    QByteArray text;
    for (const ProjItems::Item& item : definition.all()) {
        if (!isOut(item.key))
            text += (text.isEmpty() ? "+" : " +") + item.key + (item.value.isEmpty() ? "" : '=' + item.value);
    }
    return text;
}

QByteArray withoutProjection(const ProjItems& definition) {
    return without(definition, [](const QByteArray& key) { return key == "proj"; });
}

QByteArray datumOf(const ProjItems& definition) {
    return without(definition, [](const QByteArray& key) {
        constexpr const char* datumKeys[] = {"datum", "ellps", "R", "a", "b", "rf", "towgs84", "nadgrids"};
        return std::none_of(std::begin(datumKeys), std::end(datumKeys),
                            [&key](const char* datumKey) { return key == datumKey; });
    });
}

} // namespace

FaithfulDefinition faithfulDefinition(const QByteArray& exported, const ProjectedWkt& wkt) {
    using Reason = Withheld::Reason;
    const ProjItems items(exported);
    const StatedProjection stated(wkt);
    const ProjItems statedItems(stated.definition);
    const auto withhold = [&items](const Withheld& withheld) {
        return FaithfulDefinition{withoutProjection(items), withheld};
    };
    Ellipsoid ellipsoid;
    if (stated.definition.isEmpty())
        return withhold(stated.withheld);
    if (!ellipsoid.read(items) || !hasEllipsoid(items, wkt, ellipsoid))
        return withhold({Reason::Ellipsoid, {}});
    if (!hasAxes(statedItems, wkt))
        return withhold({Reason::Axes, wkt.axes.toList().join(", ")});
    const QByteArray normalised = normalisedProjection(statedItems, ellipsoid);
    if (normalised.isEmpty())
        return withhold({Reason::Value, wkt.methodText});
    const bool isOnlyOurs = stated.isOnlyOurs && !wkt.hasExtension;
    if (!(isOnlyOurs || areSame(normalised, normalisedProjection(items, ellipsoid))))
        return withhold({Reason::Disagreement, {}});
    // Readers round the meridian of Paris.
    const bool isRead = !isOnlyOurs && statedItems.text("pm") == "0";
    return {isRead ? exported : normalised + ' ' + datumOf(items), {}};
}

QByteArray statedDefinition(const ProjectedWkt& wkt) {
    const StatedProjection stated(wkt);
    const ProjItems items(stated.definition);
    if (stated.definition.isEmpty() || !areAxes(wkt.semiMajorAxis, wkt.inverseFlattening) || !hasAxes(items, wkt))
        return {};
    const double a = wkt.semiMajorAxis;
    const bool isSphere = wkt.inverseFlattening == 0 || isMercatorOfTheWeb(wkt);
    const double b = isSphere ? a : a - a / wkt.inverseFlattening;
    const QByteArray normalised = normalisedProjection(items, {QByteArray(), a, b});
    const QByteArray shape = isSphere ? " +b=" + projNumber(a) : " +rf=" + projNumber(wkt.inverseFlattening);
    return normalised.isEmpty() ? normalised : normalised + " +a=" + projNumber(a) + shape + " +units=m +no_defs";
}

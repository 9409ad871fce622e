#include "panel/computing/Identification.h"

#include "platform/projection/IProjectionModule.h"

#include <QElapsedTimer>
#include <QMap>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <tuple>

namespace {

/// A definition's items but for its method and flags.
struct Items {
    QByteArray method;
    QMap<QByteArray, double> numbers;

    explicit Items(const QByteArray& definition) {
        for (const QByteArray& item : definition.split(' ')) {
            const int equals = item.indexOf('=');
            const QByteArray key = item.mid(1, equals - 1);
            if (key == "proj")
                method = item.mid(equals + 1);
            else if (key == "b")
                numbers.insert("rf", 0); // a sphere's
            else if (equals > 0 && key != "units" && key != "towgs84")
                numbers.insert(key, item.mid(equals + 1).toDouble());
        }
    }

    /// Of the origin; the central line of an oblique projection begins at its centre.
    double longitude() const {
        for (const char* key : {"lonc", "lon_1", "lon_0"}) {
            if (numbers.contains(key))
                return numbers.value(key);
        }
        return 0;
    }

    double latitude() const { return numbers.value("lat_0", 0); }
};

/// What the registry calls a method of the definitions; only for the order of the search.
bool isMethod(const QByteArray& registryName, const QByteArray& projName) {
    if (registryName.startsWith("Transverse"))
        return projName == "tmerc";
    if (registryName.startsWith("Lambert Conic"))
        return projName == "lcc";
    if (registryName.startsWith("Hotine"))
        return projName == "omerc";
    if (registryName.startsWith("Polar"))
        return projName == "stere";
    if (registryName.startsWith("Oblique"))
        return projName == "sterea";
    if (registryName.startsWith("Cassini"))
        return projName == "cass";
    return projName == "merc";
}

struct Box {
    double west, south, width, height; ///< degrees

    double area() const { return width * height; }

    /// How far a meridian lies outside, in degrees.
    double distanceTo(double longitude) const {
        return std::max(0.0, std::abs(std::remainder(longitude - west - width / 2, 360)) - width / 2);
    }

    GeographicPoint at(double x, double y) const { return {south + y * height, west + x * width, 0}; }
};

/// A system's area of use. Where the registry has none (some that it has withdrawn), it is about the origin.
Box boxOf(const RegistrySystem& system, const QByteArray& definition) {
    if (system.hasExtent) {
        const double width = system.east - system.west;
        return {system.west, system.south, width < 0 ? width + 360 : width, system.north - system.south};
    }
    const Items items(definition);
    const double south = std::clamp(items.latitude() - 5, -90.0, 80.0);
    return {items.longitude() - 3, south, 6, 10};
}

double distance(const GridPoint& left, const GridPoint& right) {
    return std::hypot(left.easting - right.easting, left.northing - right.northing);
}

bool isEqual(const QByteArray& left, const QByteArray& right) {
    return !left.isEmpty() && qstricmp(left.constData(), right.constData()) == 0;
}

/// About how much a difference in an item is on the ground, in metres.
double metresOf(const RegistryMatch::Difference& difference, double a) {
    const double amount = std::abs(difference.here - difference.there);
    const QByteArray& item = difference.item;
    if (std::isnan(amount))
        return a;
    const auto minorAxis = [a](double inverseFlattening) {
        return inverseFlattening == 0 ? a : a - a / inverseFlattening;
    };
    if (item == "x_0" || item == "y_0" || item == "a")
        return amount;
    if (item == "rf")
        return std::abs(minorAxis(difference.here) - minorAxis(difference.there));
    if (item == "k_0")
        return amount * 1e6;
    const double degree = a / 57.3;
    return (item.startsWith("lon") ? std::abs(std::remainder(amount, 360)) : amount) * degree;
}

/// Notes what differs between two definitions of one method, and how much that is altogether.
void noteDifferences(const Items& here, const Items& there, RegistryMatch& match) {
    constexpr double missing = std::numeric_limits<double>::quiet_NaN();
    const double a = here.numbers.value("a");
    const auto note = [&](const QByteArray& item, double left, double right) {
        const RegistryMatch::Difference difference{item, left, right};
        const double metres = metresOf(difference, a);
        match.distance += metres;
        if (metres > (item == "rf" ? Identification::tolerance : RegistryMatch::exactly))
            match.differences.append(difference);
    };
    for (auto item = here.numbers.begin(); item != here.numbers.end(); ++item)
        note(item.key(), *item, there.numbers.value(item.key(), missing));
    for (auto item = there.numbers.begin(); item != there.numbers.end(); ++item) {
        if (!here.numbers.contains(item.key()))
            note(item.key(), missing, *item);
    }
}

} // namespace

void Identification::start(const Subject& wanted) {
    subject = wanted;
    projection = module.createSystem(subject.definition);
    matches.clear();
    neighbours.clear();
    order.clear();
    position = 0;
    likely = 0;
    if (projection)
        putInOrder();
}

/// The systems of its method come first in whose area its origin lies, then those nearer to it.
void Identification::putInOrder() {
    const auto& systems = module.registry().projectedSystems();
    const Items items(subject.definition);
    places.resize(systems.size());
    std::vector<double> remoteness(systems.size());
    for (std::size_t i = 0; i < systems.size(); ++i) {
        constexpr double otherMethod = 1000;
        const RegistrySystem& system = systems[i];
        if (system.code != subject.code)
            remoteness[i] = (system.hasExtent ? boxOf(system, {}).distanceTo(items.longitude()) : 180) +
                            (isMethod(system.method, items.method) ? 0 : otherMethod);
    }
    order.resize(systems.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t left, std::size_t right) { return remoteness[left] < remoteness[right]; });
    likely = std::size_t(std::count(remoteness.begin(), remoteness.end(), 0));
}

bool Identification::advance(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (!isFinished() && !clock.hasExpired(milliseconds)) {
        compare(order[position]);
        ++position;
        if (isFinished() && matches.empty())
            findNearest();
    }
    sort(matches);
    return isFinished();
}

const Identification::Place& Identification::placeOf(std::size_t index) {
    if (places[index])
        return *places[index];
    const RegistrySystem& system = module.registry().projectedSystems()[index];
    const QByteArray& definition = module.registry().definition(system.code).definition;
    Place place{boxOf(system, definition).at(0.5, 0.5), std::nullopt};
    if (const auto projected = definition.isEmpty() ? nullptr : module.createSystem(definition))
        place.grid = projected->toGrid(place.point);
    places[index] = place;
    return *places[index];
}

void Identification::compare(std::size_t index) {
    const Place& place = placeOf(index);
    const auto grid = place.grid ? projection->toGrid(place.point) : std::nullopt;
    if (!grid || !(distance(*grid, *place.grid) <= tolerance))
        return;
    const RegistrySystem& system = module.registry().projectedSystems()[index];
    const std::optional<double> farthest = distanceTo(system);
    if (farthest && *farthest <= tolerance)
        matches.push_back({&system, &module.registry().definition(system.code), *farthest, {}});
}

/// The largest difference over the system's area, its edges included; nothing where one of both can't be computed.
std::optional<double> Identification::distanceTo(const RegistrySystem& system) const {
    const QByteArray& definition = module.registry().definition(system.code).definition;
    const Box box = boxOf(system, definition);
    const auto other = module.createSystem(definition);
    constexpr int steps = 6;
    double farthest = 0;
    for (int i = 0; i <= steps * steps + 2 * steps; ++i) {
        const int column = i % (steps + 1);
        const int row = i / (steps + 1);
        const GeographicPoint point = box.at(double(column) / steps, double(row) / steps);
        const auto here = projection->toGrid(point);
        const auto there = other->toGrid(point);
        if (here.has_value() != there.has_value())
            return std::nullopt;
        if (here)
            farthest = std::max(farthest, distance(*here, *there));
    }
    return farthest;
}

void Identification::findNearest() {
    constexpr int most = 2;
    const Items items(subject.definition);
    for (const RegistrySystem& system : module.registry().projectedSystems()) {
        const RegistryDefinition& definition = module.registry().definition(system.code);
        const Items other(definition.definition);
        if (other.method != items.method)
            continue;
        RegistryMatch match{&system, &definition, 0, {}};
        noteDifferences(items, other, match);
        if (!match.differences.isEmpty() && match.differences.size() <= most)
            neighbours.push_back(match);
    }
    sort(neighbours);
}

/// Best first. Of several that compute the same, one whose names speak for it, then the most usual.
void Identification::sort(std::vector<RegistryMatch>& list) const {
    const auto rank = [this](const RegistryMatch& match) {
        const RegistryDefinition& definition = *match.definition;
        const double centimetres = std::round(match.distance * 100);
        const double inExactness = std::ceil(match.distance / RegistryMatch::exactly);
        const double area = boxOf(*match.system, definition.definition).area();
        return std::make_tuple(match.differences.size(), centimetres, -preference(match), inExactness,
                               match.system->deprecated, definition.unit != 1, definition.northingFirst, -area,
                               match.system->code.toInt());
    };
    std::sort(list.begin(), list.end(),
              [&rank](const RegistryMatch& left, const RegistryMatch& right) { return rank(left) < rank(right); });
}

/// How much speaks for one of several systems that compute the same.
int Identification::preference(const RegistryMatch& match) const {
    return (match.system->code == subject.code ? 4 : 0) + (isEqual(subject.datum, match.definition->datum) ? 2 : 0) +
           (isEqual(subject.name, match.system->name) ? 1 : 0);
}

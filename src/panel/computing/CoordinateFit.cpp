#include "panel/computing/CoordinateFit.h"

#include "catalogue/Angle.h"
#include "panel/record/LengthUnit.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double million = 1e6;

/// Below it, misfits say nothing about the system: coordinates are given to the centimetre at best.
constexpr double smallestMisfit = 0.01;

/// Metres on a sphere of the radius `radius`, whatever lies between the two places (haversine formula).
double arc(const GeographicPoint& left, const GeographicPoint& right, double radius) {
    const auto halfSine = [](double degrees) { return std::sin(Angle::toRadians(degrees) / 2); };
    const double north = halfSine(left.latitude - right.latitude);
    const double east = halfSine(left.longitude - right.longitude);
    const double square = north * north + std::cos(Angle::toRadians(left.latitude)) *
                                              std::cos(Angle::toRadians(right.latitude)) * east * east;
    return 2 * radius * std::asin(std::sqrt(std::min(1.0, square)));
}

/// The value of "+key=" in a definition; `fallback` where there is none.
double item(const QByteArray& definition, const char* key, double fallback) {
    const int at = definition.indexOf(key);
    if (at < 0)
        return fallback;
    bool isNumber = false;
    const int from = at + int(qstrlen(key));
    const double value = definition.mid(from, definition.indexOf(' ', from) - from).toDouble(&isNumber);
    return isNumber ? value : fallback;
}

bool isWhole(double value) {
    return std::abs(value - std::round(value)) < 1e-6;
}

bool isSameUnit(double left, double right) {
    return std::abs(left - right) < 1e-9 * right;
}

/// The digits that are written before the easting of a transverse Mercator's zone: those that its false easting has,
/// negative where they are rather left out. Those of the usual zones by their central meridian: UTM and Gauss-Krueger
/// of 6 degrees, Gauss-Krueger of 3 degrees, and the meridian itself.
QVector<int> zoneDigits(const QByteArray& definition) {
    constexpr double middle = 500000.0;
    const double falseEasting = item(definition, "+x_0=", 0.0);
    const double meridian = item(definition, "+lon_0=", 0.0);
    if (!definition.startsWith("+proj=tmerc "))
        return {};
    const double digits = (falseEasting - middle) / million;
    if (!isWhole(digits) || digits < 0.0)
        return {};
    if (digits > 0.5)
        return {int(std::round(digits))};
    QVector<int> result;
    const auto add = [&result](double zone) {
        const int whole = -int(std::round(zone));
        if (isWhole(zone) && zone > 0.5 && !result.contains(whole))
            result.append(whole);
    };
    const double east = meridian < 0.0 ? meridian + 360.0 : meridian;
    add((meridian + 183.0) / 6.0);
    add((east + 3.0) / 6.0);
    add(east / 3.0);
    add(meridian);
    return result;
}

/// The readings of coordinates, those first that are the likelier.
QVector<CoordinateReading> readings(const QByteArray& definition, double ownUnit) {
    QVector<double> units{1.0};
    for (const double unit :
         {ownUnit, LengthUnit::metres(LengthUnit::UsSurveyFoot), LengthUnit::metres(LengthUnit::InternationalFoot)}) {
        if (unit > 0.0 && std::none_of(units.begin(), units.end(),
                                       [unit](double known) { return std::abs(known / unit - 1.0) < 1e-9; }))
            units.append(unit);
    }
    QVector<CoordinateReading> result;
    for (const double unit : qAsConst(units)) {
        for (const bool northingFirst : {false, true})
            result.append({northingFirst, unit, 0, false});
    }
    for (const int digits : zoneDigits(definition)) {
        for (const bool northingFirst : {false, true})
            result.append({northingFirst, 1.0, digits, false});
    }
    return result;
}

} // namespace

GridPoint CoordinateReading::toGrid(const KnownCoordinates& known) const {
    const double easting = (northingFirst ? known.second : known.first) * unit;
    const double northing = (northingFirst ? known.first : known.second) * unit;
    return {easting + zoneDigits * million, northing};
}

int CoordinateReading::differences(const CoordinateReading& other) const {
    return int(northingFirst != other.northingFirst) + int(!isSameUnit(unit, other.unit)) +
           int(zoneDigits != other.zoneDigits);
}

std::optional<CoordinateFit> CoordinateFit::of(const IProjectedSystem& system, const CoordinateReading& reading,
                                               const QVector<KnownCoordinates>& known) {
    std::optional<GeographicPoint> first;
    double squares = 0.0, gridSquares = 0.0, east = 0.0, north = 0.0;
    for (const KnownCoordinates& one : known) {
        const GeographicPoint given{one.latitude, one.longitude, 0.0};
        const auto place = reading.shifted ? system.fromWgs84(given) : given;
        const GridPoint grid = reading.toGrid(one);
        const auto found = place ? system.toGeographic(grid, 0.0) : std::nullopt;
        // The way back from what lies off the projected world can lead anywhere.
        const auto again = found ? system.toGrid(*found) : std::nullopt;
        const auto expected = again ? system.toGrid({place->latitude, place->longitude, 0.0}) : std::nullopt;
        if (!expected || std::hypot(again->easting - grid.easting, again->northing - grid.northing) > 0.1)
            return std::nullopt;
        const double metres = arc(*place, *found, system.meanRadius(place->latitude));
        first = first ? first : found;
        squares += metres * metres;
        east += grid.easting - expected->easting;
        north += grid.northing - expected->northing;
        gridSquares += std::pow(grid.easting - expected->easting, 2) + std::pow(grid.northing - expected->northing, 2);
    }
    if (!first)
        return std::nullopt;
    const double count = known.size();
    const double common = (east * east + north * north) / count;
    CoordinateFit fit{reading, std::sqrt(squares / count), 0.0, 0.0, *first};
    if (known.size() > 1 && gridSquares > 0.0)
        fit.spread = fit.distance * std::sqrt(std::max(0.0, 1.0 - common / gridSquares));
    fit.misfit = std::pow(std::max(smallestMisfit, fit.distance), 1.0 / count) *
                 std::pow(std::max(smallestMisfit, fit.spread), 1.0 - 1.0 / count);
    if (known.size() == 1)
        fit.misfit = fit.distance;
    return fit;
}

double CoordinateFit::tolerance() const {
    return std::max(0.001, misfit * 1e-5);
}

bool CoordinateFit::isSame(const CoordinateFit& other) const {
    constexpr double earthRadius = 6371000.0;
    return std::abs(misfit - other.misfit) < tolerance() && arc(place, other.place, earthRadius) < tolerance();
}

std::optional<CoordinateFit> CoordinateFit::best(const IProjectedSystem& system, const QByteArray& definition,
                                                 double unit, const QVector<KnownCoordinates>& known) {
    std::optional<CoordinateFit> result;
    const auto take = [&](const CoordinateReading& reading) {
        const auto fit = of(system, reading, known);
        if (fit && (!result || fit->misfit < result->misfit / 2))
            result = fit;
    };
    for (CoordinateReading reading : readings(definition, unit)) {
        take(reading);
        reading.shifted = true;
        if (system.hasDatumShift())
            take(reading);
    }
    return result;
}

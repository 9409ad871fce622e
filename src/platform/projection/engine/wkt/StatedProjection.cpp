#include "platform/projection/engine/wkt/StatedProjection.h"

#include "catalogue/Angle.h"
#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/wkt/ProjectedWkt.h"
#include "platform/projection/engine/wkt/WktMethods.h"
#include "platform/projection/engine/wkt/WktUnit.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Quantity = ProjectedWkt::Parameter::Quantity;
using Meaning = WktMeaning;
using Reason = Withheld::Reason;
using Values = QMap<Meaning, double>;

Quantity quantityOf(Meaning meaning) {
    switch (meaning) {
    case Meaning::FalseEasting:
    case Meaning::FalseNorthing:
    case Meaning::SemiMajorAxis:
    case Meaning::SemiMinorAxis:
        return Quantity::Length;
    case Meaning::Scale:
    case Meaning::SphereType:
        return Quantity::Scale;
    default:
        return Quantity::Angle;
    }
}

/// A product has rounding errors behind its fifteenth digit, as the factors of units have.
double withFifteenDigits(double value) {
    return QByteArray::number(value, 'g', 15).toDouble();
}

/// An angle in degrees. 15 digits of a right angle in radians are off in the thirteenth decimal of degrees, and beyond
/// a pole there is nothing.
double toDegrees(double value, double unit) {
    const double factor = WktUnit::ofAngles(unit).factor;
    return factor == Angle::toRadians(1) ? value : std::round(Angle::toDegrees(value * factor) * 1e12) / 1e12;
}

/// The unit of the grid: not a number where there is none or more than one.
double gridUnitOf(const ProjectedWkt& wkt) {
    const QVector<double>& units = wkt.gridUnits;
    const bool isOne = !units.isEmpty() && units.count(units.first()) == units.size();
    return isOne ? units.first() : ProjectedWkt::none;
}

/// In degrees, metres or parts of 1; not a number where the text has no unit for it, or one of another kind.
double valueOf(const ProjectedWkt& wkt, const ProjectedWkt::Parameter& parameter, Meaning meaning) {
    const Quantity quantity = quantityOf(meaning);
    if (parameter.unitOf != Quantity::Any && parameter.unitOf != quantity)
        return ProjectedWkt::none;
    const auto ownOr = [&](double unit) { return std::isnan(parameter.unit) ? unit : parameter.unit; };
    if (quantity == Quantity::Angle)
        return toDegrees(parameter.value, ownOr(wkt.angularUnit));
    const bool isOfGrid = meaning == Meaning::FalseEasting || meaning == Meaning::FalseNorthing;
    const double unit = ownOr(isOfGrid ? gridUnitOf(wkt) : 1);
    return unit == 1 ? parameter.value : withFifteenDigits(parameter.value * unit);
}

/// Whether a parameter may have a value, in degrees, metres or parts of 1. A false easting may begin with the number of
/// a zone.
bool isInRange(Meaning meaning, double value) {
    constexpr double farthest = 1e9;
    constexpr double wholeTurn = 360;
    constexpr double smallest = 0.1;
    if (meaning == Meaning::Scale)
        return value >= smallest && value <= 1 / smallest;
    return std::abs(value) <= (quantityOf(meaning) == Quantity::Angle ? wholeTurn : farthest);
}

/// A parameter's values by their meanings, or why they leave a doubt.
Withheld readValues(const ProjectedWkt& wkt, Values& values) {
    for (const ProjectedWkt::Parameter& parameter : wkt.parameters) {
        const std::optional<Meaning> meaning = WktMethods::meaningOf(parameter.name, parameter.code);
        if (!meaning)
            return {Reason::UnknownParameter, parameter.text};
        const double value = valueOf(wkt, parameter, *meaning);
        if (std::isnan(value) && !std::isnan(parameter.value))
            return {Reason::Unit, parameter.text};
        if (!isInRange(*meaning, value))
            return {Reason::Value, parameter.text};
        if (values.contains(*meaning) && values.value(*meaning) != value)
            return {Reason::TwoValues, parameter.text};
        values.insert(*meaning, value);
    }
    return {};
}

/// Takes the parameters that repeat the ellipsoid; false when they state another.
bool takeEllipsoid(Values& values, const Ellipsoid& ellipsoid) {
    constexpr double tolerance = 1e-3; // some write millimetres
    const auto take = [&](Meaning meaning, double axis) {
        return !values.contains(meaning) || std::abs(values.take(meaning) - axis) < tolerance;
    };
    return take(Meaning::SemiMajorAxis, ellipsoid.a) && take(Meaning::SemiMinorAxis, ellipsoid.b);
}

/// The method's items with their numbers, or why the parameters are not its own.
Withheld readItems(const WktMethod& method, Values values, bool isEsri, const Ellipsoid& ellipsoid, WktItems& items) {
    using Presence = WktMethod::Presence;
    const bool hasFalseOrigin = std::any_of(method.uses.begin(), method.uses.end(), [](const WktMethod::Use& use) {
        return use.meaning == Meaning::LatitudeOfFalseOrigin;
    });
    if (!hasFalseOrigin && values.contains(Meaning::LatitudeOfFalseOrigin)) {
        if (values.contains(Meaning::LatitudeOfOrigin))
            return {Reason::ForeignParameter, WktMethods::nameOf(Meaning::LatitudeOfFalseOrigin)};
        values.insert(Meaning::LatitudeOfOrigin, values.take(Meaning::LatitudeOfFalseOrigin));
    }
    for (const WktMethod::Use& use : method.uses) {
        const bool isThere = values.contains(use.meaning);
        if (!isThere && (use.presence == Presence::Required || (use.presence == Presence::Esri && !isEsri)))
            return {Reason::MissingParameter, WktMethods::nameOf(use.meaning)};
        if (!isThere)
            continue;
        const double value = values.take(use.meaning);
        if (use.presence != Presence::Neutral)
            items.insert(use.item, value);
        else if (value != (use.meaning == Meaning::Scale ? 1 : 0))
            return {Reason::ForeignParameter, WktMethods::nameOf(use.meaning)};
    }
    if (!values.isEmpty())
        return {Reason::ForeignParameter, WktMethods::nameOf(values.firstKey())};
    return method.settle ? method.settle(items, ellipsoid) : Withheld();
}

constexpr double sameMeridian = 1e-8; // degrees, 1 mm

/// The longitude of a meridian that EPSG's registry knows by this plain name; NaN for another. PROJ has all but one,
/// and rounds that of Paris, 2.5969213 grads, by 3e-9 degrees, which are 0.4 mm.
double registeredMeridian(const QByteArray& name) {
    if (name == "paris")
        return 2.33722917;
    return name == "parisrgs" ? ProjItems::toAngle("2d20'13.95\"E") : namedMeridian(name);
}

/// The prime meridian in the unit that holds for it, in degrees.
double meridianInUnit(const ProjectedWkt& wkt) {
    const double unit = std::isnan(wkt.meridianUnit) ? wkt.angularUnit : wkt.meridianUnit;
    return std::isnan(unit) ? wkt.primeMeridian : toDegrees(wkt.primeMeridian, unit);
}

/// The prime meridian in degrees; not a number where the text leaves a doubt. WKT 1 has one always, and states it in
/// degrees or in the unit of the angles: a meridian's name tells which.
double meridianOf(const ProjectedWkt& wkt) {
    if (wkt.isWkt1 && wkt.meridianName.isEmpty())
        return ProjectedWkt::none;
    const double degrees = meridianInUnit(wkt);
    const double named = registeredMeridian(wkt.meridianName);
    const bool isWkt2Unit = !std::isnan(wkt.meridianUnit);
    if (std::abs(degrees - named) < sameMeridian || (!isWkt2Unit && std::abs(wkt.primeMeridian - named) < sameMeridian))
        return named;
    // Other figures for a meridian that has a name are some arc-seconds apart.
    constexpr double another = 0.05;
    const bool isAnother = std::abs(degrees - named) > another;
    const bool isInDoubt = !isWkt2Unit && degrees != wkt.primeMeridian;
    return isAnother || isInDoubt ? ProjectedWkt::none : degrees;
}

} // namespace

StatedProjection::StatedProjection(const ProjectedWkt& wkt) {
    const QVector<const WktMethod*> methods = WktMethods::find(wkt.method, wkt.methodCode);
    const double a = wkt.semiMajorAxis;
    const Ellipsoid ellipsoid{{}, a, wkt.inverseFlattening == 0 ? a : a - a / wkt.inverseFlattening};
    const double meridian = meridianOf(wkt);
    Values values;
    if (methods.isEmpty())
        withheld = {Reason::Method, wkt.methodText};
    else if (wkt.doubt.reason != Reason::None)
        withheld = wkt.doubt;
    else if (std::isnan(gridUnitOf(wkt)))
        withheld = {Reason::Unit, "easting, northing"};
    else
        withheld = readValues(wkt, values);
    if (withheld.reason == Reason::None && !takeEllipsoid(values, ellipsoid))
        withheld = {Reason::Ellipsoid, {}};
    if (withheld.reason == Reason::None && std::isnan(meridian))
        withheld = {Reason::Meridian, wkt.meridianName};
    if (withheld.reason != Reason::None)
        return;
    for (const WktMethod* const method : methods) {
        WktItems items;
        const Withheld why = readItems(*method, values, wkt.isEsri, ellipsoid, items);
        if (why.reason != Reason::None) {
            // The first of them that bears the name is the usual one.
            withheld = withheld.reason == Reason::None ? why : withheld;
            continue;
        }
        withheld = {};
        definition = "+proj=" + method->projection;
        for (auto item = items.cbegin(); item != items.cend(); ++item)
            definition += " +" + item.key() + '=' + projNumber(item.value());
        definition += " +pm=" + projNumber(meridian);
        const bool isMeridianInDegrees = std::abs(meridianInUnit(wkt) - meridian) >= sameMeridian;
        isOnlyOurs = method->isOnlyOurs || wkt.hasRoundedUnit || isMeridianInDegrees ||
                     WktUnit::ofAngles(wkt.angularUnit).isRounded;
        return;
    }
}

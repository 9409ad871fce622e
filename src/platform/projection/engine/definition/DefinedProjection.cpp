#include "platform/projection/engine/definition/DefinedProjection.h"

#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/plane/ObliqueMercator.h"
#include "platform/projection/engine/plane/OperationOfProj.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

/// Whether all items are such that ObliqueMercator's parameters say them.
bool isObliqueMercator(const ProjItems& items) {
    static constexpr const char* keys[] = {
        "proj", "lat_0", "lonc",  "lon_0",   "alpha",   "gamma",  "lat_1", "lon_1", "lat_2", "lon_2",   "k",
        "k_0",  "x_0",   "y_0",   "no_uoff", "no_off",  "pm",     "ellps", "a",     "b",     "rf",      "f",
        "R",    "units", "datum", "es",      "no_defs", "wktext", "e",     "type",  "title", "nadgrids"};
    const auto isKnown = [](const ProjItems::Item& item) {
        return std::any_of(std::begin(keys), std::end(keys), [&item](const char* key) { return item.key == key; });
    };
    const bool hasLine = items.has("alpha") || !items.has("gamma");
    return items.text("proj") == "omerc" && hasLine && (!items.has("units") || items.text("units") == "m") &&
           std::all_of(items.all().begin(), items.all().end(), isKnown);
}

/// The azimuth of the line that the guidance note's formulas take for an azimuth: they know its sine only. The grid is
/// turned by the angle as it is given.
double azimuthOfLine(double azimuth) {
    const double turns = std::remainder(azimuth, 360);
    return std::abs(turns) > 90 ? std::copysign(180, turns) - turns : turns;
}

std::unique_ptr<PlaneProjection> obliqueMercator(const ProjItems& items) {
    Ellipsoid ellipsoid;
    if (!isObliqueMercator(items) || !ellipsoid.read(items))
        return nullptr;
    const double primeMeridian = primeMeridianOf(items);
    const auto longitude = [&](const char* key) { return fromGreenwich(items.angle(key, 0), primeMeridian); };
    const double azimuth = items.angle("alpha", 0);
    const ObliqueMercator::Parameters parameters{ellipsoid.a,
                                                 ellipsoid.e2(),
                                                 items.angle("lat_0", 0),
                                                 longitude("lonc"),
                                                 azimuthOfLine(azimuth),
                                                 items.angle("gamma", azimuth),
                                                 items.number(items.has("k_0") ? "k_0" : "k", 1),
                                                 items.number("x_0", 0),
                                                 items.number("y_0", 0)};
    const auto& p = parameters;
    for (const double value : {p.latitudeOfCentre, p.longitudeOfCentre, p.azimuth, p.gridAngle, p.scale,
                               p.eastingAtCentre, p.northingAtCentre}) {
        if (!std::isfinite(value))
            return nullptr;
    }
    if (!items.has("alpha")) {
        const auto throughPlaces =
            ObliqueMercator::throughPlaces(parameters, {items.angle("lat_1", 0), longitude("lon_1"), 0},
                                           {items.angle("lat_2", 0), longitude("lon_2"), 0});
        return throughPlaces ? std::make_unique<ObliqueMercator>(*throughPlaces) : nullptr;
    }
    if (items.has("no_uoff") || items.has("no_off")) {
        // The false origin is the natural one (EPSG method 9812), which lies back along the line.
        ObliqueMercator::Parameters moved = parameters;
        const double distance = ObliqueMercator::distanceFromNaturalOrigin(parameters);
        moved.eastingAtCentre += distance * std::sin(proj_torad(parameters.gridAngle));
        moved.northingAtCentre += distance * std::cos(proj_torad(parameters.gridAngle));
        return std::make_unique<ObliqueMercator>(moved);
    }
    return std::make_unique<ObliqueMercator>(parameters);
}

} // namespace

std::unique_ptr<PlaneProjection> definedProjection(const ProjContext& context, const QByteArray& definition) {
    ProjObject operation(proj_create(context.get(), definition.constData()));
    if (!operation)
        return nullptr;
    const ProjItems items(definition);
    if (items.text("proj") == "omerc") {
        if (auto exact = obliqueMercator(items))
            return exact;
    }
    return std::make_unique<OperationOfProj>(std::move(operation));
}

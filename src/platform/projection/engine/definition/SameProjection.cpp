#include "platform/projection/engine/definition/SameProjection.h"

#include "platform/projection/engine/definition/Datum.h"
#include "platform/projection/engine/definition/DefinedProjection.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

bool isOneOf(const QByteArray& text, std::initializer_list<const char*> texts) {
    return std::any_of(texts.begin(), texts.end(), [&text](const char* other) { return text == other; });
}

/// Items that say nothing about the projection itself.
bool isApart(const QByteArray& key) {
    return isOneOf(key, {"axis", "units", "to_meter", "type", "datum", "towgs84", "nadgrids", "geoidgrids", "vto_meter",
                         "vunits", "no_defs", "wktext", "title"});
}

/// Definitions as GDAL writes them for the common methods: plain numbers under keys that mean the same before and
/// after.
bool isPlain(const ProjItems& given) {
    if (!isOneOf(given.text("proj"), {"tmerc", "utm", "merc", "stere", "sterea", "lcc", "cass"}))
        return false;
    return std::all_of(given.all().begin(), given.all().end(), [](const ProjItems::Item& item) {
        if (item.key == "units")
            return isOneOf(item.value, {"m", "ft", "us-ft"});
        if (item.key == "to_meter")
            return ProjItems::toNumber(item.value) > 0;
        if (isOneOf(item.key, {"proj", "ellps", "pm", "south"}) || isApart(item.key))
            return true;
        return isOneOf(item.key, {"lat_0", "lon_0", "k", "k_0", "x_0", "y_0", "lat_1", "lat_2", "lat_ts", "zone", "a",
                                  "b", "rf"}) &&
               !std::isnan(ProjItems::toNumber(item.value));
    });
}

/// The given definition as projection alone.
QByteArray projectionOf(const ProjItems& given) {
    QByteArray text;
    for (const ProjItems::Item& item : given.all()) {
        if (!isApart(item.key))
            text += " +" + item.key + (item.value.isEmpty() ? QByteArray() : '=' + item.value);
    }
    const Datum* const datum = Datum::named(given.text("datum"));
    if (datum && !given.has("ellps"))
        text += QByteArray(" +ellps=") + datum->ellipsoid;
    return text;
}

/// Whether PROJ takes the definition's unit; lengths in definitions are metres whatever the unit of the grid.
bool hasUnit(const ProjContext& context, const ProjItems& given) {
    if (given.has("to_meter") && !(given.number("to_meter", 0) > 0))
        return false;
    const QByteArray test = "+proj=merc +R=1 +units=" + given.text("units");
    return !given.has("units") || ProjObject(proj_create(context.get(), test.constData()));
}

GeographicPoint centreOf(const ProjItems& normalised) {
    const char* const longitude = normalised.has("lonc") ? "lonc" : normalised.has("lon_1") ? "lon_1" : "lon_0";
    const char* const latitude = normalised.has("lat_1") ? "lat_1" : "lat_0";
    constexpr double farthestNorth = 80;
    return {std::clamp(normalised.angle(latitude, 0), -farthestNorth, farthestNorth), normalised.angle(longitude, 0),
            0};
}

} // namespace

bool isSameProjection(const ProjContext& context, const ProjItems& given, const QByteArray& normalised,
                      const Ellipsoid& ellipsoid) {
    if (isPlain(given))
        return true;
    if (!hasUnit(context, given))
        return false;
    const QByteArray other = normalised + ellipsoid.definition();
    const auto left = definedProjection(context, projectionOf(given));
    const auto right = definedProjection(context, other);
    if (!left || !right)
        return false;
    constexpr double offsets[][2] = {{-2.5, 1}, {1, -3}, {3, 2.5}};
    constexpr double tolerance = 1e-6;
    const GeographicPoint centre = centreOf(ProjItems(normalised));
    return std::all_of(std::begin(offsets), std::end(offsets), [&](const auto& offset) {
        const GeographicPoint place{centre.latitude + offset[1], centre.longitude + offset[0], 0};
        const auto a = left->toGrid(place);
        const auto b = right->toGrid(place);
        return a && b && std::hypot(a->easting - b->easting, a->northing - b->northing) < tolerance;
    });
}

#include "panel/computing/DistortionLines.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/record/ProjectionFields.h"
#include "panel/record/StandardParallel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int pointsPerLine = 121;

bool isInside(const GridPoint& point, const GridArea& area) {
    return std::abs(point.easting - area.centre.easting) <= area.width / 2.0 &&
           std::abs(point.northing - area.centre.northing) <= area.height / 2.0;
}

/// The grid points of the places that `place` gives for 0 to 1; empty when none lies in the area.
template <typename Place>
DistortionLines::Line draw(const IProjectedSystem& system, const GridArea& area, Place place) {
    DistortionLines::Line line;
    bool visible = false;
    for (int i = 0; i < pointsPerLine; ++i) {
        if (const auto point = system.toGrid(place(i / (pointsPerLine - 1.0)))) {
            line.push_back(*point);
            visible = visible || isInside(*point, area);
        }
    }
    return visible ? line : DistortionLines::Line();
}

/// The latitudes of true scale (or of the scale factor) that the method states.
std::vector<double> standardLatitudes(const IDictionary& record, const ProjectionFields& projection) {
    std::vector<double> latitudes;
    for (const char* key : {CoordParamKey::parallel1Lat, CoordParamKey::parallel2Lat}) {
        if (projection.field(key))
            latitudes.push_back(dictionary_number(record, key, 0.0));
    }
    const auto parallel =
        projection.field(CoordParamKey::cuttingRadius) ? StandardParallel::ofRecord(record) : std::nullopt;
    if (!parallel)
        return latitudes;
    if (projection.method == ProjectionMethod::MercatorStandardParallel) {
        latitudes.push_back(*parallel);
        latitudes.push_back(-*parallel);
    } else if (std::abs(dictionary_number(record, CoordParamKey::orgLat, 0.0)) == 90.0) {
        latitudes.push_back(std::copysign(*parallel, dictionary_number(record, CoordParamKey::orgLat, 0.0)));
    }
    return latitudes;
}

} // namespace

DistortionLines::DistortionLines(const IDictionary& record, const IProjectedSystem& system, const GridArea& area) {
    const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
    const double centre = dictionary_number(record, CoordParamKey::orgLon, 0.0);
    const auto seen = extent(system, area, centre);
    if (!projection || !seen)
        return;
    const bool isOblique = projection->method == ProjectionMethod::ObliqueMercatorAzimuth;
    if (projection->field(CoordParamKey::orgLon) && !isOblique)
        meridian = draw(system, area, [&](double part) {
            return GeographicPoint{seen->south + (seen->north - seen->south) * part, centre, 0.0};
        });
    for (const double latitude : standardLatitudes(record, *projection)) {
        Line parallel = draw(system, area, [&](double part) {
            return GeographicPoint{latitude, seen->west + (seen->east - seen->west) * part, 0.0};
        });
        if (!parallel.empty())
            parallels.push_back(std::move(parallel));
    }
}

GridPoint DistortionLines::origin(const IDictionary& record) {
    return {dictionary_number(record, CoordParamKey::falseEast, 0.0),
            dictionary_number(record, CoordParamKey::falseNorth, 0.0)};
}

std::optional<GridPoint> DistortionLines::middleOfParallels(const IDictionary& record, const IProjectedSystem& system) {
    const ProjectionFields* const projection = ProjectionFields::ofRecord(record);
    std::vector<double> latitudes = projection ? standardLatitudes(record, *projection) : std::vector<double>();
    if (latitudes.empty())
        return std::nullopt;
    if (projection->method == ProjectionMethod::MercatorStandardParallel)
        latitudes.resize(1);
    const double middle = (latitudes.front() + latitudes.back()) / 2.0;
    return system.toGrid({middle, dictionary_number(record, CoordParamKey::orgLon, 0.0), 0.0});
}

/// The latitudes and longitudes that the area covers, from 15 x 15 nodes and a margin; longitudes around `meridian`.
std::optional<DistortionLines::Extent> DistortionLines::extent(const IProjectedSystem& system, const GridArea& area,
                                                               double meridian) {
    std::optional<Extent> result;
    for (const GridPoint& node : AreaValues::nodes(area, 15, 15)) {
        const auto place = system.toGeographic(node, 0.0);
        if (!place)
            continue;
        const double longitude = meridian + std::remainder(place->longitude - meridian, 360.0);
        if (!result)
            result = Extent{place->latitude, place->latitude, longitude, longitude};
        result->south = std::min(result->south, place->latitude);
        result->north = std::max(result->north, place->latitude);
        result->west = std::min(result->west, longitude);
        result->east = std::max(result->east, longitude);
    }
    if (!result)
        return result;
    const double latitudeMargin = 0.1 * (result->north - result->south);
    const double longitudeMargin = 0.1 * (result->east - result->west);
    result->south = std::max(-90.0, result->south - latitudeMargin);
    result->north = std::min(90.0, result->north + latitudeMargin);
    result->west = std::max(meridian - 180.0, result->west - longitudeMargin);
    result->east = std::min(meridian + 180.0, result->east + longitudeMargin);
    return result;
}

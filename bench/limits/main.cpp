// Computes systems at the limits of their parameters (an oblique Mercator with an azimuth near 90, a cone that is
// nearly a cylinder, an origin beside the pole, ...) through the record and the module, and compares with a second
// implementation: grid coordinates, the way back, scale factors and convergence, at places up to 300 km from the middle
// of the area. Ends with 1 when one is off by more than the tolerance, or refused. --verbose names every system that
// is; --every N takes each N-th only.

#include "Limits.h"
#include "catalogue/Angle.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/ParallelRadius.h"
#include "platform/projection/IProjectionModule.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

namespace {

namespace Key = CoordParamKey;

constexpr double tolerance = 1e-6;      ///< metres
constexpr double scaleTolerance = 1e-8; ///< of the scale, 0.01 ppm, and radians of the convergence
constexpr double earthRadius = 6371000.0;

QByteArray definitionOf(const Parameters& p) {
    const DictionaryGuard record;
    const std::pair<const char*, double> values[] = {
        {Key::projectType, double(p.method)},
        {Key::ellipsoidA, p.a},
        {Key::ellipsoidF, p.inverseFlattening},
        {Key::orgLat, p.latitude},
        {Key::orgLon, p.longitude},
        {Key::factor, p.scale},
        {Key::falseEast, p.falseEasting},
        {Key::falseNorth, p.falseNorthing},
        {Key::cuttingRadius, std::abs(p.parallel1) == 90 ? 0 : ParallelRadius::ofLatitude(p.a, p.parallel1)},
        {Key::parallel1Lat, p.parallel1},
        {Key::parallel2Lat, p.parallel2},
        {Key::azimuth, p.azimuth},
        {Key::lat1, p.lat1},
        {Key::lon1, p.lon1},
        {Key::lat2, p.lat2},
        {Key::lon2, p.lon2}};
    for (const auto& value : values)
        record->setText(value.first, QByteArray::number(value.second, 'g', 17));
    return coordParamToProjDefine(*record);
}

/// Places around the middle: at it, and on eight rays from it.
std::vector<GeographicPoint> placesAround(double latitude, double longitude) {
    std::vector<GeographicPoint> places{{latitude, longitude, 0}};
    const double phi = Angle::toRadians(latitude);
    for (const double distance : {0.01, 10.0, 1000.0, 30000.0, 100000.0, 300000.0}) {
        const double angle = distance / earthRadius;
        for (int turn = 0; turn < 16; ++turn) {
            // The four main directions, and some between.
            const double azimuth = Angle::toRadians(turn < 4 ? turn * 90 : turn * 23.4);
            const double sine = std::sin(phi) * std::cos(angle) + std::cos(phi) * std::sin(angle) * std::cos(azimuth);
            const double east =
                std::atan2(std::sin(azimuth) * std::sin(angle) * std::cos(phi), std::cos(angle) - std::sin(phi) * sine);
            places.push_back({Angle::toDegrees(std::asin(std::clamp(sine, -1.0, 1.0))),
                              std::remainder(longitude + Angle::toDegrees(east), 360), 0});
        }
    }
    return places;
}

double distance(const GridPoint& left, const GridPoint& right) {
    return std::hypot(left.easting - right.easting, left.northing - right.northing);
}

/// How far a system is off, at its worst.
struct Errors {
    double forward = 0;
    double closing = 0;
    double scale = 0;

    bool isSmall() const { return forward <= tolerance && closing <= tolerance && scale <= scaleTolerance; }
    void add(const Errors& other) {
        forward = std::max(forward, other.forward);
        closing = std::max(closing, other.closing);
        scale = std::max(scale, other.scale);
    }
};

/// The derivative of the reference in a direction, per metre on the ground.
GridPoint derivative(const Parameters& p, const GeographicPoint& place, double dLat, double dLon, double metres) {
    const auto at = [&](double steps) {
        return reference(p, place.latitude + steps * dLat, place.longitude + steps * dLon);
    };
    const GridPoint one = at(1), minusOne = at(-1), two = at(2), minusTwo = at(-2);
    const auto part = [&](double GridPoint::*axis) {
        return (8 * (one.*axis - minusOne.*axis) - (two.*axis - minusTwo.*axis)) / (12 * metres);
    };
    return {part(&GridPoint::easting), part(&GridPoint::northing)};
}

double scaleError(const Parameters& p, const LocalScale& scale, const GeographicPoint& place) {
    const double f = p.inverseFlattening == 0 ? 0 : 1 / p.inverseFlattening;
    const double e2 = f * (2 - f);
    const double phi = Angle::toRadians(place.latitude);
    const double w = std::sqrt(1 - e2 * std::pow(std::sin(phi), 2));
    // The pole stays far, as the derivative sees it.
    const double metres = std::clamp(0.003 * p.a * std::cos(phi), 10.0, 500.0);
    const double dLat = Angle::toDegrees(metres * std::pow(w, 3) / (p.a * (1 - e2)));
    const double dLon = Angle::toDegrees(metres * w / (p.a * std::cos(phi)));
    const GridPoint north = derivative(p, place, dLat, 0, metres);
    const GridPoint east = derivative(p, place, 0, dLon, metres);
    const double turn = std::atan2(north.easting, north.northing) + Angle::toRadians(scale.convergence);
    return std::max({std::abs(std::hypot(north.easting, north.northing) / scale.meridian - 1),
                     std::abs(std::hypot(east.easting, east.northing) / scale.parallel - 1),
                     std::abs(std::remainder(turn, 2 * Angle::pi))});
}

/// Where a cone, or the sphere of an oblique projection, is cut open: the derivative there jumps.
bool isAtCut(const Parameters& p, const GeographicPoint& place) {
    return std::abs(std::remainder(place.longitude - p.longitude, 360)) > 170;
}

Errors errorsAt(const IProjectedSystem& system, const Parameters& p, const GeographicPoint& place) {
    constexpr double wrong = 1e9;
    if (isAtCut(p, place))
        return {};
    const auto grid = system.toGrid(place);
    const GridPoint expected = reference(p, place.latitude, place.longitude);
    if (!grid || !std::isfinite(expected.easting))
        return {wrong, wrong, wrong};
    Errors errors;
    errors.forward = distance(*grid, expected);
    // As far as the projection stretches what is to be found again.
    const auto back = system.toGeographic(*grid, 0);
    const auto again = back ? std::optional<GridPoint>(reference(p, back->latitude, back->longitude)) : std::nullopt;
    errors.closing = again ? distance(*again, expected) : wrong;
    // Scale and convergence are promised from a little away from the poles on.
    if (std::abs(place.latitude) < 89.8) {
        const auto scale = system.localScale(place);
        errors.scale = scale ? scaleError(p, *scale, place) : wrong;
    }
    return errors;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption every("every", "Take only each <n>-th system.", "n", "1");
    const QCommandLineOption verboseOption("verbose", "Name every system that is off.");
    parser.addHelpOption();
    parser.addOptions({every, verboseOption});
    parser.process(application);
    const bool verbose = parser.isSet(verboseOption);
    const auto step = std::size_t(std::max(1, parser.value(every).toInt()));
    IProjectionModule* const module = projectionModule();
    if (!module)
        return 1;
    struct Summary {
        int systems = 0, wrong = 0, refused = 0;
        Errors worst;
    };
    std::map<QByteArray, Summary> methods;
    bool ok = true;
    const std::vector<Limit> all = limits();
    for (std::size_t i = 0; i < all.size(); i += step) {
        const Limit& limit = all[i];
        Summary& summary = methods[limit.title.split(',').first()];
        const auto system = module->createSystem(definitionOf(limit.parameters));
        ++summary.systems;
        if (!system) {
            ++summary.refused;
            ok = false;
            if (verbose)
                std::printf("refused: %s\n", limit.title.constData());
            continue;
        }
        Errors worst;
        for (const GeographicPoint& place : placesAround(limit.latitude, limit.longitude))
            worst.add(errorsAt(*system, limit.parameters, place));
        summary.worst.add(worst);
        summary.wrong += worst.isSmall() ? 0 : 1;
        if (!worst.isSmall() && verbose)
            std::printf("%s, around %g: %.2g m, back %.2g m, scale %.2g\n", limit.title.constData(), limit.latitude,
                        worst.forward, worst.closing, worst.scale);
        ok = ok && worst.isSmall();
    }
    for (const auto& [name, summary] : methods)
        std::printf("%-24s %4d systems, %3d refused, %3d off; at worst %.2g m, back %.2g m, scale %.2g\n",
                    name.constData(), summary.systems, summary.refused, summary.wrong, summary.worst.forward,
                    summary.worst.closing, summary.worst.scale);
    return ok ? 0 : 1;
}

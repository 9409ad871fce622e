#include "Trial.h"

#include "catalogue/Angle.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QByteArrayList>

#include <cmath>
#include <cstdio>

namespace {

constexpr int shown = 3;

/// The place `metres` away in that direction, near enough.
KnownCoordinates moved(KnownCoordinates known, double metres, double bearing) {
    constexpr double metresInDegree = 111195.0;
    known.latitude += metres * std::cos(Angle::toRadians(bearing)) / metresInDegree;
    known.longitude += metres * std::sin(Angle::toRadians(bearing)) / metresInDegree /
                       std::max(0.01, std::cos(Angle::toRadians(known.latitude)));
    return known;
}

} // namespace

/// What a surveyor takes off or puts before the easting, in millions: UTM's and Gauss-Krueger's zones.
int Trial::zoneDigits(const QByteArray& definition) const {
    const auto item = [&definition](const QByteArray& key) {
        const int at = definition.indexOf(key);
        return at < 0 ? 0.0 : definition.mid(at + key.size()).split(' ').first().toDouble();
    };
    const double easting = item("+x_0=");
    if (!definition.startsWith("+proj=tmerc ") || std::fmod(easting, 1e6) != 500000.0)
        return 0;
    if (easting > 1e6)
        return -int(easting / 1e6);
    const double zone = (item("+lon_0=") + 183.0) / 6.0;
    return zone == std::floor(zone) ? int(zone) : 0;
}

void Trial::run(SystemSearch& search, const QByteArray& code, double ownUnit,
                const QVector<RegistryEntry::Sample>& samples, const QVector<double>& bearings) {
    const int digits = way.zoneMistaken ? zoneDigits(module.registry().definition(code).definition) : 0;
    const double unit = way.unit > 0.0 ? way.unit : ownUnit;
    if ((way.zoneMistaken && digits == 0) || (way.unit == 0.0 && ownUnit == 1.0))
        return;
    QVector<KnownCoordinates> exact, given;
    for (int i = 0; i < std::min(way.points, samples.size()); ++i) {
        const double easting = (samples[i].easting + digits * 1e6) / unit;
        const double northing = samples[i].northing / unit;
        exact.append({samples[i].latitude, samples[i].longitude, way.northingFirst ? northing : easting,
                      way.northingFirst ? easting : northing});
        given.append(moved(exact.last(), way.placeOff, bearings[i]));
    }
    search.start(given, false);
    while (search.work(1000)) {
    }
    const QVector<FoundSystem> found = search.found();
    int at = 0;
    while (at < found.size() && !isSame(found[at], code, exact))
        ++at;
    int different = 0; // before it, by what they come to
    for (int i = 1; i <= std::min(at, found.size() - 1); ++i)
        different += found[i].isSame ? 0 : 1;
    const bool isAmongThree = at < found.size() && different < shown;
    distinct += isAmongThree ? 1 : 0;
    int own = 0;
    while (own < found.size() && found[own].registered->code != code)
        ++own;
    ++count;
    first += at == 0 ? 1 : 0;
    amongThree += at < shown ? 1 : 0;
    itself += own < shown ? 1 : 0;
    if (!isAmongThree || (at >= shown && way.placeOff == 0.0))
        missed.append(code + " (" + (at < found.size() ? QByteArray::number(different + 1) : QByteArray("missing")) +
                      ')');
}

/// Whether it is the system, or one that gives the true places the same coordinates. A place off by kilometres does not
/// tell the kinds of feet apart.
bool Trial::isSame(const FoundSystem& found, const QByteArray& code, const QVector<KnownCoordinates>& exact) const {
    const RegistryDefinition& held = module.registry().definition(found.registered->code);
    const QByteArray& definition =
        held.definition.isEmpty() ? module.registry().withheldDefinition(found.registered->code) : held.definition;
    const auto system = module.createSystem(definition);
    const auto fit = system ? CoordinateFit::of(*system, found.fit.reading, exact) : std::nullopt;
    return fit && fit->distance < (found.registered->code == code ? 100.0 : 0.001);
}

void Trial::printHead() {
    std::printf("%-49s %7s %9s %10s %13s %18s\n", "the system, or one with the same coordinates, in", "systems",
                "row 1", "rows 1-3", "(it itself)", "first 3 distances");
}

void Trial::print(bool verbose) const {
    std::printf("%-49s %7d %9d %10d %13d %18d\n", way.title, count, first, amongThree, itself, distinct);
    if (verbose && !missed.isEmpty())
        std::printf("    %s\n", missed.join(' ').constData());
}

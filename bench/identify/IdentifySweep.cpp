#include "IdentifySweep.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "panel/record/RecordWkt.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/projection/ProjNumber.h"

#include <QByteArrayList>
#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

constexpr double matters = 1e-3; // metres

QByteArray definitionOf(const QByteArray& wkt) {
    const DictionaryGuard record;
    if (!WktToCoordParam::write(wkt, record.get()))
        return {};
    dic_set_value(record.get(), CoordParamKey::shiftType, "%d", 0);
    return coordParamToProjDefine(*record);
}

QStringList lossesOf(const IDictionary& record, const QByteArray& wkt) {
    const DictionaryGuard again;
    return WktToCoordParam::write(wkt, again.get()) ? recordDifferences(record, *again) : QStringList{"all"};
}

bool has(const std::vector<RegistryMatch>& matches, const RegistrySystem& system) {
    return std::any_of(matches.begin(), matches.end(),
                       [&system](const RegistryMatch& match) { return match.system == &system; });
}

} // namespace

IdentifySweep::IdentifySweep(IProjectionModule& module, int every) : module(module), identification(module) {
    identify("+proj=tmerc +lat_0=0 +lon_0=9 +k_0=0.9996 +x_0=500000 +y_0=0 +a=6378137 +rf=298.257222101");
    std::printf("the first search takes %.0f ms, the likely systems %.0f ms\n", longestSearch, longestUntilSettled);
    longestSearch = longestUntilSettled = 0;
    const auto& all = module.registry().projectedSystems();
    for (std::size_t i = 0; i < all.size(); i += std::size_t(every)) {
        const QByteArray definition = definitionOf(module.registry().wkt(all[i].code, nullptr));
        if (!definition.isEmpty())
            systems.append({&all[i], definition});
        heldByOneOnly += definition.isEmpty() != module.registry().definition(all[i].code).definition.isEmpty();
    }
}

const std::vector<RegistryMatch>& IdentifySweep::identify(const QByteArray& definition) {
    QElapsedTimer clock;
    clock.start();
    identification.start({definition, {}, {}, {}});
    double settled = 0;
    while (!identification.isFinished()) {
        identification.advance(5);
        if (settled == 0 && identification.isSettled())
            settled = double(clock.nsecsElapsed()) / 1e6;
    }
    longestUntilSettled = std::max(longestUntilSettled, settled);
    longestSearch = std::max(longestSearch, double(clock.nsecsElapsed()) / 1e6);
    return identification.same();
}

bool IdentifySweep::findUnchanged() {
    int found = 0;
    int alone = 0;
    int most = 0;
    double farthest = 0;
    QByteArray farthestPair;
    double betweenWays = 0;
    for (const System& system : qAsConst(systems)) {
        const auto& matches = identify(system.definition);
        const bool isFound = has(matches, *system.system);
        if (!isFound)
            std::printf("  WRONG    EPSG:%s not found: %s\n", system.system->code.constData(),
                        system.definition.constData());
        found += isFound;
        alone += matches.size() == 1;
        most = std::max(most, int(matches.size()));
        const QByteArray& direct = module.registry().definition(system.system->code).definition;
        betweenWays = std::max(betweenWays, farthestBetween(system.definition, direct, *system.system));
        for (const RegistryMatch& match : matches) {
            const double distance = farthestBetween(system.definition, match.definition->definition, *match.system);
            if (distance > farthest)
                farthestPair = system.system->code + " and " + match.system->code;
            farthest = std::max(farthest, distance);
            if (!(distance < matters))
                std::printf("  WRONG    EPSG:%s is not EPSG:%s: %g m\n", system.system->code.constData(),
                            match.system->code.constData(), distance);
        }
    }
    std::printf(
        "%d systems: %d found, %d of them as the only one, others with up to %d more; off by at most %.2g mm (%s)\n",
        systems.size(), found, alone, most - 1, farthest * 1000, farthestPair.constData());
    std::printf(
        "  later searches take up to %.0f ms; the registry's own definition and the import's differ by %.2g mm\n",
        longestSearch, betweenWays * 1000);
    std::printf("  %d systems are held by only one of both\n", heldByOneOnly);
    return found == systems.size() && farthest < matters && betweenWays < matters && heldByOneOnly == 0;
}

bool IdentifySweep::findChanged(int count) {
    longestSearch = 0;
    int wrong = 0;
    int tried = 0;
    int told = 0;
    for (int i = 0; i < count; ++i) {
        const System& system = systems[int(random() % unsigned(systems.size()))];
        const double metres = matters * std::pow(10.0, double(random() % 7));
        const QByteArray definition = changed(system, metres);
        if (definition.isEmpty())
            continue;
        ++tried;
        for (const RegistryMatch& match : identify(definition)) {
            const double distance = farthestBetween(definition, match.definition->definition, *match.system);
            if (distance < matters && match.system != system.system)
                continue;
            ++wrong;
            std::printf("  WRONG    %s is not EPSG:%s: %g m\n", definition.constData(), match.system->code.constData(),
                        distance);
        }
        const auto& nearest = identification.nearest();
        told += has(nearest, *system.system) && nearest.front().differences.size() == 1;
    }
    std::printf(
        "%d systems with a wrong figure: %d taken for others, %d told by what differs; searches take up to %.0f ms\n",
        tried, wrong, told, longestSearch);
    return wrong == 0;
}

bool IdentifySweep::exportWithIdentifiers() {
    int written = 0;
    int inexact = 0;
    int lost = 0;
    int bare = 0;
    for (const System& system : qAsConst(systems)) {
        const QByteArray& code = system.system->code;
        const RegistryDefinition& definition = module.registry().definition(code);
        if (definition.unit != 1)
            continue;
        const auto shifts = module.registry().datumShifts(code);
        const DictionaryGuard record;
        WktToCoordParam::write(module.registry().wkt(code, shifts.empty() ? nullptr : &shifts.front()), record.get());
        if (farthestBetween(coordParamToProjDefine(*record), definition.definition, *system.system) >
            RegistryMatch::exactly) {
            ++inexact;
            continue;
        }
        record->setText(CoordParamKey::name, "A name of its own");
        for (const WktDialect dialect : {WktDialect::Wkt1Gdal, WktDialect::Wkt1Esri, WktDialect::Wkt2_2019}) {
            const QByteArray text = recordWkt(*record, dialect, false, code);
            const QStringList losses = lossesOf(*record, text);
            const QStringList plainLosses = lossesOf(*record, recordWkt(*record, dialect, false));
            ++written;
            bare += !text.contains("EPSG\"," + code + "]]") && !text.contains("EPSG\",\"" + code + "\"]]");
            if (losses.size() <= plainLosses.size())
                continue;
            ++lost;
            std::printf("  WRONG    EPSG:%s in dialect %d: %s\n", code.constData(), int(dialect),
                        qPrintable(losses.join(", ")));
        }
    }
    std::printf("%d texts with identifiers: %d bring back less than without, %d had to go without; %d systems are "
                "not exactly the registry's\n",
                written, lost, bare, inexact);
    return lost == 0;
}

/// Over 15 x 15 places of the area, in metres; infinite when one gives coordinates where the other has none.
double IdentifySweep::farthestBetween(const QByteArray& left, const QByteArray& right,
                                      const RegistrySystem& area) const {
    const auto leftSystem = module.createSystem(left);
    const auto rightSystem = module.createSystem(right);
    constexpr int last = 14;
    const double width = area.east - area.west + (area.east < area.west ? 360 : 0);
    double farthest = 0;
    for (int i = 0; i < (last + 1) * (last + 1); ++i) {
        const int row = i / (last + 1);
        const int column = i % (last + 1);
        const GeographicPoint point{area.south + (area.north - area.south) * row / last,
                                    area.west + width * column / last, 0};
        const auto here = leftSystem->toGrid(point);
        const auto there = rightSystem->toGrid(point);
        if (here.has_value() != there.has_value())
            return std::numeric_limits<double>::infinity();
        if (here)
            farthest = std::max(farthest, std::hypot(here->easting - there->easting, here->northing - there->northing));
    }
    return farthest;
}

/// With one of its figures so wrong that coordinates in its area are off by that much; empty when the figure drawn has
/// no bearing on them.
QByteArray IdentifySweep::changed(const System& system, double metres) {
    const QByteArrayList items = system.definition.split(' ');
    const int at = int(random() % unsigned(items.size()));
    const int equals = items[at].indexOf('=');
    if (equals < 0 || items[at].startsWith("+proj") || items[at].startsWith("+units") || !system.system->hasExtent)
        return {};
    const double value = items[at].mid(equals + 1).toDouble();
    const auto with = [&](double amount) {
        QByteArrayList other = items;
        other[at] = items[at].left(equals + 1) + projNumber(value + amount);
        return other.join(' ');
    };
    double amount = std::max(1.0, std::abs(value)) * 1e-9 * ((random() & 1) != 0 ? 1 : -1);
    for (int i = 0; i < 100 && module.createSystem(with(amount)); ++i) {
        const double distance = farthestBetween(system.definition, with(amount), *system.system);
        if (distance > metres && distance < metres * 2)
            return with(amount);
        amount *= distance > 0 ? std::clamp(1.5 * metres / distance, 0.01, 100.0) : 10.0;
    }
    return {};
}

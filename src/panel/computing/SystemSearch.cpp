#include "panel/computing/SystemSearch.h"

#include "catalogue/Angle.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

constexpr int fewest = 20;

/// Whether the system's area, wider by 50 km, covers the place. An unknown area covers everything.
bool covers(const RegistrySystem& system, const KnownCoordinates& place) {
    constexpr double north = SystemSearch::nearby / 111000.0; // metres in a degree
    const double east = std::min(180.0, north / std::max(1e-3, std::cos(Angle::toRadians(place.latitude))));
    if (!system.hasExtent)
        return true;
    if (place.latitude < system.south - north || place.latitude > system.north + north)
        return false;
    const double width = system.east - system.west + (system.west > system.east ? 360.0 : 0.0);
    const double fromMiddle = std::remainder(place.longitude - system.west - width / 2, 360.0);
    return std::abs(fromMiddle) <= width / 2 + east;
}

/// In square degrees at the equator; an unknown area is larger than any.
double areaOf(const RegistrySystem& system) {
    if (!system.hasExtent)
        return 1e9;
    const double width = system.east - system.west + (system.west > system.east ? 360.0 : 0.0);
    return width *
           Angle::toDegrees(std::sin(Angle::toRadians(system.north)) - std::sin(Angle::toRadians(system.south)));
}

bool standsBefore(const FoundSystem& left, const FoundSystem& right) {
    const auto rank = [](const FoundSystem& found) {
        const RegistrySystem* const system = found.registered;
        return std::make_tuple(found.differences, !system, system && system->deprecated, system ? areaOf(*system) : 0.0,
                               system ? system->code.toInt() : 0, found.group, found.name);
    };
    return rank(left) < rank(right);
}

QList<QByteArray> names(const char* list) {
    return list && *list ? QByteArray(list).split(',') : QList<QByteArray>();
}

} // namespace

void SystemSearch::start(const QVector<KnownCoordinates>& known, bool deprecatedToo) {
    places = known;
    candidates.clear();
    fits.clear();
    next = 0;
    if (places.isEmpty())
        return;
    for (const RegistrySystem& system : module.registry().projectedSystems()) {
        if ((deprecatedToo || !system.deprecated) &&
            std::all_of(places.begin(), places.end(),
                        [&system](const KnownCoordinates& place) { return covers(system, place); }))
            candidates.append({&system, {}, {}});
    }
    addCatalogue();
}

void SystemSearch::addCatalogue() {
    if (!catalogue)
        return;
    for (const QByteArray& groupName : names(catalogue->getGroupNames())) {
        ICoordSysGroup* const group = catalogue->getGroup(groupName.constData());
        if (!group)
            continue;
        for (const QByteArray& name : names(group->getCoordSystemNames()))
            candidates.append({nullptr, groupName, name});
    }
}

SystemSearch::Computed SystemSearch::computed(const Candidate& candidate) {
    if (candidate.registered) {
        const QByteArray& code = candidate.registered->code;
        IEpsgRegistry& registry = module.registry();
        const RegistryDefinition& registered = registry.definition(code);
        const QByteArray definition =
            registered.definition.isEmpty() ? registry.withheldDefinition(code) : registered.definition;
        return {definition, {registered.northingFirst, registered.unit, 0, false}, systemOf(definition)};
    }
    ICoordSysGroup* const group = catalogue->getGroup(candidate.group.constData());
    const IDictionary* const record = group ? group->getCoordSystem(candidate.name.constData()) : nullptr;
    const QByteArray definition = record ? coordParamToProjDefine(*record) : QByteArray();
    return {definition, {}, systemOf(definition)};
}

std::shared_ptr<const IProjectedSystem> SystemSearch::systemOf(const QByteArray& definition) {
    if (definition.isEmpty())
        return nullptr;
    const auto known = systems.constFind(definition);
    if (known != systems.constEnd())
        return *known;
    constexpr int most = 20000; // of some kilobytes each
    const std::shared_ptr<const IProjectedSystem> system = module.createSystem(definition);
    if (systems.size() < most)
        systems.insert(definition, system);
    return system;
}

bool SystemSearch::work(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    for (; next < candidates.size() && timer.elapsed() < milliseconds; ++next) {
        const Candidate& candidate = candidates[next];
        const Computed known = computed(candidate);
        if (!known.system)
            continue;
        if (const auto fit = CoordinateFit::best(*known.system, known.definition, known.own.unit, places))
            fits.append(
                {candidate.registered, candidate.group, candidate.name, *fit, fit->reading.differences(known.own)});
    }
    return next < candidates.size();
}

QVector<FoundSystem> SystemSearch::found() const {
    QVector<FoundSystem> result = fits;
    std::sort(result.begin(), result.end(), [](const FoundSystem& left, const FoundSystem& right) {
        return std::make_tuple(left.fit.misfit, left.group, left.name) <
               std::make_tuple(right.fit.misfit, right.group, right.name);
    });
    const auto isFar = [](const FoundSystem& system) { return system.fit.distance > nearby; };
    if (std::all_of(result.begin(), result.end(), isFar))
        result.resize(std::min(result.size(), fewest));
    else
        result.erase(std::remove_if(result.begin(), result.end(), isFar), result.end());
    for (auto first = result.begin(); first != result.end();) {
        // The same, though others of the same distance may lie between them.
        const CoordinateFit fit = first->fit;
        const auto isClose = [&fit](const FoundSystem& each) { return each.fit.misfit - fit.misfit < fit.tolerance(); };
        const auto close = std::find_if_not(first, result.end(), isClose);
        const auto last =
            std::stable_partition(first, close, [fit](const FoundSystem& each) { return each.fit.isSame(fit); });
        std::sort(first, last, standsBefore);
        std::for_each(first + 1, last, [](FoundSystem& each) { each.isSame = true; });
        first = last;
    }
    return result;
}

#include "Trial.h"
#include "panel/record/LengthUnit.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/sdk/Catalogue.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>

namespace {

const double surveyFoot = LengthUnit::metres(LengthUnit::UsSurveyFoot);
const double internationalFoot = LengthUnit::metres(LengthUnit::InternationalFoot);

const TrialWay ways[] = {
    {"as they are", false, 1.0, false, 0.0, 1},
    {"northing first", true, 1.0, false, 0.0, 1},
    {"US survey feet", false, surveyFoot, false, 0.0, 1},
    {"international feet", false, internationalFoot, false, 0.0, 1},
    {"northing first, US survey feet", true, surveyFoot, false, 0.0, 1},
    {"the system's own unit, where it is not the metre", false, 0.0, false, 0.0, 1},
    {"zone digits left out or added", false, 1.0, true, 0.0, 1},
    {"the place off by 1 km", false, 1.0, false, 1000.0, 1},
    {"the place off by 1 km, northing first", true, 1.0, false, 1000.0, 1},
    {"the place off by 1 km, US survey feet", false, surveyFoot, false, 1000.0, 1},
    {"three places off by 1 km", false, 1.0, false, 1000.0, 3},
    {"the place off by 10 km", false, 1.0, false, 10000.0, 1},
};

struct TriedSystem {
    QByteArray code;
    double unit; ///< of its axes, in metres
    QVector<RegistryEntry::Sample> samples;
    QVector<double> bearings; ///< degrees, one a sample
};

double searchSeconds(SystemSearch& search, const RegistryEntry::Sample& sample) {
    QElapsedTimer timer;
    timer.start();
    search.start({{sample.latitude, sample.longitude, sample.easting, sample.northing}}, true);
    while (search.work(1000)) {
    }
    (void)search.found();
    return double(timer.nsecsElapsed()) / 1e9;
}

/// Of the very first search, which reads the registry's list; of the first one at other places, which reads the systems
/// there; and of the next one with the same place.
void printTimes(IProjectionModule& module, const QVector<TriedSystem>& systems) {
    SystemSearch search(module, nullptr);
    const double firstOfAll = searchSeconds(search, systems.first().samples.first());
    double first = 0.0, worst = 0.0, next = 0.0;
    for (const TriedSystem& system : systems) {
        const double seconds = searchSeconds(search, system.samples.first());
        first += seconds;
        worst = std::max(worst, seconds);
        next += searchSeconds(search, system.samples.first());
    }
    const double count = systems.size();
    const QTemporaryDir folder;
    Catalogue catalogue(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/", folder.path());
    catalogue.load(QFile::encodeName(folder.path() + QLatin1Char('/')).constData());
    SystemSearch withCatalogue(module, &catalogue);
    double withOwn = 0.0;
    constexpr int searches = 5;
    for (int i = 0; i < searches; ++i)
        withOwn += searchSeconds(withCatalogue, systems.first().samples.first()) / searches;
    std::printf("first search of all %.3f s; first at a place %.4f s, at worst %.4f s; again there %.4f s: ratio %.2f\n"
                "with the starter catalogue %.3f s\n\n",
                firstOfAll, first / count, worst, next / count, next / first, withOwn);
}

/// The first `count` of the registry's systems in random order that a record can hold, each with three places of its
/// area and what PROJ computes there.
QVector<TriedSystem> randomSystems(int count, unsigned seed) {
    PJ_CONTEXT* const context = proj_context_create();
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> fraction(0.0, 1.0);
    QVector<QByteArray> codes = registryCodes(context, "EPSG", false);
    std::shuffle(codes.begin(), codes.end(), random);
    QVector<TriedSystem> systems;
    for (const QByteArray& code : qAsConst(codes)) {
        const RegistryEntry entry(context, "EPSG", code.constData());
        const RegistryEntry::Box area = entry.areaOfUse();
        QVector<RegistryEntry::Sample> places;
        QVector<double> bearings;
        for (int i = 0; i < 3; ++i) {
            const double east = fraction(random), north = fraction(random);
            places.append(
                {area.west + east * (area.east - area.west), area.south + north * (area.north - area.south), 0, 0});
            bearings.append(360.0 * fraction(random));
        }
        const QVector<RegistryEntry::Sample> samples = entry.computed(places);
        if (samples.size() == places.size())
            systems.append({code, entry.metresPerUnit(), samples, bearings});
        if (systems.size() == count)
            break;
    }
    proj_context_destroy(context);
    return systems;
}

} // namespace

/// Has PROJ compute the coordinates of random places in random systems of the registry, and looks for the system with
/// them. Ends with 1 when one is not among the first three though its place is exact.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption systemsOption("systems", "How many systems.", "n", "500");
    const QCommandLineOption seedOption("seed", "Of the random numbers.", "n", "14");
    const QCommandLineOption verbose("verbose", "Name the systems that are missed.");
    parser.addHelpOption();
    parser.addOptions({systemsOption, seedOption, verbose});
    parser.process(application);

    IProjectionModule* const module = projectionModule();
    if (!module)
        return 2;
    const QVector<TriedSystem> systems =
        randomSystems(parser.value(systemsOption).toInt(), parser.value(seedOption).toUInt());
    if (systems.isEmpty())
        return 2;
    printTimes(*module, systems);
    SystemSearch search(*module, nullptr);
    bool isComplete = true;
    int withheld = 0;
    for (const TriedSystem& system : systems)
        withheld += module->registry().definition(system.code).definition.isEmpty() ? 1 : 0;
    std::printf("%d systems, %d of them withheld\n", systems.size(), withheld);
    Trial::printHead();
    for (const TrialWay& way : ways) {
        Trial trial(*module, way);
        for (const TriedSystem& system : systems)
            trial.run(search, system.code, system.unit, system.samples, system.bearings);
        trial.print(parser.isSet(verbose));
        isComplete = isComplete && (way.placeOff > 0.0 || trial.isComplete());
    }
    return isComplete ? 0 : 1;
}

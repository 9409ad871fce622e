#include "PastedSweep.h"
#include "Sweep.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cpl_error.h>

/// Imports every projected system of the registries in PROJ's database as WKT and compares with PROJ. Ends with 1 when
/// one comes out silently wrong: defined, and off by more than 1 mm. With --pasted, when a pasted notation gives
/// another record than the import does.
int main(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption every("every", "Take only each <n>-th system.", "n", "1");
    const QCommandLineOption deprecated("deprecated", "Take the withdrawn systems as well.");
    const QCommandLineOption verbose("verbose", "Name every method, and every system that is flagged.");
    const QCommandLineOption dialect("dialect", "Take only this dialect: gdal, esri or wkt2.", "name");
    parser.addHelpOption();
    const QCommandLineOption registry("registry", "Take only this registry: EPSG, ESRI or IGNF.", "name");
    const QCommandLineOption pasted("pasted", "Paste them in each notation instead, and compare with the import.");
    parser.addOptions({every, deprecated, verbose, dialect, registry, pasted});
    parser.process(application);

    CPLSetErrorHandler(CPLQuietErrorHandler);
    PJ_CONTEXT* const context = proj_context_create();
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
    Sweep::Options options;
    options.every = std::max(1, parser.value(every).toInt());
    options.deprecatedToo = parser.isSet(deprecated);
    options.verbose = parser.isSet(verbose);
    struct Dialect {
        const char* key;
        const char* title;
        PJ_WKT_TYPE type;
    };
    constexpr Dialect dialects[] = {{"gdal", "WKT 1, GDAL's dialect", PJ_WKT1_GDAL},
                                    {"esri", "WKT 1, ESRI's dialect", PJ_WKT1_ESRI},
                                    {"wkt2", "WKT 2:2019", PJ_WKT2_2019}};
    bool ok = true;
    const auto isTaken = [&parser](const QCommandLineOption& option, const char* value) {
        return !parser.isSet(option) || parser.value(option) == QLatin1String(value);
    };
    for (const char* const name : {"EPSG", "ESRI", "IGNF"}) {
        options.registry = name;
        if (parser.isSet(pasted)) {
            if (isTaken(registry, name))
                ok = PastedSweep(context, options).run() && ok;
            continue;
        }
        for (const Dialect& taken : dialects) {
            if (isTaken(registry, name) && isTaken(dialect, taken.key))
                ok = Sweep(context, taken.title, taken.type, options).run() && ok;
        }
    }
    proj_context_destroy(context);
    return ok ? 0 : 1;
}

#include "Sweep.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "panel/record/WithheldText.h"
#include "platform/sdk/Catalogue.h"

#include <QDir>
#include <QFile>

#include <cpl_conv.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <cstdio>
#include <ctime>

namespace {

constexpr const char* groupName = "Registry";

/// Processor time since `start`, in seconds: other programs on the machine don't count.
double secondsSince(std::clock_t start) {
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

} // namespace

Sweep::Sweep(PJ_CONTEXT* context, const char* name, PJ_WKT_TYPE dialect, const Options& options)
    : context(context), name(name), dialect(dialect), options(options) {
}

bool Sweep::run() {
    collect();
    importAll();
    compare();
    print();
    return all.silentlyWrong() == 0 && !whyFlagged.contains(QByteArray());
}

void Sweep::collect() {
    const QVector<QByteArray> codes = registryCodes(context, options.registry, options.deprecatedToo);
    for (int i = 0; i < codes.size(); i += options.every) {
        const RegistryEntry entry(context, options.registry, codes[i].constData());
        System system{codes[i], entry.method(), entry.wkt(dialect), folder.filePath(QString::fromLatin1(codes[i])),
                      entry.samples()};
        if (system.wkt.isEmpty()) {
            ++notWritable;
            continue;
        }
        QFile file(system.file);
        if (file.open(QIODevice::WriteOnly))
            file.write(system.wkt);
        systems.append(system);
    }
}

/// Both ways take turns, so that what else the machine does falls on both alike, and are always half the registry
/// apart, so that neither finds the other's work in PROJ's caches.
void Sweep::importAll() {
    Catalogue catalogue(QString(), folder.path());
    catalogue.addGroup(groupName);
    for (int i = 0; i < systems.size(); ++i) {
        gdalSeconds += runGdal(systems[i]);
        importSeconds += runImport(systems[(i + systems.size() / 2) % systems.size()], catalogue);
    }
    const QString file = folder.filePath(QStringLiteral("CoordinateSystem_custom.vcs"));
    catalogue.saveCoordSystems(QFile::encodeName(file).constData());
}

/// The two calls of GDAL that no import can do without.
double Sweep::runGdal(const System& system) const {
    const std::clock_t start = std::clock();
    OGRSpatialReference reference(nullptr);
    const char* text = system.wkt.constData();
    char* definition = nullptr;
    if (reference.importFromWkt(&text) == OGRERR_NONE)
        reference.exportToProj4(&definition);
    CPLFree(definition);
    return secondsSince(start);
}

/// The whole import, from the file to the catalogue. The systems bear their codes as names there: the registry's own
/// names are not unique in every dialect.
double Sweep::runImport(const System& system, ICoordSystem& catalogue) const {
    const std::clock_t start = std::clock();
    const WktSystem read = WktFile::read(system.file);
    if (read.content == WktSystem::Content::Projected) {
        const DictionaryGuard record;
        WktToCoordParam::convert(read, record.get());
        dic_set_value(record.get(), CoordParamKey::name, "%s", system.code.constData());
        ICoordSysGroup* const group = catalogue.getGroup(groupName);
        if (!WktToCoordParam::nameInCatalogue(read).isEmpty() && !group->hasCoordSystem(system.code.constData()))
            group->addCoordSystem(record.get());
    }
    return secondsSince(start);
}

void Sweep::compare() {
    Catalogue catalogue(QString(), folder.path());
    catalogue.load(QFile::encodeName(folder.path() + QLatin1Char('/')).constData());
    ICoordSysGroup* const group = catalogue.getGroup(groupName);
    for (const System& system : qAsConst(systems)) {
        const IDictionary* const record = group ? group->getCoordSystem(system.code.constData()) : nullptr;
        classify(system, record ? coordParamToProjDefine(*record) : QByteArray());
    }
}

void Sweep::classify(const System& system, const QByteArray& definition) {
    const bool comparable = !definition.isEmpty() && !system.samples.isEmpty();
    const double deviation = comparable ? largestDeviation(system, definition) : 0;
    const auto count = [&](Count& counts) {
        ++counts.total;
        int& bin = definition.isEmpty() ? counts.flagged
                   : !comparable        ? counts.withoutReference
                   : deviation <= 1e-3  ? counts.right
                   : deviation <= 1e-2  ? counts.centimetre
                   : deviation <= 0.2   ? counts.decimetres
                                        : counts.farOff;
        ++bin;
    };
    count(all);
    count(byMethod[system.method]);
    if (definition.isEmpty())
        ++whyFlagged[WithheldText::of(WktFile::read(system.file)).toUtf8()];
    if (options.verbose && definition.isEmpty())
        std::printf("  flagged  %s:%s %s\n", options.registry, system.code.constData(), system.method.constData());
    if (options.verbose && !definition.isEmpty() && !comparable)
        std::printf("  no reference %s:%s %s\n", options.registry, system.code.constData(), system.method.constData());
    if (!(deviation <= 1e-3))
        std::printf("  WRONG    %s:%s %s: %.4f m, %s\n", options.registry, system.code.constData(),
                    system.method.constData(), deviation, definition.constData());
}

/// In metres, of the projection on the system's own datum; not a number when PROJ can't compute from the definition.
double Sweep::largestDeviation(const System& system, const QByteArray& definition) const {
    const QByteArray projectionOnly = QByteArray(definition).replace(" +towgs84=", " +apart=");
    const ProjObject projection(proj_create(context, projectionOnly.constData()));
    double largest = 0;
    for (const RegistryEntry::Sample& sample : system.samples) {
        const PJ_COORD place = proj_coord(proj_torad(sample.longitude), proj_torad(sample.latitude), 0, 0);
        const PJ_COORD grid = proj_trans(projection.get(), PJ_FWD, place);
        const double deviation = std::hypot(grid.xy.x - sample.easting, grid.xy.y - sample.northing);
        // Once not a number, it stays so.
        largest = deviation <= largest || std::isnan(largest) ? largest : deviation;
    }
    return largest;
}

void Sweep::print() const {
    const auto line = [](const char* title, const Count& count) {
        std::printf("  %-48s %6d %6d %5d %5d %8d %6d\n", title, count.total, count.right, count.centimetre,
                    count.decimetres, count.flagged, count.silentlyWrong());
    };
    std::printf("%s in %s\n  %-48s %6s %6s %5s %5s %8s %6s\n", options.registry, name, "", "total", "1 mm", "1 cm",
                "20 cm", "flagged", "wrong");
    line("all", all);
    for (auto method = byMethod.cbegin(); method != byMethod.cend(); ++method) {
        if (options.verbose || method->right < method->total)
            line(method.key().constData(), *method);
    }
    for (auto why = whyFlagged.cbegin(); why != whyFlagged.cend(); ++why)
        std::printf("  flagged %4d: %s\n", why.value(), why.key().isEmpty() ? "NO REASON" : why.key().constData());
    std::printf("  right within 1 mm: %.2f %%; PROJ can't write %d more in this dialect, and can't compute %d\n",
                100.0 * all.right / std::max(1, all.total), notWritable, all.withoutReference);
    std::printf("  GDAL's calls alone %.2f s, the whole import %.2f s: ratio %.3f\n\n", gdalSeconds, importSeconds,
                importSeconds / gdalSeconds);
}

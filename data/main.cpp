#include "ShippedEllipsoid.h"
#include "StarterSelection.h"
#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "import/CoordParamToProjDefine.h"
#include "import/WktToCoordParam.h"
#include "platform/projection/IProjectionModule.h"
#include "platform/sdk/CatalogueFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QTextCodec>
#include <QTextStream>

namespace {

RecordFile ellipsoidContent(IEpsgRegistry& registry) {
    RecordFile file(ellipsoidFile);
    for (const ShippedEllipsoid& ellipsoid : shippedEllipsoids(registry.ellipsoids())) {
        const DictionaryGuard record;
        record->setText(EllipsoidKey::name, ellipsoid.name.constData());
        record->setText(EllipsoidKey::a, ellipsoid.a.constData());
        record->setText(EllipsoidKey::f, ellipsoid.f.constData());
        record->setText(EllipsoidKey::flag, "1");
        file.records.append(record.get());
    }
    return file;
}

/// The system as an import of its WKT gives it, with its datum's name and where it is from, added to the group where a
/// record can hold it.
void addSystem(CoordSysGroup& group, IEpsgRegistry& registry, const QByteArray& code) {
    if (registry.unitName(code) != "metre")
        return;
    const DictionaryGuard record;
    if (!WktToCoordParam::write(registry.wkt(code, nullptr), record.get()) || !coordParamDefinesProjection(*record))
        return;
    const QByteArray datum = registry.datumName(code);
    if (!datum.isEmpty())
        record->setText(CoordParamKey::datumName, datum.constData());
    record->setText(CoordParamKey::source, ("EPSG:" + code + ", " + registry.edition()).constData());
    group.systems.append(record.get());
}

SystemFile systemContent(IEpsgRegistry& registry, const QString& rulesPath) {
    SystemFile file;
    for (const StarterGroup& starter : selectStarterGroups(rulesPath, registry.projectedSystems())) {
        CoordSysGroup* group = file.groups.append(starter.name.toUtf8());
        for (const RegistrySystem& system : starter.systems)
            addSystem(*group, registry, system.code);
        if (group->systems.isEmpty())
            file.groups.remove(group->name);
    }
    return file;
}

int fail(const QString& message) {
    QTextStream(stderr) << message << '\n';
    return 1;
}

} // namespace

/// Makes the data that the tool ships from the EPSG registry in PROJ's database:
///     generate_shipped_data <starter_catalogue.txt> <output folder>
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // The registry's texts are UTF-8, whatever the locale of the build is.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail("usage: generate_shipped_data <rules> <output folder>");
    IProjectionModule* module = projectionModule();
    if (!module)
        return fail("The projection module can't be loaded.");

    const RecordFile ellipsoids = ellipsoidContent(module->registry());
    const SystemFile systems = systemContent(module->registry(), arguments[1]);
    if (ellipsoids.isEmpty() || systems.isEmpty())
        return fail("PROJ's database or the rules can't be read.");
    const QDir folder(arguments[2]);
    if (!folder.mkpath(".") || !CatalogueFile::write(folder.filePath("Ellipsoid.xml"), ellipsoids) ||
        !CatalogueFile::write(folder.filePath("CoordinateSystem.vcs"), systems))
        return fail("The data can't be written to " + folder.path() + ".");
    return 0;
}

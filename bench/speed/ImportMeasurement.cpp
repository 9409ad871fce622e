// The first import of a process, and files to import.
//   bench_speed_import first FILE           imports the file as the tool does; prints milliseconds
//   bench_speed_import files FOLDER COUNT   saves that many systems of the registry as .prj files of ESRI's dialect

#include "catalogue/DictionaryGuard.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

namespace {

int importFirst(const QString& path) {
    QElapsedTimer timer;
    timer.start();
    const WktSystem system = WktFile::read(path);
    const DictionaryGuard record;
    WktToCoordParam::convert(system, record.get());
    std::printf("%.3f\n", double(timer.nsecsElapsed()) / 1e6);
    return system.content == WktSystem::Content::Projected ? 0 : 1;
}

int writeFiles(const QString& folder, int count) {
    IProjectionModule* const module = projectionModule();
    if (!module)
        return 1;
    int written = 0;
    for (const RegistrySystem& system : module->registry().projectedSystems()) {
        const WktSystem read = module->readWkt(module->registry().wkt(system.code, nullptr));
        const WktNames names{system.name, {}, module->registry().datumName(system.code), system.code};
        const QByteArray wkt = read.withheld.reason == Withheld::Reason::None
                                   ? module->exportWkt(read.definition, names, WktDialect::Wkt1Esri, false)
                                   : QByteArray();
        if (system.deprecated || wkt.isEmpty())
            continue;
        QFile file(folder + '/' + QString::fromLatin1(system.code) + ".prj");
        if (!file.open(QIODevice::WriteOnly) || file.write(wkt) != wkt.size())
            return 1;
        if (++written == count)
            return 0;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "first")
        return importFirst(arguments.value(2));
    if (arguments.value(1) == "files")
        return writeFiles(arguments.value(2), arguments.value(3).toInt());
    return 2;
}

#include "Victim.h"

#include "catalogue/CatalogueRecordKey.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/Sdk.h"
#include "platform/sdk/Catalogue.h"
#include "platform/utility/DiskCalls.h"

#include <QFile>
#include <QThread>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char* group = "group";
constexpr const char* number = "number";
constexpr int systemCount = 30; // a file of a few blocks

void say(int done) {
    std::printf("done %d\n", done);
    std::fflush(stdout);
}

/// The catalogue of a folder, loaded.
struct Storage {
    explicit Storage(const QString& folder)
        : data(Victim::dataFolder(folder)), catalogue(QString(), folder + QLatin1String("/rescue")) {
        catalogue.load(QFile::encodeName(data).constData());
    }

    Victim::Saved saved() {
        ICoordSysGroup* const systems = catalogue.getGroup(group);
        const IDictionary* const system = systems ? systems->getCoordSystem("0") : nullptr;
        const IDictionary* const ellipsoid = catalogue.getEllipsoid(number);
        return {system ? int(dictionary_number(*system, number, 0)) : 0,
                ellipsoid ? int(dictionary_number(*ellipsoid, EllipsoidKey::a, 0)) : 0};
    }

    void save(int save) {
        DictionaryGuard record;
        dic_set_value(record.get(), number, "%d", save);
        catalogue.addGroup(group);
        for (int i = 0; i < systemCount; ++i) {
            dic_set_value(record.get(), CoordParamKey::name, "%d", i);
            dic_set_value(record.get(), "note", "%s", QByteArray(300 + save % 1000, 'x').constData());
            catalogue.getGroup(group)->addCoordSystem(record.get());
            catalogue.getGroup(group)->setCoordSystem(QByteArray::number(i).constData(), record.get());
        }
        catalogue.saveCoordSystems("");
        catalogue.saveCoordSystems(QFile::encodeName(data + QLatin1String("CoordinateSystem_custom.vcs")).constData());

        DictionaryGuard ellipsoid;
        dic_set_value(ellipsoid.get(), EllipsoidKey::name, "%s", number);
        dic_set_value(ellipsoid.get(), EllipsoidKey::a, "%d", save);
        dic_set_value(ellipsoid.get(), EllipsoidKey::flag, "%s", "0");
        catalogue.addEllipsoid(ellipsoid.get());
        catalogue.saveEllipsoids("");
        catalogue.saveEllipsoids(QFile::encodeName(data + QLatin1String("Ellipsoid_custom.xml")).constData());
    }

    QString data;
    Catalogue catalogue;
};

} // namespace

QString Victim::dataFolder(const QString& folder) {
    return folder + QLatin1String("/Data/");
}

int Victim::run(Work work, const QString& folder, int lastCall) {
    const QString data = dataFolder(folder);
    bool isLoaded = false;
    int calls = 0;
    DiskCalls::setFault([&](const char*, const QString& path) {
        if (calls++ == lastCall)
            std::_Exit(1);
        return work == Work::Rescue && isLoaded && (path + QLatin1Char('/')).startsWith(data);
    });
    if (work == Work::Start) {
        if (instance_is_run("", true) != 0)
            return 1;
        say(0);
        QThread::sleep(60);
        return 0;
    }
    Storage storage(folder);
    isLoaded = true;
    for (int save = storage.saved().systems + 1;; ++save) {
        storage.save(save);
        say(save);
    }
}

Victim::Saved Victim::load(const QString& folder) {
    return Storage(folder).saved();
}

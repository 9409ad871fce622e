// What a large catalogue costs, and what can't be avoided for it. FOLDER holds, or gets, the user's catalogue file.
//   bench_speed_catalogue make FOLDER SYSTEMS   saves the starter catalogue, over and over until it has that many
//   bench_speed_catalogue load FOLDER           milliseconds
//   bench_speed_catalogue parse FOLDER          milliseconds that pugixml needs for the file
//   bench_speed_catalogue save FOLDER           milliseconds of a save after one edit
//   bench_speed_catalogue write FOLDER          milliseconds to write the file's bytes to a new file, with fsync
//   bench_speed_catalogue memory FOLDER         bytes: of the file, of memory with it loaded and at most in a save

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "platform/sdk/Catalogue.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>

namespace {

QString shippedFolder() {
    return QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/";
}

QString fileIn(const QString& folder) {
    return folder + "/CoordinateSystem_custom.vcs";
}

QByteArrayList namesIn(const char* list) {
    return QByteArray(list).split(',');
}

/// The catalogue of one folder.
struct Loaded {
    explicit Loaded(const QString& folder) : folder(folder), catalogue(shippedFolder(), folder + "/rescue") {}

    void load() { catalogue.load(QFile::encodeName(folder + '/').constData()); }

    void save() {
        catalogue.saveCoordSystems("");
        catalogue.saveCoordSystems(QFile::encodeName(fileIn(folder)).constData());
    }

    /// As a person does before a save: one system has another remark than ever before.
    void edit() {
        const QByteArrayList groups = namesIn(catalogue.getGroupNames());
        const auto filled = std::find_if(groups.begin(), groups.end(), [this](const QByteArray& name) {
            return *catalogue.getGroup(name.constData())->getCoordSystemNames() != '\0';
        });
        ICoordSysGroup* const group = catalogue.getGroup(filled->constData());
        const QByteArray system = namesIn(group->getCoordSystemNames()).first();
        const DictionaryGuard record;
        dictionary_assign(record.get(), group->getCoordSystem(system.constData()));
        record->setText(CoordParamKey::remark, QByteArray::number(QDateTime::currentMSecsSinceEpoch()).constData());
        group->setCoordSystem(system.constData(), record.get());
    }

    QString folder;
    Catalogue catalogue;
};

void make(const QString& folder, int systems) {
    Catalogue shipped(shippedFolder(), folder + "/rescue");
    shipped.load("/nowhere/");
    Loaded made(folder);
    const QByteArrayList groups = namesIn(shipped.getGroupNames());
    int count = 0;
    for (int round = 1; count < systems; ++round) {
        for (const QByteArray& name : groups) {
            const QByteArray copied = name + ' ' + QByteArray::number(round);
            made.catalogue.addGroup(copied.constData());
            ICoordSysGroup* const from = shipped.getGroup(name.constData());
            for (const QByteArray& system : namesIn(from->getCoordSystemNames())) {
                if (count++ < systems)
                    made.catalogue.getGroup(copied.constData())
                        ->addCoordSystem(from->getCoordSystem(system.constData()));
            }
        }
    }
    made.save();
}

void print(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    std::printf("%.3f\n", double(timer.nsecsElapsed()) / 1e6);
}

void write(const QString& folder) {
    QFile file(fileIn(folder));
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    print([&] {
        QSaveFile copy(folder + "/copy");
        copy.open(QIODevice::WriteOnly);
        copy.write(bytes);
        copy.commit(); // with fsync
    });
}

/// A figure of /proc/self/status in bytes.
double memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0.0;
    while (status >> word) {
        if (word == name)
            status >> kilobytes;
    }
    return kilobytes * 1024.0;
}

void printMemory(const QString& folder) {
    Loaded loaded(folder);
    const double before = memory("VmRSS:");
    loaded.load();
    const double held = memory("VmRSS:") - before;
    loaded.edit();
    std::ofstream("/proc/self/clear_refs") << 5; // VmHWM starts anew
    loaded.save();
    std::printf("%.0f %.0f %.0f\n", double(QFileInfo(fileIn(folder)).size()), held, memory("VmHWM:") - before);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString what = QCoreApplication::arguments().value(1), folder = QCoreApplication::arguments().value(2);
    Loaded loaded(folder);
    if (what == "make") {
        make(folder, QCoreApplication::arguments().value(3).toInt());
    } else if (what == "load") {
        print([&] { loaded.load(); });
    } else if (what == "parse") {
        pugi::xml_document document;
        print([&] { document.load_file(QFile::encodeName(fileIn(folder)).constData()); });
    } else if (what == "save") {
        loaded.load();
        loaded.edit();
        print([&] { loaded.save(); });
    } else if (what == "write") {
        write(folder);
    } else if (what == "memory") {
        printMemory(folder);
    } else {
        return 2;
    }
    return 0;
}

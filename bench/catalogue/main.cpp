// Loads, saves and edits a catalogue of 100 and one of 100,000 systems, and prints what they cost beside what can't be
// avoided: parsing the file for a load, writing one of its size for a save, the file's bytes for the memory.
//   bench_catalogue [ROUNDS]      5 by default
// The files lie where TMPDIR says.

#include "Comparison.h"
#include "ResidentMemory.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "platform/sdk/Catalogue.h"
#include "platform/utility/DiskCalls.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr const char* group = "UTM";

/// A record as the import makes it: 26 keys, some of them with a number behind the text.
void fillRecord(IDictionary* record, int i) {
    static const char* const keys[] = {
        "ellipsoid_a", "ellipsoid_f",    "org_lon",        "org_lat",        "false_north", "false_east",
        "factor",      "cutting_radius", "parallel_1_lat", "parallel_2_lat", "p_r",         "lon1",
        "lon2",        "lat1",           "lat2",           "_7dx",           "_7dy",        "_7dz",
        "_7rx",        "_7ry",           "_7rz",           "_7ppm"};
    record->clear();
    dic_set_value(record, "ellipsoid_name", "%s", "WGS 84");
    dic_set_value(record, "project_type", "%d", 1);
    dic_set_value(record, "_7type", "%d", 2);
    for (const char* key : keys)
        dic_set_value(record, key, "%f", i % 4 ? i * 500.0 : i / 3.0);
    dic_set_value(record, "name", "System %d", i);
}

QByteArray nameOf(int i) {
    return "System " + QByteArray::number(i);
}

/// A data folder and the catalogue in it.
class Storage {
public:
    explicit Storage(const QString& dataFolder) : folder(dataFolder), catalogue(QString(), folder + "/rescue") {}

    QString path() const { return folder + QStringLiteral("/CoordinateSystem_custom.vcs"); }
    void load() { catalogue.load(QFile::encodeName(folder + QLatin1Char('/')).constData()); }
    void save() {
        catalogue.saveCoordSystems("");
        catalogue.saveCoordSystems(QFile::encodeName(path()).constData());
    }
    ICoordSysGroup* systems() { return catalogue.getGroup(group); }

    void fill(int count) {
        catalogue.addGroup(group);
        const DictionaryGuard record;
        for (int i = 0; i < count; ++i) {
            fillRecord(record.get(), i);
            systems()->addCoordSystem(record.get());
        }
    }
    void edit(int count) {
        const DictionaryGuard record;
        fillRecord(record.get(), count);
        systems()->setCoordSystem(nameOf(count / 2).constData(), record.get());
    }
    void askForAll(int count) {
        for (int i = 0; i < count; ++i)
            systems()->getCoordSystem(nameOf(i).constData());
    }

private:
    QString folder;
    Catalogue catalogue;
};

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

Cost parsing(QByteArray bytes) {
    bytes.detach();
    pugi::xml_document document;
    return costOf([&] { document.load_buffer_inplace(bytes.data(), size_t(bytes.size())); });
}

Cost loading(const QString& folder) {
    Storage storage(folder);
    return costOf([&] { storage.load(); });
}

Cost writing(const QString& path, const QByteArray& bytes) {
    const Cost cost = costOf([&] {
        QFile file(path);
        if (!DiskCalls::create(file) || !DiskCalls::write(file, bytes) || !DiskCalls::sync(file))
            std::printf("%s can't be written\n", qPrintable(path));
    });
    QFile::remove(path);
    return cost;
}

void measureLoads(const QString& folder, int rounds) {
    const QByteArray bytes = bytesOf(Storage(folder).path());
    const QString unmarked = folder + QStringLiteral("/unmarked");
    QDir().mkpath(unmarked);
    {
        QFile file(Storage(unmarked).path());
        file.open(QIODevice::WriteOnly);
        file.write(bytes.left(bytes.lastIndexOf('\n', -2) + 1));
    }
    Comparison marked, whole;
    for (int i = 0; i < rounds; ++i) {
        const Cost reference = parsing(bytes);
        marked.add(loading(folder), reference);
        whole.add(loading(unmarked), reference);
    }
    marked.print("load", "parsing");
    whole.print("load without a mark", "parsing");
}

void measureSaves(const QString& folder, int systems, int rounds) {
    const QByteArray bytes = bytesOf(Storage(folder).path());
    Storage storage(folder), touched(folder + QStringLiteral("/touched"));
    storage.load();
    touched.load();
    touched.fill(systems);
    touched.save();
    Comparison fresh, all;
    for (int i = 0; i < rounds; ++i) {
        const Cost reference = writing(folder + QStringLiteral("/copy"), bytes);
        storage.edit(systems + i);
        fresh.add(costOf([&] { storage.save(); }), reference);
        touched.edit(systems + i);
        all.add(costOf([&] { touched.save(); }), reference);
    }
    fresh.print("save, one edited", "writing");
    all.print("save, all once asked for", "writing");
}

struct Edits {
    double change, addAndDelete, rename; // microseconds for one
};

Edits measureEdits(const QString& folder, int systems) {
    Storage storage(folder);
    storage.load();
    // As many systems in both catalogues, spread over all of it: what differs is the search, not the processor's cache.
    constexpr int edits = 20000;
    const auto microseconds = [&](auto edit) {
        double least = 1e9;
        for (int run = 0; run < 5; ++run) {
            least = std::min(least, costOf([&] {
                                        for (int i = 0; i < edits; ++i)
                                            edit(storage.systems(), nameOf(i % 100 * (systems / 100)));
                                    }).worked);
        }
        return least * 1000.0 / edits;
    };
    const DictionaryGuard record;
    fillRecord(record.get(), systems);
    Edits costs{};
    costs.change = microseconds([&](ICoordSysGroup* edited, const QByteArray& name) {
        if (edited->hasCoordSystem(name.constData()))
            edited->setCoordSystem(name.constData(), record.get());
    });
    record->setText("name", "new");
    costs.addAndDelete = microseconds([&](ICoordSysGroup* edited, const QByteArray&) {
        edited->addCoordSystem(record.get());
        edited->deleteCoordSystem("new");
    });
    costs.rename = microseconds([&](ICoordSysGroup* edited, const QByteArray& name) {
        edited->renameCoordSystem(name.constData(), "new");
        edited->renameCoordSystem("new", name.constData());
    });
    return costs;
}

/// In a process of its own, where nothing was in use before.
void measureMemory(const QString& folder, int systems, bool all) {
    Storage storage(folder);
    const double before = ResidentMemory::now();
    storage.load();
    if (all)
        storage.askForAll(systems);
    const double loaded = ResidentMemory::now() - before, loadPeak = ResidentMemory::peak() - before;
    storage.edit(systems);
    ResidentMemory::forgetPeak();
    storage.save();
    const auto bytes = double(QFileInfo(storage.path()).size());
    std::printf("  memory%-20s %-12s%6.2f loaded, %.2f at most meanwhile; at most in save %.2f of loaded\n",
                all ? ", all once asked for" : "", "bytes", loaded / bytes, loadPeak / bytes,
                (ResidentMemory::peak() - before) / loaded);
}

Edits measure(int systems, int rounds) {
    const QTemporaryDir dir;
    const QString folder = dir.path();
    {
        Storage storage(folder);
        storage.load();
        storage.fill(systems);
        storage.save();
    }
    std::printf("%d systems, %.1f MB\n", systems, double(QFileInfo(Storage(folder).path()).size()) / 1e6);
    measureLoads(folder, rounds);
    for (const char* all : {"", "all"}) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("memory"), folder, QString::number(systems), QLatin1String(all)});
        process.waitForFinished(-1);
    }
    measureSaves(folder, systems, rounds);
    return measureEdits(folder, systems);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("memory")) {
        measureMemory(arguments.value(2), arguments.value(3).toInt(), !arguments.value(4).isEmpty());
        return 0;
    }
    const int rounds = arguments.size() > 1 ? std::max(1, arguments[1].toInt()) : 5;
    std::printf("medians over %d rounds with the least and the greatest, of what is named = what it takes / what it is "
                "compared with\n",
                rounds);
    const Edits small = measure(100, rounds), large = measure(100000, rounds);
    std::printf("one edit                  in 100    in 100,000   ratio\n"
                "  change a record     %7.2f us    %7.2f us    %.2f\n"
                "  add and delete one  %7.2f us    %7.2f us    %.2f\n"
                "  rename one twice    %7.2f us    %7.2f us    %.2f\n",
                small.change, large.change, large.change / small.change, small.addAndDelete, large.addAndDelete,
                large.addAndDelete / small.addAndDelete, small.rename, large.rename, large.rename / small.rename);
    return 0;
}

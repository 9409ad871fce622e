// Loads, saves and edits a catalogue of 100 and one of 100,000 systems, and prints what they cost beside what can't be
// avoided: parsing the file for a load, writing one of its size for a save.

#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "platform/sdk/Catalogue.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <pugixml.hpp>

#include <algorithm>
#include <cstdio>

static constexpr const char* group = "UTM";

/// The least time of `runs` runs in milliseconds, which is the one that other programs disturbed least.
template <class Work> static double milliseconds(int runs, Work work) {
    double least = 1e9;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        least = std::min(least, double(timer.nsecsElapsed()) / 1e6);
    }
    return least;
}

/// A record as the import makes it: 26 keys, some of them with a number behind the text.
static void fillRecord(IDictionary* record, int i) {
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

static QByteArray nameOf(int i) {
    return "System " + QByteArray::number(i);
}

struct Costs {
    double parse, load, write, save;     // milliseconds
    double change, addAndDelete, rename; // microseconds for one edit
};

static Costs measure(int systems) {
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("CoordinateSystem_custom.vcs"));
    const QByteArray folder = QFile::encodeName(dir.path() + QLatin1Char('/'));
    Catalogue catalogue(QString(), dir.filePath(QStringLiteral("rescue")));
    catalogue.load(folder.constData());
    catalogue.addGroup(group);
    DictionaryGuard record;
    for (int i = 0; i < systems; ++i) {
        fillRecord(record.get(), i);
        catalogue.getGroup(group)->addCoordSystem(record.get());
    }

    Costs costs{};
    constexpr int runs = 3;
    const auto save = [&] {
        catalogue.saveCoordSystems("");
        catalogue.saveCoordSystems(QFile::encodeName(path).constData());
    };
    costs.save = milliseconds(runs, save);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray bytes = file.readAll();
    costs.write = milliseconds(runs, [&] {
        QSaveFile copy(dir.filePath(QStringLiteral("copy")));
        copy.open(QIODevice::WriteOnly);
        copy.write(bytes);
        copy.commit();
    });
    costs.parse = milliseconds(runs, [&] { pugi::xml_document().load_file(QFile::encodeName(path).constData()); });
    costs.load = milliseconds(runs, [&] {
        Catalogue loaded(QString(), dir.filePath(QStringLiteral("rescue")));
        loaded.load(folder.constData());
    });

    // As many systems in both catalogues, spread over all of it: what differs is the search, not the processor's cache.
    constexpr int edits = 20000;
    const auto microseconds = [&](auto edit) {
        return milliseconds(5,
                            [&] {
                                for (int i = 0; i < edits; ++i)
                                    edit(catalogue.getGroup(group), i % 100 * (systems / 100));
                            }) *
               1000.0 / edits;
    };
    costs.change = microseconds([&](ICoordSysGroup* edited, int i) {
        if (edited->hasCoordSystem(nameOf(i).constData()))
            edited->setCoordSystem(nameOf(i).constData(), record.get());
    });
    record->setText("name", "new");
    costs.addAndDelete = microseconds([&](ICoordSysGroup* edited, int) {
        edited->addCoordSystem(record.get());
        edited->deleteCoordSystem("new");
    });
    costs.rename = microseconds([&](ICoordSysGroup* edited, int i) {
        edited->renameCoordSystem(nameOf(i).constData(), "new");
        edited->renameCoordSystem("new", nameOf(i).constData());
    });
    std::printf("%6d systems, %.1f MB: load %.2f ms = %.2f x parsing the file (%.2f ms)\n"
                "                         save %.2f ms = %.2f x writing the file (%.2f ms)\n",
                systems, double(bytes.size()) / 1e6, costs.load, costs.load / costs.parse, costs.parse, costs.save,
                costs.save / costs.write, costs.write);
    return costs;
}

int main() {
    const Costs small = measure(100);
    const Costs large = measure(100000);
    std::printf("one edit                  in 100    in 100,000   ratio\n"
                "  change a record     %7.2f us    %7.2f us    %.2f\n"
                "  add and delete one  %7.2f us    %7.2f us    %.2f\n"
                "  rename one twice    %7.2f us    %7.2f us    %.2f\n",
                small.change, large.change, large.change / small.change, small.addAndDelete, large.addAndDelete,
                large.addAndDelete / small.addAndDelete, small.rename, large.rename, large.rename / small.rename);
    return 0;
}

// Saves every group of the starter catalogue as .prj files in every dialect, imports the files as the tool does, and
// says what does not come back. Ends with 1 when a system is left out, or when anything is lost that the dialect can
// hold. Then it times the steps for a group of many systems (--systems, 100,000 if not given).

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "panel/record/RecordDifferences.h"
#include "panel/save/GroupFiles.h"
#include "platform/projection/WktDialect.h"
#include "platform/sdk/Catalogue.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

struct Dialect {
    const char* title;
    WktDialect dialect;
    QStringList lost; ///< what may be lost
};

// ESRI's has no datum shift, and Mercator with a parallel of true scale only: the same grid, another method.
const Dialect dialects[] = {
    {"WKT 1 (GDAL)", WktDialect::Wkt1Gdal, {}},
    {"WKT 1 (ESRI)", WktDialect::Wkt1Esri, {"the datum shift", "the projection method, the datum shift"}},
    {"WKT 2:2019", WktDialect::Wkt2_2019, {}}};

QString cell(const GroupFiles& files, int row, int column) {
    return files.data(files.index(row, column), Qt::DisplayRole).toString();
}

/// What an import of the file lacks of the record.
QString lostIn(const QString& path, const IDictionary& record) {
    const WktSystem read = WktFile::read(path);
    if (read.content != WktSystem::Content::Projected)
        return "all: it can't be imported";
    const DictionaryGuard imported;
    WktToCoordParam::convert(read, imported.get());
    imported->setText(CoordParamKey::name, WktToCoordParam::nameInCatalogue(read).constData());
    return recordDifferences(record, *imported).join(", ");
}

/// Saves all groups and imports them again. False when that loses something.
bool comesBack(Catalogue& catalogue, const Dialect& dialect) {
    const DictionaryGuard none;
    GroupFiles files(catalogue, *none);
    QMap<QString, int> lost;
    int saved = 0;
    bool ok = true;
    for (const QString& group : files.groups()) {
        const QTemporaryDir folder;
        files.setGroup(group);
        while (files.nameFiles() < 1.0) {
        }
        files.start(folder.path(), dialect.dialect);
        while (files.look() < 1.0) {
        }
        while (files.save(false) < 1.0) {
        }
        files.end();
        const int count = QDir(folder.path()).entryList(QDir::Files).size();
        ok = ok && count == files.rowCount();
        saved += count;
        ICoordSysGroup* const systems = catalogue.getGroup(group.toLocal8Bit().constData());
        for (int row = 0; row < files.rowCount(); ++row) {
            const QString name = cell(files, row, GroupFiles::System);
            const QString what = lostIn(folder.filePath(cell(files, row, GroupFiles::File)),
                                        *systems->getCoordSystem(name.toLocal8Bit().constData()));
            ++lost[what];
            if (what.isEmpty() || dialect.lost.contains(what))
                continue;
            ok = false;
            std::printf("  %s / %s: %s\n", qPrintable(group), qPrintable(name), qPrintable(what));
        }
    }
    std::printf("%s: %d systems saved and imported again\n", dialect.title, saved);
    for (auto it = lost.constBegin(); it != lost.constEnd(); ++it)
        std::printf("  %d lose %s\n", it.value(), it.key().isEmpty() ? "nothing" : qPrintable(it.key()));
    return ok && saved > 0;
}

/// Calls `step` up to `limit` times, until it is done, and prints what the calls took.
void measure(const char* title, int limit, const std::function<double()>& step) {
    QElapsedTimer all;
    all.start();
    double longest = 0.0;
    int calls = 0;
    for (double part = 0.0; part < 1.0 && calls < limit; ++calls) {
        QElapsedTimer timer;
        timer.start();
        part = step();
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    std::printf("%-12s %6d calls, %8lld ms, the longest %6.1f ms\n", title, calls, all.elapsed(), longest);
}

void measureLargeGroup(Catalogue& catalogue, int systems) {
    ICoordSysGroup* const source = catalogue.getGroup(QByteArray(catalogue.getGroupNames()).split(',').first());
    const QByteArray first = QByteArray(source->getCoordSystemNames()).split(',').first();
    const DictionaryGuard record;
    dictionary_assign(record.get(), source->getCoordSystem(first.constData()));
    catalogue.addGroup("large");
    for (int i = 0; i < systems; ++i) {
        dic_set_value(record.get(), CoordParamKey::name, "System %d", i);
        catalogue.getGroup("large")->addCoordSystem(record.get());
    }
    const QTemporaryDir folder;
    GroupFiles files(catalogue, *record);
    const auto once = [](auto call) {
        return [call] {
            call();
            return 1.0;
        };
    };
    std::printf("A group of %d systems\n", systems);
    measure("set group", 1, once([&] { files.setGroup("large"); }));
    measure("name files", systems, [&] { return files.nameFiles(); });
    measure("start", 1, once([&] { files.start(folder.path(), WktDialect::Wkt1Esri); }));
    measure("look", systems, [&] { return files.look(); });
    measure("save", std::min(systems, 5000), [&] { return files.save(false); });
    measure("end", 1, once([&] { files.end(); }));
    measure("summary", 1, once([&] { files.summary(); }));
    measure("report", 1, once([&] { files.report(); }));
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption many("systems", "Size of the large group.", "n", "100000");
    parser.addHelpOption();
    parser.addOption(many);
    parser.process(application);
    const QTemporaryDir user;
    Catalogue catalogue(QCoreApplication::applicationDirPath() + "/../etc/Vornhalde/data/", user.filePath("rescue"));
    catalogue.load(QFile::encodeName(user.path() + '/').constData());
    bool ok = true;
    for (const Dialect& dialect : dialects)
        ok = comesBack(catalogue, dialect) && ok;
    measureLargeGroup(catalogue, parser.value(many).toInt());
    return ok ? 0 : 1;
}

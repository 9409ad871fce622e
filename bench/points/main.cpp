// Reads a million points, computes them through a system and writes them, and has cs2cs and cct (PROJ's own programs)
// do the same with the same coordinates; prints each time, the ratio beside the 1.2 that it may be, and what the table
// takes of memory beside the 2.5 times of its numbers.
//   bench_points [COUNT]

#include "catalogue/DictionaryGuard.h"
#include "panel/check/PointsPane.h"
#include "panel/check/SlicedWork.h"
#include "panel/computing/DuplicateNames.h"
#include "panel/computing/PointReader.h"
#include "panel/computing/PointStatistics.h"
#include "panel/computing/PointWriter.h"
#include "panel/computing/ShownSystem.h"
#include "platform/projection/IProjectionModule.h"

#include <QApplication>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>

namespace {

const char* const projection =
    "+proj=tmerc +lat_0=49 +lon_0=-2 +k=0.9996012717 +x_0=400000 +y_0=-100000 +a=6377563.396 "
    "+rf=299.3249646 +units=m";
constexpr double limit = 1.2;

/// The same points twice: with names and a heading, and as PROJ's programs read them.
void writePoints(const QString& table, const QString& plain, int count) {
    QFile tableFile(table), plainFile(plain);
    if (!tableFile.open(QIODevice::WriteOnly) || !plainFile.open(QIODevice::WriteOnly))
        qFatal("Can't write points.");
    tableFile.write("Name,Latitude,Longitude\n");
    for (int i = 0; i < count; ++i) {
        const int row = i % 1000, column = i / 1000;
        const QByteArray latitude = QByteArray::number(50.0 + row * 0.0071234567, 'f', 9);
        const QByteArray longitude = QByteArray::number(-6.0 + column * 0.0078765432, 'f', 9);
        tableFile.write('P' + QByteArray::number(i) + ',' + latitude + ',' + longitude + '\n');
        plainFile.write(longitude + ' ' + latitude + '\n');
    }
}

double seconds(const QElapsedTimer& timer) {
    return double(timer.nsecsElapsed()) / 1e9;
}

/// As the page "Points" does it, without the window; the least of three runs.
double ours(const QString& source, const QString& target) {
    const auto system = projectionModule()->createSystem(projection);
    double least = 1e9;
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        QFile in(source), out(target);
        if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
            qFatal("Can't open the points.");
        PointTable given, table;
        PointReader reader(PointLayout::guess(PointReader::decodedHead(in.peek(65536))), 1.0, given);
        while (!in.atEnd())
            reader.add(in.read(32768));
        reader.finish();
        for (std::size_t part = 0; table.join({}, given, part); ++part) {
        }
        const double read = seconds(timer);
        table.compute(0, table.size(), system.get(), CheckPoint::Datum::Own);
        DuplicateNames names(table);
        names.mark(table.size());
        const PointStatistics statistics = PointStatistics::of(table, 0.05);
        const double computed = seconds(timer);
        const PointWriter writer(table, ',', PointWriter::Digits::AsShown, 1.0);
        std::string text = writer.heading().toStdString();
        for (std::size_t row = 0; row < table.size(); ++row) {
            writer.write(row, text);
            if (text.size() > 65536 || row + 1 == table.size()) {
                out.write(text.data(), qint64(text.size()));
                text.clear();
            }
        }
        out.close();
        const double all = seconds(timer);
        least = std::min(least, all);
        std::printf("read %.2f s, compute %.2f s, write %.2f s: %.2f s for %zu points, %zu without a result, "
                    "%.2f bytes a byte of numbers\n",
                    read, computed - read, all - computed, all, table.size(), statistics.problems,
                    double(table.bytes()) / (4.0 * sizeof(double) * double(table.size())));
    }
    return least;
}

/// A program of PROJ on the same points; 0 when it is not there.
double theirs(const QString& program, const QStringList& arguments, const QString& source, const QString& target) {
    double least = 1e9;
    for (int run = 0; run < 3; ++run) {
        QProcess process;
        process.setStandardInputFile(source);
        process.setStandardOutputFile(target);
        QElapsedTimer timer;
        timer.start();
        process.start(program, arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            return 0.0;
        least = std::min(least, seconds(timer));
    }
    return least;
}

/// The largest difference in metres between easting and northing of two files, line by line.
double largestDifference(const QString& own, const QString& other) {
    QFile ownFile(own), otherFile(other);
    if (!ownFile.open(QIODevice::ReadOnly) || !otherFile.open(QIODevice::ReadOnly))
        qFatal("Can't open the results.");
    ownFile.readLine(); // the heading
    double largest = 0.0;
    while (!ownFile.atEnd()) {
        const QList<QByteArray> fields = ownFile.readLine().split(',');
        const QList<QByteArray> figures = otherFile.readLine().simplified().split(' ');
        bool isEasting = false, isNorthing = false;
        const double easting = figures.value(0).toDouble(&isEasting), northing = figures.value(1).toDouble(&isNorthing);
        if (!isEasting || !isNorthing)
            return std::numeric_limits<double>::infinity();
        largest = std::max(
            {largest, std::abs(fields.value(4).toDouble() - easting), std::abs(fields.value(5).toDouble() - northing)});
    }
    return largest;
}

/// Runs the window's events until `isDone`, and gives the longest time in milliseconds that it did not answer.
double longestBlock(const std::function<bool()>& isDone) {
    double longest = 0.0;
    QElapsedTimer timer, all;
    all.start();
    while (!isDone() && all.elapsed() < 120000) {
        timer.start();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 0);
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
    }
    return longest;
}

/// The page "Points" with that file: how long it hangs while it reads and computes, is scrolled, and changes.
void measureWindow(const QString& path) {
    const DictionaryGuard record;
    const char* const values[][2] = {{"ellipsoid_a", "6377563.396"},
                                     {"ellipsoid_f", "299.3249646"},
                                     {"project_type", "1"},
                                     {"org_lat", "49"},
                                     {"org_lon", "-2"},
                                     {"factor", "0.9996012717"},
                                     {"false_east", "400000"},
                                     {"false_north", "-100000"}};
    for (const auto& value : values)
        record->setText(value[0], value[1]);
    PointsPane pane(false);
    pane.setSystem(ShownSystem::of(*record, nullptr));
    pane.resize(800, 600);
    pane.show();
    auto* work = pane.findChild<SlicedWork*>();
    auto* table = pane.findChild<QTableView*>();
    QTimer::singleShot(300, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    QElapsedTimer timer;
    timer.start();
    pane.read(path);
    double block = longestBlock([&] { return !work->isRunning(); });
    std::printf("in the window: %zu points after %.2f s, hangs for %.0f ms at most\n", pane.points().size(),
                seconds(timer), block);
    double longest = 0.0;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer frame;
        frame.start();
        table->scrollTo(table->model()->index((i * 7919) % table->model()->rowCount(), 0));
        table->grab();
        longest = std::max(longest, double(frame.nsecsElapsed()) / 1e6);
    }
    std::printf("scrolled: %.1f ms a frame at most\n", longest);
    const auto change = [&](const char* what, const std::function<void()>& act) {
        QElapsedTimer acting;
        acting.start();
        act();
        const double first = double(acting.nsecsElapsed()) / 1e6;
        block = longestBlock([&] { return !work->isRunning() && acting.elapsed() > 50; });
        std::printf("%s: hangs for %.0f ms at most\n", what, std::max(first, block));
    };
    change("left out",
           [&] { table->model()->setData(table->model()->index(5, 0), Qt::Unchecked, Qt::CheckStateRole); });
    change("tolerance", [&] { pane.findChild<QDoubleSpinBox*>()->setValue(0.1); });
    change("typed", [&] { table->model()->setData(table->model()->index(5, 1), "51", Qt::EditRole); });
    change("resized", [&] { pane.resize(900, 700); });
    change("all selected", [&] { table->selectAll(); });
    change("copied", [&] { QMetaObject::invokeMethod(&pane, "_onCopy"); });
    change("saved", [&] { pane.save(path + ".saved", true); });
    change("a row deleted", [&] {
        table->selectRow(7);
        QMetaObject::invokeMethod(&pane, "_onDelete");
    });
    change("undone", [&] { QMetaObject::invokeMethod(&pane, "_onUndo"); });
    QTimer::singleShot(300, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
    pane.read(path); // with the dialog's time
    change("the same opened once more", [] {});
}

void compare(const char* name, double own, double other, double difference) {
    if (other > 0.0)
        std::printf("%s %.2f s: %.2f times as long (limit %.1f), figures differ by %.4f m at most\n", name, other,
                    own / other, limit, difference);
    else
        std::printf("%s does not run\n", name);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int count = argc > 1 ? atoi(argv[1]) : 1000000;
    const QTemporaryDir folder;
    const QString table = folder.filePath("points.csv"), plain = folder.filePath("points.txt");
    writePoints(table, plain, count);
    const double own = ours(table, folder.filePath("out.csv"));
    QStringList items = QString(projection).split(' ');
    const QString ownResult = folder.filePath("out.csv"), result = folder.filePath("out.txt");
    const double cct = theirs("cct", QStringList{"-z", "0", "-t", "0", "-d", "4"} + items, plain, result);
    compare("cct", own, cct, largestDifference(ownResult, result));
    const QStringList geographic{"+proj=longlat", "+a=6377563.396", "+rf=299.3249646", "+to"};
    const double cs2cs = theirs("cs2cs", QStringList{"-f", "%.4f"} + geographic + items, plain, result);
    compare("cs2cs", own, cs2cs, largestDifference(ownResult, result));
    measureWindow(table);
    return 0;
}

// Draws the picture of distortion at its default size for systems of several methods, proposes a scale for it, and
// searches the registry; prints each cost, and the picture's beside the 100 ms in which it must be there.

#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/check/AreaPlot.h"
#include "panel/computing/AreaValues.h"
#include "panel/computing/DesignProposal.h"
#include "panel/computing/DistortionLines.h"
#include "panel/computing/SystemDifference.h"
#include "panel/registry/RegistryModel.h"
#include "platform/projection/IProjectionModule.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>

#include <algorithm>
#include <cstdio>

static constexpr double limit = 100.0; ///< milliseconds
static constexpr double width = 500000.0;

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

static void fill(IDictionary* record, const char* type, const char* lat, const char* factor) {
    const char* const values[][2] = {{"ellipsoid_a", "6378137"},
                                     {"ellipsoid_f", "298.257222101"},
                                     {"project_type", type},
                                     {"org_lat", lat},
                                     {"org_lon", "15"},
                                     {"factor", factor},
                                     {"parallel_1_lat", lat},
                                     {"parallel_2_lat", "52"},
                                     {"p_r", "50"},
                                     {"cutting_radius", "0"},
                                     {"false_east", "500000"},
                                     {"false_north", "0"}};
    for (const auto& value : values)
        record->setText(value[0], value[1]);
}

static void measure(const char* name, const char* type, const char* lat, const char* factor) {
    const DictionaryGuard record;
    fill(record.get(), type, lat, factor);
    IProjectionModule& module = *projectionModule();
    const auto system = module.createSystem(coordParamToProjDefine(*record));
    AreaPlot plot{QString()};
    plot.resize(500, 400);
    plot.show();
    const GridPoint origin = DistortionLines::origin(*record);
    const GridArea area = plot.fitted({origin, width, width});
    const QSize nodes = plot.nodeCount();
    AreaValues grid;
    const double computed =
        milliseconds(10, [&] { grid = AreaValues::distortion(*system, area, nodes.width(), nodes.height(), 300.0); });
    const double drawn = milliseconds(10, [&] {
        plot.showValues(grid, area, {"ppm", AreaValues::distortionNoise});
        plot.showLines(DistortionLines(*record, *system, area));
        plot.showPlaces(origin, std::nullopt, {});
        plot.grab();
    });
    QVector<GeographicPoint> points;
    for (const GridPoint& node : AreaValues::nodes(area, 15, 15))
        points.append(*system->toGeographic(node, 0.0));
    const double proposed = milliseconds(5, [&] { DesignProposal::make(*record, module, points, 300.0, true); });
    // Twice what the page "Compare" computes at most: 10,000 nodes, and once more where the map's shape has changed.
    const auto shifted = module.createSystem(coordParamToProjDefine(*record) + " +towgs84=100,200,300,1,2,3,4");
    const QVector<GridPoint> compared = AreaValues::nodes(area, 100, 100);
    const double different =
        2.0 * milliseconds(5, [&] {
            SystemDifference(*shifted, *system, SystemDifference::Sameness::Wgs84).lengths(compared, {0.0, 0.0});
        });
    std::printf("%-22s difference %6.2f ms\n", name, different);
    std::printf("%-22s %5d nodes: compute %6.2f ms, draw %6.2f ms = %.2f of the limit; propose %6.2f ms\n", name,
                nodes.width() * nodes.height(), computed, drawn, (computed + drawn) / limit, proposed);
}

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QElapsedTimer timer;
    timer.start();
    IProjectionModule* const module = projectionModule();
    if (!module)
        return 1;
    std::printf("load the projection module %.1f ms\n", double(timer.nsecsElapsed()) / 1e6);
    timer.restart();
    RegistryModel model(module->registry());
    std::printf("list the registry %.1f ms for %d systems\n", double(timer.nsecsElapsed()) / 1e6, model.rowCount());
    RegistryModel::Search search;
    search.text = "utm zone";
    std::printf("search it by words %.2f ms\n", milliseconds(10, [&] { model.setSearch(search); }));
    measure("transverse Mercator", "1", "0", "0.9996");
    measure("Lambert, one parallel", "8", "48", "0.9999");
    measure("Lambert, two parallels", "9", "48", "1");
    measure("oblique Mercator", "4", "40", "0.9999");
    measure("double stereographic", "7", "52", "0.9999");
    measure("polar stereographic", "6", "90", "0.994");
    measure("Cassini-Soldner", "11", "50", "1");
    return 0;
}

// Reads WKT files into PROJ definitions with GDAL, without the tool, and prints the milliseconds for all but the first,
// which warms the libraries up.
//   bench_speed_gdal FILES...

#include <cpl_conv.h>
#include <ogr_spatialref.h>
#include <proj.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace {

bool import(const char* path) {
    std::ifstream file(path, std::ios::binary);
    const std::string wkt{std::istreambuf_iterator<char>(file), {}};
    OGRSpatialReference reference;
    if (reference.importFromWkt(wkt.c_str()) != OGRERR_NONE)
        return false;
    char* definition = nullptr;
    reference.exportToProj4(&definition);
    const bool isRead = definition && *definition;
    CPLFree(definition);
    return isRead;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2 || !import(argv[1]) || proj_info().major == 0)
        return 1;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 2; i < argc; ++i) {
        if (!import(argv[i]))
            return 1;
    }
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - start;
    std::printf("%.3f\n", elapsed.count());
    return 0;
}

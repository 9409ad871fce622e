#include "support/SampleRecords.h"

#include "import/CoordParamToProjDefine.h"
#include "platform/projection/IProjectionModule.h"

#include <algorithm>

namespace {

/// title | "key=value", "~" for a blank
const char* const table = R"(
Gauss-Kruger | project_type=0 org_lat=0 org_lon=117 factor=1 false_east=500000 false_north=0
UTM | project_type=1 org_lat=0 org_lon=15 factor=0.9996 false_east=500000 false_north=0
British grid | project_type=1 org_lat=49 org_lon=-2 factor=0.9996012717 false_east=400000 false_north=-100000 ellipsoid_name=Airy~1830 ellipsoid_a=6377563.396 ellipsoid_f=299.3249646 _7type=2 _7dx=446.448 _7dy=-125.157 _7dz=542.06 _7rx=0.0000417222222222222 _7ry=0.0000686111111111111 _7rz=0.000233916666666667 _7ppm=-20.4894
Mercator | project_type=2 org_lat=0 org_lon=110 factor=0.997 false_east=3900000 false_north=900000 cutting_radius=6378137
Mercator with parallel | project_type=3 org_lat=0 org_lon=51 factor=1 false_east=0 false_north=0 cutting_radius=4739879.459096 ellipsoid_a=6378137
Oblique Mercator | project_type=4 org_lat=4 org_lon=115 p_r=53.31582047 factor=0.99984 false_east=590476.87 false_north=442857.65
Polar with scale | project_type=6 org_lat=90 org_lon=0 factor=0.994 false_east=2000000 false_north=2000000 cutting_radius=0
Polar with parallel | project_type=6 org_lat=-90 org_lon=70 factor=1 false_east=6000000 false_north=6000000 cutting_radius=2076518.291965
Stereographic | project_type=6 org_lat=40 org_lon=-100 factor=0.9999 false_east=0 false_north=0 cutting_radius=0
Double stereographic | project_type=7 org_lat=52.1561605555556 org_lon=5.38763888888889 factor=0.9999079 false_east=155000 false_north=463000 ellipsoid_name=Bessel~1841 ellipsoid_a=6377397.155 ellipsoid_f=299.1528128
Lambert one parallel | project_type=8 org_lat=18 parallel_1_lat=18 org_lon=-77 factor=0.9999 false_east=250000 false_north=150000
Lambert two parallels | project_type=9 org_lat=27.8333333333333 org_lon=-99 parallel_1_lat=28.3833333333333 parallel_2_lat=30.2833333333333 factor=1 false_east=600000 false_north=4000000
Oblique Mercator two points | project_type=10 org_lat=40 lat1=47.5 lon1=-122.3 lat2=25.7 lon2=-80.2 factor=0.9996 false_east=10 false_north=20
Cassini | project_type=11 org_lat=10.4416666666667 org_lon=-61.3333333333333 false_east=86501.46 false_north=65379.01
)";

/// A record of "key=value" items separated by blanks ("~" stands for a blank), on GRS 1980 unless it says otherwise.
SampleRecord sample(const QByteArray& title, const QByteArray& items) {
    SampleRecord record{title,
                        {{"name", title},
                         {"ellipsoid_name", "GRS 1980"},
                         {"ellipsoid_a", "6378137"},
                         {"ellipsoid_f", "298.257222101"},
                         {"_7type", "0"}}};
    for (const QByteArray& item : items.split(' ')) {
        const int equals = item.indexOf('=');
        record = record.with(item.left(equals), item.mid(equals + 1).replace('~', ' '));
    }
    return record;
}

} // namespace

SampleRecord SampleRecord::with(const QByteArray& key, const QByteArray& text) const {
    SampleRecord changed = *this;
    for (auto& value : changed.values) {
        if (value.first == key) {
            value.second = text;
            return changed;
        }
    }
    changed.values.append({key, text});
    return changed;
}

DictionaryGuard SampleRecord::record() const {
    DictionaryGuard record;
    for (const auto& value : values)
        record->setText(value.first, value.second);
    return record;
}

std::unique_ptr<IProjectedSystem> SampleRecord::system() const {
    return projectionModule()->createSystem(coordParamToProjDefine(*record()));
}

const QVector<SampleRecord>& SampleRecord::all() {
    static const QVector<SampleRecord> records = [] {
        QVector<SampleRecord> read;
        for (const QByteArray& line : QByteArray(table).trimmed().split('\n'))
            read << sample(line.left(line.indexOf(" | ")), line.mid(line.indexOf(" | ") + 3));
        return read;
    }();
    return records;
}

const SampleRecord& SampleRecord::named(const QByteArray& title) {
    return *std::find_if(all().begin(), all().end(), [&](const SampleRecord& record) { return record.title == title; });
}

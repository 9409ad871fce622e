#include "platform/projection/engine/definition/Datum.h"

#include <algorithm>
#include <iterator>

namespace {

// The manual of PROJ 9, "Geodetic transformation", and its list of datums.
constexpr Datum datums[] = {
    {"WGS84", "WGS84", "0,0,0"},
    {"NAD83", "GRS80", "0,0,0"},
    {"NAD27", "clrk66", "0,0,0"},
    {"potsdam", "bessel", "0,0,0"},
    {"GGRS87", "GRS80", "-199.87,74.79,246.62"},
    {"carthage", "clrk80ign", "-263.0,6.0,431.0"},
    {"hermannskogel", "bessel", "577.326,90.129,463.919,5.137,1.474,5.297,2.4232"},
    {"ire65", "mod_airy", "482.530,-130.596,564.557,-1.042,-0.214,-0.631,8.15"},
    {"nzgd49", "intl", "59.47,-5.04,187.44,0.47,-0.1,1.024,-4.5993"},
    {"OSGB36", "airy", "446.448,-125.157,542.060,0.1502,0.2470,0.8421,-20.4894"},
};

} // namespace

const Datum* Datum::named(const QByteArray& name) {
    const auto found =
        std::find_if(std::begin(datums), std::end(datums), [&name](const Datum& datum) { return name == datum.name; });
    return found == std::end(datums) ? nullptr : found;
}

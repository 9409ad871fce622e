#include "RegistryEllipsoids.h"

#include "NaturalOrder.h"
#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <QString>

#include <algorithm>

namespace {

constexpr const char* authority = "EPSG";

QByteArray figure(double value) {
    const QByteArray text = projNumber(value);
    return text.contains('.') ? text : text + ".0";
}

RegistryEllipsoid readEllipsoid(PJ_CONTEXT* context, const PJ* ellipsoid) {
    double a = 0.0, inverseFlattening = 0.0;
    proj_ellipsoid_get_parameters(context, ellipsoid, &a, nullptr, nullptr, &inverseFlattening);
    return {proj_get_name(ellipsoid), figure(a), figure(inverseFlattening)};
}

} // namespace

std::vector<RegistryEllipsoid> registryEllipsoids() {
    const ProjContext context;
    std::vector<RegistryEllipsoid> valid, deprecated;
    const PROJ_STRING_LIST codes = proj_get_codes_from_database(context.get(), authority, PJ_TYPE_ELLIPSOID, 1);
    for (PROJ_STRING_LIST code = codes; code != nullptr && *code != nullptr; ++code) {
        const ProjObject ellipsoid(
            proj_create_from_database(context.get(), authority, *code, PJ_CATEGORY_ELLIPSOID, 0, nullptr));
        if (ellipsoid)
            (proj_is_deprecated(ellipsoid.get()) ? deprecated : valid)
                .push_back(readEllipsoid(context.get(), ellipsoid.get()));
    }
    proj_string_list_destroy(codes);

    std::vector<RegistryEllipsoid> ellipsoids = valid;
    for (const RegistryEllipsoid& each : deprecated) {
        const auto sameName = [&each](const RegistryEllipsoid& other) { return other.name == each.name; };
        if (std::none_of(valid.begin(), valid.end(), sameName))
            ellipsoids.push_back(each);
    }
    std::sort(ellipsoids.begin(), ellipsoids.end(), [](const RegistryEllipsoid& left, const RegistryEllipsoid& right) {
        return naturalLess(QString::fromUtf8(left.name), QString::fromUtf8(right.name));
    });
    return ellipsoids;
}

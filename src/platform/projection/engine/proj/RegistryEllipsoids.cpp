#include "platform/projection/engine/proj/RegistryEllipsoids.h"

#include "platform/projection/engine/proj/ProjObject.h"

std::vector<RegistryEllipsoid> registryEllipsoids(PJ_CONTEXT* context) {
    constexpr const char* authority = "EPSG";
    std::vector<RegistryEllipsoid> ellipsoids;
    const auto codes = proj_get_codes_from_database(context, authority, PJ_TYPE_ELLIPSOID, 1);
    for (auto code = codes; code && *code; ++code) {
        const ProjObject ellipsoid(
            proj_create_from_database(context, authority, *code, PJ_CATEGORY_ELLIPSOID, 0, nullptr));
        double a = 0;
        double b = 0;
        double inverseFlattening = 0;
        if (ellipsoid && proj_ellipsoid_get_parameters(context, ellipsoid.get(), &a, &b, nullptr, &inverseFlattening))
            ellipsoids.push_back({QByteArray(*code).toInt(), proj_get_name(ellipsoid.get()),
                                  proj_is_deprecated(ellipsoid.get()) != 0, a, b, inverseFlattening});
    }
    proj_string_list_destroy(codes);
    return ellipsoids;
}

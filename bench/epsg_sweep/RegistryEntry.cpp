#include "RegistryEntry.h"

#include "catalogue/Angle.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

RegistryEntry::RegistryEntry(PJ_CONTEXT* context, const char* registry, const char* code)
    : context(context), crs(proj_create_from_database(context, registry, code, PJ_CATEGORY_CRS, 0, nullptr)) {
}

QByteArray RegistryEntry::method() const {
    const ProjObject conversion(proj_crs_get_coordoperation(context, crs.get()));
    const char* name = nullptr;
    proj_coordoperation_get_method_info(context, conversion.get(), &name, nullptr, nullptr);
    return name;
}

QByteArray RegistryEntry::wkt(PJ_WKT_TYPE dialect) const {
    return proj_as_wkt(context, crs.get(), dialect, nullptr);
}

QByteArray RegistryEntry::projJson() const {
    return proj_as_projjson(context, crs.get(), nullptr);
}

QByteArray RegistryEntry::projText() const {
    return proj_as_proj_string(context, crs.get(), PJ_PROJ_4, nullptr);
}

RegistryEntry::Base RegistryEntry::base(const PJ* geodetic) const {
    Base result{};
    const ProjObject meridian(proj_get_prime_meridian(context, geodetic));
    double longitude = 0;
    double radiansPerUnit = 0;
    proj_prime_meridian_get_parameters(context, meridian.get(), &longitude, &radiansPerUnit, nullptr);
    result.primeMeridian = Angle::toDegrees(longitude * radiansPerUnit);
    const ProjObject axes(proj_crs_get_coordinate_system(context, geodetic));
    proj_cs_get_axis_info(context, axes.get(), 0, nullptr, nullptr, nullptr, &radiansPerUnit, nullptr, nullptr,
                          nullptr);
    result.degreesPerUnit = Angle::toDegrees(radiansPerUnit);
    return result;
}

double RegistryEntry::metresPerUnit() const {
    const ProjObject axes(proj_crs_get_coordinate_system(context, crs.get()));
    double metres = 0;
    proj_cs_get_axis_info(context, axes.get(), 0, nullptr, nullptr, nullptr, &metres, nullptr, nullptr, nullptr);
    return metres;
}

RegistryEntry::Box RegistryEntry::areaOfUse() const {
    Box area{};
    constexpr double unknown = -1000;
    proj_get_area_of_use(context, crs.get(), &area.west, &area.south, &area.east, &area.north, nullptr);
    if (area.west != unknown) {
        area.east += area.west > area.east ? 360 : 0;
        return area;
    }
    // Some withdrawn systems have no area.
    const double longitude = Angle::toDegrees(parameter("Longitude of natural origin"));
    const double latitude = Angle::toDegrees(parameter("Latitude of natural origin"));
    return {longitude - 3, latitude - 5, longitude + 3, latitude + 5};
}

/// In metres, radians or parts of 1.
double RegistryEntry::parameter(const char* name) const {
    const ProjObject conversion(proj_crs_get_coordoperation(context, crs.get()));
    const int index = proj_coordoperation_get_param_index(context, conversion.get(), name);
    double value = 0;
    double unit = 0;
    proj_coordoperation_get_param(context, conversion.get(), index, nullptr, nullptr, nullptr, &value, nullptr, &unit,
                                  nullptr, nullptr, nullptr, nullptr);
    return value * unit;
}

/// Turns what PROJ gives without it by 29.2985 arc-seconds around the apex of the cone, where the false origin of the
/// registry's Belgian grid lies.
void RegistryEntry::turnBelgian(Sample& sample) const {
    const double turn = Angle::toRadians(29.2985 / 3600);
    const double x = sample.easting - parameter("Easting at false origin");
    const double y = sample.northing - parameter("Northing at false origin");
    sample.easting += x * (std::cos(turn) - 1) + y * std::sin(turn);
    sample.northing += y * (std::cos(turn) - 1) - x * std::sin(turn);
}

/// South polar, as all of the registry's.
void RegistryEntry::projectPolarVariantC(Sample& sample) const {
    double a = 0;
    double b = 0;
    const ProjObject ellipsoid(proj_get_ellipsoid(context, crs.get()));
    proj_ellipsoid_get_parameters(context, ellipsoid.get(), &a, &b, nullptr, nullptr);
    const double e = std::sqrt(1 - b * b / (a * a));
    const auto t = [e](double phi) {
        return std::tan(M_PI_4 + phi / 2) / std::pow((1 + e * std::sin(phi)) / (1 - e * std::sin(phi)), e / 2);
    };
    const double parallel = parameter("Latitude of standard parallel");
    const double radius = a * std::cos(parallel) / std::sqrt(1 - std::pow(e * std::sin(parallel), 2));
    const double rho = radius * t(Angle::toRadians(sample.latitude)) / t(parallel);
    const double theta = Angle::toRadians(sample.longitude) - parameter("Longitude of origin");
    sample.easting = parameter("Easting at false origin") + rho * std::sin(theta);
    sample.northing = parameter("Northing at false origin") - radius + rho * std::cos(theta);
}

QVector<RegistryEntry::Sample> RegistryEntry::samples() const {
    const Box area = areaOfUse();
    QVector<Sample> places;
    for (const double x : {0.02, 0.5, 0.98}) {
        for (const double y : {0.02, 0.5, 0.98})
            places.append({area.west + x * (area.east - area.west), area.south + y * (area.north - area.south), 0, 0});
    }
    return computed(places);
}

QVector<RegistryEntry::Sample> RegistryEntry::computed(const QVector<Sample>& places) const {
    const ProjObject geodetic(proj_crs_get_geodetic_crs(context, crs.get()));
    const ProjObject asStored(
        geodetic ? proj_create_crs_to_crs_from_pj(context, geodetic.get(), crs.get(), nullptr, nullptr) : nullptr);
    const ProjObject operation(asStored ? proj_normalize_for_visualization(context, asStored.get()) : nullptr);
    const bool isVariantC = method() == "Polar Stereographic (variant C)";
    if (!operation && !isVariantC)
        return {};
    const Base from = base(geodetic.get());
    const double unit = metresPerUnit();
    QVector<Sample> result;
    for (Sample sample : places) {
        const PJ_COORD grid = proj_trans(operation.get(), PJ_FWD,
                                         proj_coord((sample.longitude - from.primeMeridian) / from.degreesPerUnit,
                                                    sample.latitude / from.degreesPerUnit, 0, 0));
        sample.easting = grid.xy.x * unit;
        sample.northing = grid.xy.y * unit;
        if (isVariantC)
            projectPolarVariantC(sample);
        else if (method() == "Lambert Conic Conformal (2SP Belgium)")
            turnBelgian(sample);
        if (std::isfinite(sample.easting) && std::isfinite(sample.northing))
            result.append(sample);
    }
    return result;
}

QVector<QByteArray> registryCodes(PJ_CONTEXT* context, const char* registry, bool deprecatedToo) {
    const auto list = proj_get_codes_from_database(context, registry, PJ_TYPE_PROJECTED_CRS, deprecatedToo);
    QVector<QByteArray> codes;
    for (auto code = list; code && *code; ++code)
        codes.append(*code);
    proj_string_list_destroy(list);
    // IGN's are names.
    std::sort(codes.begin(), codes.end(), [](const QByteArray& left, const QByteArray& right) {
        return std::make_pair(left.toInt(), left) < std::make_pair(right.toInt(), right);
    });
    return codes;
}

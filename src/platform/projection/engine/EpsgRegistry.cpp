#include "platform/projection/engine/EpsgRegistry.h"

#include "platform/projection/engine/proj/BoundSystem.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/RegistryEllipsoids.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

constexpr const char* authority = "EPSG";

/// The operations from a geographic system to WGS 84 that meet the given area, PROJ's first choice first.
PJ_OBJ_LIST* operationsToWgs84(PJ_CONTEXT* context, const PJ* geographic, const PJ* projected) {
    PJ_OPERATION_FACTORY_CONTEXT* factory = proj_create_operation_factory_context(context, authority);
    double west = 0.0, south = 0.0, east = 0.0, north = 0.0;
    if (proj_get_area_of_use(context, projected, &west, &south, &east, &north, nullptr) != 0)
        proj_operation_factory_context_set_area_of_interest(context, factory, west, south, east, north);
    proj_operation_factory_context_set_spatial_criterion(context, factory, PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
    proj_operation_factory_context_set_grid_availability_use(context, factory, PROJ_GRID_AVAILABILITY_IGNORED);
    proj_operation_factory_context_set_allow_use_intermediate_crs(context, factory, PROJ_INTERMEDIATE_CRS_USE_NEVER);
    proj_operation_factory_context_set_allow_ballpark_transformations(context, factory, 0);
    const ProjObject wgs84(proj_create_from_database(context, authority, "4326", PJ_CATEGORY_CRS, 0, nullptr));
    PJ_OBJ_LIST* operations = wgs84 ? proj_create_operations(context, geographic, wgs84.get(), factory) : nullptr;
    proj_operation_factory_context_destroy(factory);
    return operations;
}

/// The seven numbers of `shift` joined by ",", each with all its digits.
QByteArray towgs84(const RegistryShift& shift) {
    QByteArrayList texts;
    for (const double value : shift.values)
        texts.append(QByteArray::number(value, 'g', 17));
    return texts.join(',');
}

} // namespace

const std::vector<RegistrySystem>& EpsgRegistry::projectedSystems() {
    if (systems.empty())
        readSystems();
    return systems;
}

void EpsgRegistry::readSystems() {
    const PJ_TYPE type = PJ_TYPE_PROJECTED_CRS;
    PROJ_CRS_LIST_PARAMETERS* parameters = proj_get_crs_list_parameters_create();
    parameters->types = &type;
    parameters->typesCount = 1;
    parameters->allow_deprecated = 1;
    int count = 0;
    PROJ_CRS_INFO** infos = proj_get_crs_info_list_from_database(context.get(), authority, parameters, &count);
    proj_get_crs_list_parameters_destroy(parameters);
    for (int i = 0; i < count; ++i) {
        const PROJ_CRS_INFO& info = *infos[i];
        systems.push_back({QByteArray(info.code), QByteArray(info.name), QByteArray(info.area_name),
                           QByteArray(info.projection_method_name), info.deprecated != 0, info.bbox_valid != 0,
                           info.west_lon_degree, info.south_lat_degree, info.east_lon_degree, info.north_lat_degree});
    }
    proj_crs_info_list_destroy(infos);
    std::sort(systems.begin(), systems.end(), [](const RegistrySystem& left, const RegistrySystem& right) {
        return left.code.toInt() < right.code.toInt();
    });
}

ProjObject EpsgRegistry::system(const QByteArray& code) const {
    return ProjObject(
        proj_create_from_database(context.get(), authority, code.constData(), PJ_CATEGORY_CRS, 0, nullptr));
}

std::vector<RegistryShift> EpsgRegistry::datumShifts(const QByteArray& code) {
    std::vector<RegistryShift> shifts;
    const ProjObject projected = system(code);
    const ProjObject geographic(projected ? proj_crs_get_geodetic_crs(context.get(), projected.get()) : nullptr);
    if (!geographic)
        return shifts;
    PJ_OBJ_LIST* operations = operationsToWgs84(context.get(), geographic.get(), projected.get());
    for (int i = 0; i < proj_list_get_count(operations); ++i) {
        const ProjObject operation(proj_list_get(context.get(), operations, i));
        RegistryShift shift{};
        if (proj_coordoperation_get_towgs84_values(context.get(), operation.get(), shift.values, 7, 0) == 0)
            continue;
        const char* area = nullptr;
        proj_get_area_of_use(context.get(), operation.get(), nullptr, nullptr, nullptr, nullptr, &area);
        shift.name = QByteArray(proj_get_name(operation.get()));
        shift.area = QByteArray(area);
        shift.accuracy = proj_coordoperation_get_accuracy(context.get(), operation.get());
        shifts.push_back(shift);
    }
    proj_list_destroy(operations);
    return shifts;
}

QByteArray EpsgRegistry::wkt(const QByteArray& code, const RegistryShift* shift) {
    ProjObject crs = system(code);
    if (crs && shift != nullptr)
        crs = boundToWgs84(context.get(), crs, towgs84(*shift));
    return crs ? QByteArray(proj_as_wkt(context.get(), crs.get(), PJ_WKT2_2019, nullptr)) : QByteArray();
}

QByteArray EpsgRegistry::unitName(const QByteArray& code) {
    const ProjObject crs = system(code);
    const ProjObject axes(crs ? proj_crs_get_coordinate_system(context.get(), crs.get()) : nullptr);
    const char* unit = nullptr;
    if (axes)
        proj_cs_get_axis_info(context.get(), axes.get(), 0, nullptr, nullptr, nullptr, nullptr, &unit, nullptr,
                              nullptr);
    return QByteArray(unit);
}

std::vector<RegistryEllipsoid> EpsgRegistry::ellipsoids() {
    return registryEllipsoids(context.get());
}

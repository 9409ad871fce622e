#include "platform/projection/engine/EpsgRegistry.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/proj/BoundSystem.h"
#include "platform/projection/engine/proj/DatumName.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/RegistryEllipsoids.h"
#include "platform/projection/engine/wkt/FaithfulDefinition.h"
#include "platform/projection/engine/wkt/ProjectedWkt.h"

#include <QByteArrayList>

#include <proj_experimental.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr const char* authority = "EPSG";

std::optional<GeographicBox> areaOf(PJ_CONTEXT* context, const PJ* object) {
    GeographicBox box{};
    const bool isKnown =
        proj_get_area_of_use(context, object, &box.west, &box.south, &box.east, &box.north, nullptr) != 0;
    return isKnown ? std::optional<GeographicBox>(box) : std::nullopt;
}

/// The operations from a geographic system to WGS 84 that meet the given area, PROJ's first choice first.
PJ_OBJ_LIST* operationsToWgs84(PJ_CONTEXT* context, const PJ* geographic, const std::optional<GeographicBox>& area) {
    PJ_OPERATION_FACTORY_CONTEXT* factory = proj_create_operation_factory_context(context, authority);
    if (area)
        proj_operation_factory_context_set_area_of_interest(context, factory, area->west, area->south, area->east,
                                                            area->north);
    proj_operation_factory_context_set_spatial_criterion(context, factory, PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
    proj_operation_factory_context_set_grid_availability_use(context, factory, PROJ_GRID_AVAILABILITY_IGNORED);
    proj_operation_factory_context_set_allow_use_intermediate_crs(context, factory, PROJ_INTERMEDIATE_CRS_USE_NEVER);
    proj_operation_factory_context_set_allow_ballpark_transformations(context, factory, 0);
    const ProjObject wgs84(proj_create_from_database(context, authority, "4326", PJ_CATEGORY_CRS, 0, nullptr));
    PJ_OBJ_LIST* operations = wgs84 ? proj_create_operations(context, geographic, wgs84.get(), factory) : nullptr;
    proj_operation_factory_context_destroy(factory);
    return operations;
}

/// The shift that an operation is; nothing when three or seven parameters are not all of it.
std::optional<RegistryShift> shiftOf(PJ_CONTEXT* context, const PJ* operation) {
    RegistryShift shift{};
    if (proj_coordoperation_get_towgs84_values(context, operation, shift.values, 7, 0) == 0)
        return std::nullopt;
    const char* area = nullptr;
    proj_get_area_of_use(context, operation, nullptr, nullptr, nullptr, nullptr, &area);
    shift.name = QByteArray(proj_get_name(operation));
    shift.area = QByteArray(area);
    shift.accuracy = proj_coordoperation_get_accuracy(context, operation);
    return shift;
}

/// Around a pole both axes point along meridians: the easting 90 degrees east of the northing around the south pole,
/// west of it around the north pole.
bool isNorthingFirst(const ProjectedWkt& statement) {
    const bool startsNorth = statement.axes.startsWith("north");
    const QVector<double>& meridians = statement.axisMeridians;
    if (meridians.size() != 2)
        return startsNorth;
    const bool isAtSouthPole = startsNorth;
    const bool isEastOfSecond = std::remainder(meridians[0] - meridians[1], 360) > 0;
    return isEastOfSecond != isAtSouthPole;
}

/// "+axis=wsu " where an axis points west or south, which PROJ's own text does not always say; the one that points east
/// or west comes first. Empty for any others.
QByteArray turnedAxes(PJ_CONTEXT* context, const PJ* crs) {
    const ProjObject axes(proj_crs_get_coordinate_system(context, crs));
    QByteArray letters;
    for (int i = 0; axes && i < 2; ++i) {
        const char* direction = nullptr;
        proj_cs_get_axis_info(context, axes.get(), i, nullptr, nullptr, &direction, nullptr, nullptr, nullptr, nullptr);
        letters += QByteArray(direction).left(1);
    }
    for (const char* const turned : {"ws", "wn", "es"}) {
        if (letters.contains(turned[0]) && letters.contains(turned[1]))
            return QByteArray("+axis=") + turned + "u ";
    }
    return {};
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
    PJ_OBJ_LIST* operations =
        operationsToWgs84(context.get(), geographic.get(), areaOf(context.get(), projected.get()));
    for (int i = 0; i < proj_list_get_count(operations); ++i) {
        const ProjObject operation(proj_list_get(context.get(), operations, i));
        if (const auto shift = shiftOf(context.get(), operation.get()))
            shifts.push_back(*shift);
    }
    proj_list_destroy(operations);
    return shifts;
}

std::vector<RegistryShift> EpsgRegistry::datumShiftsAt(const QByteArray& datumName, double latitude, double longitude) {
    auto known = shiftsOfDatums.constFind(datumName);
    if (known == shiftsOfDatums.constEnd())
        known = shiftsOfDatums.insert(datumName, readShifts(datumName));
    std::vector<RegistryShift> shifts;
    for (const PlacedShift& placed : *known) {
        if (placed.area.contains(latitude, longitude))
            shifts.push_back(placed.shift);
    }
    return shifts;
}

std::vector<EpsgRegistry::PlacedShift> EpsgRegistry::readShifts(const QByteArray& datumName) {
    std::vector<PlacedShift> shifts;
    datumNames();
    const auto code = datumCodes.constFind(datumName);
    if (code == datumCodes.constEnd())
        return shifts;
    PJ_OBJ_LIST* systems =
        proj_query_geodetic_crs_from_datum(context.get(), authority, authority, code->constData(), "geographic 2D");
    for (int i = 0; i < proj_list_get_count(systems); ++i) {
        const ProjObject geographic(proj_list_get(context.get(), systems, i));
        if (proj_is_deprecated(geographic.get()))
            continue;
        PJ_OBJ_LIST* operations = operationsToWgs84(context.get(), geographic.get(), std::nullopt);
        for (int j = 0; j < proj_list_get_count(operations); ++j) {
            const ProjObject operation(proj_list_get(context.get(), operations, j));
            const auto area = areaOf(context.get(), operation.get());
            const auto shift = shiftOf(context.get(), operation.get());
            if (shift && area)
                shifts.push_back({*area, *shift});
        }
        proj_list_destroy(operations);
    }
    proj_list_destroy(systems);
    return shifts;
}

const std::vector<QByteArray>& EpsgRegistry::datumNames() {
    if (datums.empty())
        readDatums();
    return datums;
}

void EpsgRegistry::readDatums() {
    const auto codes = proj_get_codes_from_database(context.get(), authority, PJ_TYPE_GEODETIC_REFERENCE_FRAME, 0);
    for (auto code = codes; code && *code; ++code) {
        const ProjObject datum(
            proj_create_from_database(context.get(), authority, *code, PJ_CATEGORY_DATUM, 0, nullptr));
        if (!datum || !DatumName::meridianSuffix(context.get(), datum.get()).isEmpty())
            continue;
        const QByteArray name = DatumName::of(context.get(), datum.get());
        if (name.isEmpty() || datumCodes.contains(name))
            continue;
        datumCodes.insert(name, *code);
        datums.push_back(name);
    }
    proj_string_list_destroy(codes);
    std::sort(datums.begin(), datums.end(), [](const QByteArray& left, const QByteArray& right) {
        return qstricmp(left.constData(), right.constData()) < 0;
    });
}

QByteArray EpsgRegistry::datumName(const QByteArray& code) {
    const ProjObject projected = system(code);
    const ProjObject datum(projected ? proj_crs_get_datum_forced(context.get(), projected.get()) : nullptr);
    return datum ? DatumName::of(context.get(), datum.get()) : QByteArray();
}

QByteArray EpsgRegistry::edition() {
    const QByteArray version = proj_context_get_database_metadata(context.get(), "EPSG.VERSION");
    return version.isEmpty() ? version : QByteArray(authority) + ' ' + version;
}

QByteArray EpsgRegistry::wkt(const QByteArray& code, const RegistryShift* shift) {
    ProjObject crs = system(code);
    if (crs && shift != nullptr)
        crs = boundToWgs84(context.get(), crs, towgs84(*shift));
    return crs ? QByteArray(proj_as_wkt(context.get(), crs.get(), PJ_WKT2_2019, nullptr)) : QByteArray();
}

const RegistryDefinition& EpsgRegistry::definition(const QByteArray& code) {
    auto known = definitions.find(code);
    if (known == definitions.end())
        known = definitions.emplace(code, readDefinition(code)).first;
    return known->second;
}

/// From the system's WKT, whose numbers have their units beside them. No other reader of WKT is asked: that takes nine
/// times as long, and says the same of all of PROJ's own texts (bench/identify).
RegistryDefinition EpsgRegistry::readDefinition(const QByteArray& code) const {
    const ProjObject crs = system(code);
    if (!crs)
        return {};
    const ProjectedWkt statement(proj_as_wkt(context.get(), crs.get(), PJ_WKT2_2019, nullptr));
    const QByteArray definition = statedDefinition(statement);
    const ProjObject datum(proj_crs_get_datum_forced(context.get(), crs.get()));
    return {definition, datum ? DatumName::of(context.get(), datum.get()) : QByteArray(), isNorthingFirst(statement),
            statement.gridUnits.isEmpty() ? 0 : statement.gridUnits.first()};
}

QByteArray EpsgRegistry::withheldDefinition(const QByteArray& code) {
    const ProjObject crs = system(code);
    const ProjObject ellipsoid(crs ? proj_get_ellipsoid(context.get(), crs.get()) : nullptr);
    double a = 0.0, b = 0.0;
    if (!ellipsoid || proj_ellipsoid_get_parameters(context.get(), ellipsoid.get(), &a, &b, nullptr, nullptr) == 0)
        return {};
    // Without its datum, which would bring a shift along, and its unit; lengths are in metres in any case.
    const QByteArrayList dropped{"datum",    "ellps",   "a",        "b",       "rf",   "R",   "units",
                                 "to_meter", "towgs84", "nadgrids", "no_defs", "type", "axis"};
    const ProjItems items(proj_as_proj_string(context.get(), crs.get(), PJ_PROJ_4, nullptr));
    QByteArray definition;
    for (const ProjItems::Item& item : items.all()) {
        if (!dropped.contains(item.key))
            definition += '+' + item.key + (item.value.isEmpty() ? QByteArray() : '=' + item.value) + ' ';
    }
    return definition.startsWith("+proj=") ? definition + turnedAxes(context.get(), crs.get()) + "+a=" + projNumber(a) +
                                                 " +b=" + projNumber(b) + " +units=m +no_defs"
                                           : QByteArray();
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

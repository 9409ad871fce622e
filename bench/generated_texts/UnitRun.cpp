#include "UnitRun.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cstdio>

UnitRun::UnitRun() : context(proj_context_create()) {
    proj_log_func(context, nullptr, [](void*, int, const char*) {});
}

UnitRun::~UnitRun() {
    proj_context_destroy(context);
}

bool UnitRun::run(int count, int every) {
    const QVector<System> systems = readSystems();
    const int step = std::max(1, systems.size() / count);
    int index = 0;
    for (int i = 0; i < std::min(count, systems.size()); ++i) {
        for (const auto& length : TextGenerator::lengthUnits()) {
            for (const auto& angle : TextGenerator::angleUnits()) {
                for (const auto& meridian : TextGenerator::meridians()) {
                    for (const Dialect dialect : {Dialect::Gdal, Dialect::Esri, Dialect::Wkt2_2019}) {
                        if (++index % every == 0)
                            take(systems[i * step], dialect,
                                 {angle, length, meridian, index % 2 == 0, index % 5 < 3, index % 7 < 4});
                    }
                }
            }
        }
    }
    Count::printHead();
    Count all;
    for (auto unit = byUnit.begin(); unit != byUnit.end(); ++unit)
        unit->print(unit.key().constData());
    for (auto dialect = byDialect.begin(); dialect != byDialect.end(); ++dialect) {
        dialect->print(dialect.key().constData());
        all.add(*dialect);
    }
    all.print("all");
    return all.wrong == 0;
}

/// Those of a method that a record holds.
QVector<UnitRun::System> UnitRun::readSystems() const {
    QVector<System> systems;
    const auto codes = proj_get_codes_from_database(context, "EPSG", PJ_TYPE_PROJECTED_CRS, 0);
    for (auto code = codes; code && *code; ++code) {
        const System system = readSystem(*code);
        if (!system.values.isEmpty())
            systems.append(system);
    }
    proj_string_list_destroy(codes);
    return systems;
}

UnitRun::System UnitRun::readSystem(const char* code) const {
    const ProjObject crs(proj_create_from_database(context, "EPSG", code, PJ_CATEGORY_CRS, 0, nullptr));
    const ProjObject conversion(proj_crs_get_coordoperation(context, crs.get()));
    const ProjObject ellipsoid(proj_get_ellipsoid(context, crs.get()));
    const char* method = nullptr;
    proj_coordoperation_get_method_info(context, conversion.get(), nullptr, nullptr, &method);
    double a = 0;
    double inverseFlattening = 0;
    proj_ellipsoid_get_parameters(context, ellipsoid.get(), &a, nullptr, nullptr, &inverseFlattening);
    System system{code,
                  QByteArray(method).toInt(),
                  {},
                  {proj_get_name(ellipsoid.get()), TextGenerator::number(a), TextGenerator::number(inverseFlattening)}};
    const QMap<int, QByteArray> items = TextGenerator::itemsOf(system.method);
    for (int i = 0; !items.isEmpty() && i < proj_coordoperation_get_param_count(context, conversion.get()); ++i) {
        const char* parameter = nullptr;
        double value = 0;
        double factor = 0;
        const char* kind = nullptr;
        proj_coordoperation_get_param(context, conversion.get(), i, nullptr, nullptr, &parameter, &value, nullptr,
                                      &factor, nullptr, nullptr, nullptr, &kind);
        const QByteArray item = items.value(QByteArray(parameter).toInt());
        const double number = value * factor;
        // The record's oblique Mercator is turned by the azimuth, and Mercator's origin is on the equator.
        const bool isOther = item.isEmpty() ? number != 0 : system.values.value(item, number) != number;
        if (isOther)
            return {};
        if (!item.isEmpty())
            system.values[item] = number;
    }
    for (auto value = system.values.begin(); value != system.values.end(); ++value) {
        if (value.key().startsWith("l") || value.key() == "alpha")
            value.value() = Angle::toDegrees(value.value());
    }
    return system;
}

void UnitRun::take(const System& system, Dialect dialect, const TextGenerator::Layout& layout) {
    const auto generated = TextGenerator::write(system.method, dialect, system.values, system.spheroid, layout);
    if (!generated)
        return;
    const Count count = judge.judge("EPSG:" + system.code, Expectation::Says, *generated);
    byDialect[generated->method].add(count);
    for (const char* const name : {layout.angle.gdal, layout.length.gdal, layout.meridian.name})
        byUnit[name].add(count);
}

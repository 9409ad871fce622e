#include "panel/computing/ShiftEstimate.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "import/CoordParamToProjDefine.h"
#include "panel/computing/GroundDistance.h"
#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectionModule.h"

#include <QString>

#include <algorithm>

namespace {

/// The record's system with another shift to WGS 84.
std::unique_ptr<IProjectedSystem> shifted(const IDictionary& record, IProjectionModule& module,
                                          const RegistryShift& shift) {
    const DictionaryGuard copy;
    dictionary_assign(copy.get(), &record);
    dic_set_value(copy.get(), CoordParamKey::shiftType, "%d", 0);
    QByteArray definition = coordParamToProjDefine(*copy) + " +towgs84=";
    for (const double value : shift.values)
        definition += QByteArray::number(value, 'g', 17) + ',';
    definition.chop(1);
    return module.createSystem(definition);
}

} // namespace

std::optional<ShiftEstimate> ShiftEstimate::at(const IDictionary& record, IProjectionModule& module,
                                               const GeographicPoint& own) {
    const QByteArray datum = QString::fromLocal8Bit(record.getValue(CoordParamKey::datumName)).toUtf8();
    if (datum.isEmpty())
        return std::nullopt;
    std::optional<ShiftEstimate> estimate;
    for (const RegistryShift& shift : module.registry().datumShiftsAt(datum, own.latitude, own.longitude)) {
        const auto system = shifted(record, module, shift);
        auto wgs84 = system ? system->toWgs84(own) : std::nullopt;
        if (!wgs84)
            continue;
        wgs84->height = own.height; // on the ground, that is
        const double distance = groundDistance(own, *wgs84, system->meanRadius(own.latitude));
        estimate = estimate
                       ? ShiftEstimate{std::min(estimate->smallest, distance), std::max(estimate->largest, distance)}
                       : ShiftEstimate{distance, distance};
    }
    return estimate;
}

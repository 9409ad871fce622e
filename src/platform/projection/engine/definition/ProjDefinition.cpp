#include "platform/projection/engine/definition/ProjDefinition.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/DatumShift.h"
#include "platform/projection/engine/definition/EllipsoidNames.h"
#include "platform/projection/engine/definition/NormalisedProjection.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/definition/SameProjection.h"

#include <cmath>

namespace {

/// The order of the axes is no part of a projection, their directions are.
bool isEastNorth(const ProjItems& items) {
    const QByteArray axes = items.text("axis");
    return axes.isEmpty() || axes == "enu" || axes == "neu";
}

/// No datum is a thousandth larger than another: such a scale difference is a factor or another unit taken for ppm.
bool isShift(const ProjTowgs84& shift) {
    return std::abs(shift.ppm) <= 1000;
}

QByteArray shiftText(const ProjTowgs84& shift) {
    QByteArray text = " +towgs84=" + projNumber(shift.dx);
    for (const double value : {shift.dy, shift.dz, shift.rx, shift.ry, shift.rz, shift.ppm})
        text += ',' + projNumber(value);
    return text;
}

} // namespace

ProjDefinition::ProjDefinition(const QByteArray& definition, const ProjContext& context, EllipsoidNames& names) {
    const ProjItems items(definition);
    Ellipsoid givenAxes;
    ProjTowgs84 givenShift;
    if (givenAxes.read(items) && readDatumShift(items, &givenShift)) {
        axes = givenAxes;
        if (isShift(givenShift))
            shift = givenShift;
        QByteArray projection = normalisedProjection(items, axes);
        if (projection.isEmpty() || !isEastNorth(items) || !isSameProjection(context, items, projection, axes))
            projection = parametersWithoutProjection(items);
        if (!projection.isEmpty())
            normalised = projection + axes.definition() + shiftText(shift) + " +units=m +no_defs";
    }
    ellipsoidName = names.nameOf(axes.a, axes.b);
}

ProjEllipsoid ProjDefinition::ellipsoid() const {
    const auto orNull = [](const QByteArray& text) { return text.isEmpty() ? nullptr : text.constData(); };
    return {orNull(axes.id), axes.a, axes.b, orNull(ellipsoidName)};
}

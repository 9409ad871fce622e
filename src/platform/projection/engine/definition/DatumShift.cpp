#include "platform/projection/engine/definition/DatumShift.h"

#include "platform/projection/engine/definition/Datum.h"
#include "platform/projection/engine/definition/ProjItems.h"

#include <QByteArrayList>

#include <cmath>

namespace {

/// WKT 2 states the scale difference as the factor 1 + ppm / 1e6, whose last place is 2.2e-10 ppm: a value that close
/// to one of eight decimals is that one, and -20.489 does not come back as -20.4889999999569.
double withoutRoundingError(double ppm) {
    const double rounded = std::round(ppm * 1e8) / 1e8;
    return std::abs(rounded - ppm) < 2.3e-10 ? rounded : ppm;
}

} // namespace

bool readDatumShift(const ProjItems& items, ProjTowgs84* shift) {
    *shift = {};
    const Datum* const datum = Datum::named(items.text("datum"));
    const QByteArray text = items.has("towgs84") ? items.text("towgs84") : QByteArray(datum ? datum->towgs84 : "");
    if (!items.has("towgs84") && (items.has("nadgrids") || !datum))
        return true;
    const QByteArrayList numbers = text.split(',');
    double* const values[] = {&shift->dx, &shift->dy, &shift->dz, &shift->rx, &shift->ry, &shift->rz, &shift->ppm};
    if (numbers.size() != 3 && numbers.size() != 7)
        return false;
    for (int i = 0; i < numbers.size(); ++i) {
        *values[i] = ProjItems::toNumber(numbers[i]);
        if (std::isnan(*values[i]))
            return false;
    }
    shift->ppm = withoutRoundingError(shift->ppm);
    return true;
}

#include "platform/projection/engine/DatumShift.h"

#include "platform/projection/engine/Datum.h"
#include "platform/projection/engine/ProjItems.h"

#include <QByteArrayList>

#include <cmath>

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
    return true;
}

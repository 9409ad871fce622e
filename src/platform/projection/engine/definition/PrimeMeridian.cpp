#include "platform/projection/engine/definition/PrimeMeridian.h"

#include "platform/projection/engine/definition/ProjItems.h"

#include <proj.h>

#include <cmath>
#include <limits>

double namedMeridian(const QByteArray& name) {
    for (const PJ_PRIME_MERIDIANS* named = proj_list_prime_meridians(); named->id; ++named) {
        if (name == named->id)
            return ProjItems::toAngle(named->defn);
    }
    return std::numeric_limits<double>::quiet_NaN();
}

double primeMeridianOf(const ProjItems& items) {
    const double named = namedMeridian(items.text("pm"));
    return std::isnan(named) ? items.angle("pm", 0) : named;
}

double fromGreenwich(double longitude, double primeMeridian) {
    const double sum = longitude + primeMeridian;
    if (std::abs(sum) <= 180)
        return sum;
    return std::abs(sum) <= 720 ? std::remainder(sum, 360) : std::numeric_limits<double>::quiet_NaN();
}

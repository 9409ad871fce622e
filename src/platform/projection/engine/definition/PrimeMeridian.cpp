#include "platform/projection/engine/definition/PrimeMeridian.h"

#include "platform/projection/engine/definition/ProjItems.h"

#include <proj.h>

#include <cmath>
#include <limits>

double primeMeridianOf(const ProjItems& items) {
    if (!items.has("pm"))
        return 0;
    const QByteArray name = items.text("pm");
    for (const PJ_PRIME_MERIDIANS* named = proj_list_prime_meridians(); named->id; ++named) {
        if (name == named->id)
            return ProjItems::toAngle(named->defn);
    }
    return items.angle("pm", 0);
}

double fromGreenwich(double longitude, double primeMeridian) {
    const double sum = longitude + primeMeridian;
    if (std::abs(sum) <= 180)
        return sum;
    return std::abs(sum) <= 720 ? std::remainder(sum, 360) : std::numeric_limits<double>::quiet_NaN();
}

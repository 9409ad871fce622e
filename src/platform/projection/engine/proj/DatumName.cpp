#include "platform/projection/engine/proj/DatumName.h"

#include "platform/projection/engine/proj/ProjObject.h"

namespace {

QByteArray withoutSuffix(QByteArray name, const QByteArray& suffix) {
    if (name.endsWith(suffix))
        name.chop(suffix.size());
    return name;
}

} // namespace

QByteArray DatumName::meridianSuffix(PJ_CONTEXT* context, const PJ* datum) {
    double longitude = 0.0;
    const ProjObject meridian(proj_get_prime_meridian(context, datum));
    const bool isElsewhere =
        meridian && proj_prime_meridian_get_parameters(context, meridian.get(), &longitude, nullptr, nullptr) != 0 &&
        longitude != 0.0;
    return isElsewhere ? QByteArray(" (") + proj_get_name(meridian.get()) + ')' : QByteArray();
}

QByteArray DatumName::of(PJ_CONTEXT* context, const PJ* datum) {
    const QByteArray name =
        withoutSuffix(withoutSuffix(proj_get_name(datum), " ensemble"), meridianSuffix(context, datum));
    return name.startsWith("Not specified") || name.toLower().startsWith("unknown") ? QByteArray() : name;
}

#include "platform/projection/engine/proj/BoundSystem.h"

#include <proj_experimental.h>

ProjObject boundToWgs84(PJ_CONTEXT* context, const ProjObject& crs, const QByteArray& towgs84) {
    // PROJ makes the transformation of any system that states the shift; ours then takes it over.
    const QByteArray donor = "+proj=longlat +ellps=GRS80 +towgs84=" + towgs84 + " +type=crs";
    const ProjObject bound(proj_create(context, donor.constData()));
    if (!bound || proj_get_type(bound.get()) != PJ_TYPE_BOUND_CRS)
        return nullptr;
    const ProjObject hub(proj_get_target_crs(context, bound.get()));
    const ProjObject shift(proj_crs_get_coordoperation(context, bound.get()));
    return ProjObject(hub && shift ? proj_crs_create_bound_crs(context, crs.get(), hub.get(), shift.get()) : nullptr);
}

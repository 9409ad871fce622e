#pragma once

#include "platform/projection/Withheld.h"

#include <QByteArray>

class ProjectedWkt;

/// The projection that a WKT text states, read parameter by parameter: each has a name that the dialects know, stands
/// once, in a unit of its kind, none that the method needs is missing, and none is left over.
struct StatedProjection {
    /// "+proj=tmerc +lat_0=0 ... +pm=0": degrees and metres, longitudes from the prime meridian. Empty where the text
    /// leaves a doubt or states no method of the parameter record.
    QByteArray definition;
    /// Readers get it wrong: see WktMethod, or they take a rounded factor of degrees or grads for another unit's, or a
    /// prime meridian in degrees for one in the unit of the angles.
    bool isOnlyOurs = false;
    Withheld withheld; ///< why there is no definition

    explicit StatedProjection(const ProjectedWkt& wkt);
};

#pragma once

#include "catalogue/CoordParamKey.h"
#include "platform/projection/IProjectedSystem.h"

/// The parameters of a system, as a record has them; degrees and metres.
struct Parameters {
    ProjectionMethod method;
    double a = 6378137.0;
    double inverseFlattening = 298.257222101; ///< 0 is a sphere
    double latitude = 0.0;                    ///< of the origin or the projection centre
    double longitude = 0.0;
    double scale = 1.0;
    double falseEasting = 600000.0;
    double falseNorthing = 200000.0;
    double parallel1 = 0.0; ///< the first, only or true-scale parallel
    double parallel2 = 0.0;
    double azimuth = 0.0;
    double lat1 = 0.0, lon1 = 0.0, lat2 = 0.0, lon2 = 0.0;
};

/// What the formulas that define a method give, apart from PROJ: the transverse Mercator by GeographicLib (Karney 2011,
/// exact to 9 nm), all others by the formulas of EPSG guidance note 7-2 as they stand there (the oblique stereographic
/// by Snyder 1987, equations 21-2 to 21-4 and 3-1, the oblique Mercator by two points by equations 9-19 to 9-24),
/// computed with 113 bits, so that what they lose at their limits does not show.
GridPoint reference(const Parameters& parameters, double latitude, double longitude);

#pragma once

#include "platform/projection/Withheld.h"

#include <QByteArray>

class ProjectedWkt;

struct FaithfulDefinition {
    QByteArray text;
    Withheld withheld; ///< why it has no projection
};

/// The definition of a WKT text's projected system, given the PROJ.4 definition that a reader of WKT exported from it
/// (or, where it could export none, its ellipsoid and shift). Readers drop what they don't know and fill in what is
/// missing: a standard parallel beside the latitude of origin, a misspelt parameter, an axis that points west. So the
/// exported definition counts only where it is what the text states, read on its own:
/// - the projection is, parameter by parameter (StatedProjection);
/// - the ellipsoid has the text's axes within 0.5 mm (PROJ's list rounds Namibia's by 0.3 mm), and they are an
///   ellipsoid's in metres;
/// - the grid's axes point east and north, or, around a pole, where those of PROJ's polar projections point.
/// Where the text says more than readers understand (WktMethod::isOnlyOurs), its own reading counts. What is left in
/// doubt comes back without its projection.
FaithfulDefinition faithfulDefinition(const QByteArray& exported, const ProjectedWkt& wkt);

/// The definition that such a text states by itself, without a reader's export of it beside it: "+proj=... +a=...
/// +rf=... +units=m +no_defs" with degrees from Greenwich and metres, and no shift. Empty where a doubt is left. For
/// texts that PROJ wrote from its registry, of which it is what faithfulDefinition() gives.
QByteArray statedDefinition(const ProjectedWkt& wkt);

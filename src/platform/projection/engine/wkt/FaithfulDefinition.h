#pragma once

class ProjectedWkt;
class ProjItems;

/// Whether a PROJ.4 definition that was exported from a WKT text says all that the text says about the projection.
/// Readers of WKT drop what they don't know: a scale factor on a Cassini-Soldner projection, a standard parallel beside
/// the latitude of origin, a misspelt parameter, axes that point west and south. The definition is faithful when
/// - every number of a parameter that is not neutral (0, or a scale of 1) is one of the definition's, in one of the
///   text's units;
/// - no unit is 0, which would make any number 0;
/// - the ellipsoid has the text's axes within 0.5 mm (PROJ's list rounds Namibia's by 0.3 mm);
/// - the prime meridian is the text's within 1e-8 degrees (the web's Mercator is exported without);
/// - the grid's axes point east and north, or, around a pole, where those of PROJ's polar projections point;
/// - PROJ's formula is the method's: EPSG method 9803 (Lambert conic conformal, Belgium) turns the grid by 29.2985
///   arc-seconds, which PROJ leaves out.
bool isFaithful(const ProjItems& definition, const ProjectedWkt& wkt);

#pragma once

#include "platform/projection/ProjectionLibrary.h"

class IDictionary;

/// Writes the ellipsoid, projection and datum-shift keys of a parameter record from a definition that the projection
/// library holds: 18 keys, or 25 with a datum shift; "name" is the caller's. Lengths in metres, angles and rotations in
/// decimal degrees. A sphere gets the inverse flattening 0, an ellipsoid that nothing names the name "unknown", and a
/// definition without a known projection the type 0 with the factor 0.
void projDefineToCoordParam(ProjHandle handle, IDictionary* record);

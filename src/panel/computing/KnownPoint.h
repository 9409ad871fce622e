#pragma once

#include "platform/projection/IProjectedSystem.h"

/// A point whose place is known on the ground and on the grid.
struct KnownPoint {
    GeographicPoint own; ///< on the system's own datum
    GridPoint grid;      ///< as given
};

#pragma once

#include "platform/projection/ProjectionLibrary.h"

class ProjItems;

/// Reads the shift to WGS 84 of a definition: three or seven numbers of +towgs84, else that of +datum. A shift by grids
/// (+nadgrids, and the datums for which PROJ has grids only) is none that seven parameters hold, and reads as zero; the
/// projection on the own datum stays exact. False when the item is neither three nor seven numbers.
bool readDatumShift(const ProjItems& items, ProjTowgs84* shift);

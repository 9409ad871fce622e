#pragma once

#include "platform/projection/WktSystem.h"

/// What a text states that somebody pasted. Texts are UTF-8.
struct ReadDefinition {
    WktSystem system;           ///< its name is empty where the text has none
    QByteArray identifier;      ///< "EPSG:25832" where the text is one
    QByteArray datum;           ///< as the EPSG registry names it; empty when unknown
    QByteArray unit;            ///< the grid's; empty for metres
    bool isWithdrawn = false;   ///< from the registry
    bool hasHeight = false;     ///< heights stand beside the grid, and are left out
    bool hasOtherShift = false; ///< the shift to WGS 84 is one that seven parameters don't hold, and is left out
    int position = -1;          ///< where in the text the reason lies that it is withheld, in bytes; -1 when unknown
};

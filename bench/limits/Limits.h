#pragma once

#include "Reference.h"

#include <QByteArray>

#include <vector>

/// One system at a limit, and where it is used.
struct Limit {
    QByteArray title;
    Parameters parameters;
    double latitude, longitude; ///< the middle of the area, up to 300 km away
};

std::vector<Limit> limits();

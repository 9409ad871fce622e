#pragma once

#include <QByteArray>

/// What a definition's WKT calls its parts, in UTF-8.
struct WktNames {
    QByteArray system;
    QByteArray ellipsoid;
    QByteArray datum; ///< as the EPSG registry names it, or any other name; empty when unknown
};

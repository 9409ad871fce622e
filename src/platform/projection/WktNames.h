#pragma once

#include <QByteArray>

/// What a definition's WKT calls its parts, in UTF-8.
struct WktNames {
    QByteArray system;
    QByteArray ellipsoid;
    QByteArray datum; ///< as the EPSG registry names it, or any other name; empty when unknown
    /// EPSG's code of the system that the definition is (Identification); empty for none. The WKT is then the
    /// registry's, with its identifiers, datum, axes and area of use, but for the system's name.
    QByteArray code = {};
};

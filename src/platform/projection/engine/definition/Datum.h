#pragma once

#include <QByteArray>

/// A datum that PROJ.4 definitions name with +datum.
struct Datum {
    const char* name;
    const char* ellipsoid; ///< PROJ's name of its ellipsoid
    const char* towgs84;   ///< its shift in the form of +towgs84; zero where PROJ has grids only

    /// Null for a name that PROJ does not know.
    static const Datum* named(const QByteArray& name);
};

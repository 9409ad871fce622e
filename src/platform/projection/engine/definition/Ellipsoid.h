#pragma once

#include <QByteArray>

class ProjItems;

/// The ellipsoid of a PROJ.4 definition; GRS 1980 when nothing is said.
struct Ellipsoid {
    QByteArray id = "GRS80"; ///< PROJ's name for it, or empty when the definition gives other axes than a named one has
    double a = 6378137.0;    ///< semi-major axis in metres
    double b = 6378137.0 - 6378137.0 / 298.257222101; ///< semi-minor axis in metres

    /// Axes by the rules of PROJ's manual ("Ellipsoids"): a radius wins over all, an axis or a shape over that of the
    /// named ellipsoid, and the named ellipsoid over that of the datum. False when PROJ would refuse what is said.
    bool read(const ProjItems& items);

    /// The square of the first eccentricity.
    double e2() const { return 1 - (b / a) * (b / a); }

    /// Its items in a definition.
    QByteArray definition() const;

private:
    bool readNamed(const QByteArray& name);
};

#pragma once

#include "platform/projection/Withheld.h"

#include <QByteArray>
#include <QMap>
#include <QVector>

#include <optional>

/// What a parameter says, whatever a dialect of WKT calls it.
enum class WktMeaning {
    LatitudeOfOrigin, ///< natural or false, or of the projection's centre
    LatitudeOfFalseOrigin,
    LongitudeOfOrigin,
    Scale,
    FalseEasting,
    FalseNorthing,
    FirstParallel,
    SecondParallel,
    PolarParallel,
    Azimuth,
    GridAngle, ///< from the rectified to the skew grid
    FirstLatitude,
    FirstLongitude,
    SecondLatitude,
    SecondLongitude,
    SemiMajorAxis, ///< these repeat the ellipsoid
    SemiMinorAxis,
    SphereType,
};

struct Ellipsoid;

/// The numbers of a definition's items: degrees, metres and factors.
using WktItems = QMap<QByteArray, double>;

/// A projection method that a parameter record holds, as one or more dialects of WKT state it.
struct WktMethod {
    enum class Presence {
        Required,
        May,     ///< left out by some who write the dialect (docs/file-formats.md), and then 1 for a scale
        Esri,    ///< left out in ESRI's dialect, which knows one choice only
        Neutral, ///< not the method's: written by some, and then 0, or 1 for a scale
    };

    struct Use {
        WktMeaning meaning;
        const char* item; ///< of the definition
        Presence presence;
    };

    QVector<QByteArray> names; ///< plain, see plainName()
    int code;                  ///< EPSG's, or 0
    QByteArray projection;     ///< PROJ's name, and items that go with it
    QVector<Use> uses;
    /// Puts in what follows from the others, if need be from the ellipsoid; says why when they go with another method.
    Withheld (*settle)(WktItems&, const Ellipsoid&);
    bool isOnlyOurs; ///< GDAL does not know the method under that name, or drops one of its parameters
};

namespace WktMethods {

/// The meaning of a parameter by its plain name and EPSG's code, of which one may be unknown; none where both are, or
/// where they contradict each other.
std::optional<WktMeaning> meaningOf(const QByteArray& name, int code);

/// What EPSG calls a parameter, or one of its names.
const char* nameOf(WktMeaning meaning);

/// The methods that bear a plain name, EPSG's code (0 for none) or both; none where they contradict each other.
QVector<const WktMethod*> find(const QByteArray& name, int code);

} // namespace WktMethods

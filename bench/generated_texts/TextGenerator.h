#pragma once

#include "Random.h"
#include "WktText.h"

#include <optional>

/// A text and what it says.
struct GeneratedText {
    QByteArray method; ///< and its dialect
    WktText text;
    Meaning meaning;
    double tolerance = 1e-6; ///< on the grid, in metres
};

namespace TextGenerator {

/// A unit as the dialects write it, what it measures in degrees or metres, and its factor rounded as old texts have it.
struct KnownUnit {
    const char* gdal; ///< and WKT 2
    const char* esri;
    const char* factor;
    double size;
    const char* rounded;
};

/// A meridian that the EPSG registry names.
struct KnownMeridian {
    const char* name;
    const char* degrees;
};

/// The first of each is the degree, the metre and Greenwich.
const QVector<KnownUnit>& angleUnits();
const QVector<KnownUnit>& lengthUnits();
const QVector<KnownMeridian>& meridians();

struct Spheroid {
    QByteArray name;
    QByteArray semiMajorAxis; ///< in metres
    QByteArray inverseFlattening;
};

/// How a text says something.
struct Layout {
    KnownUnit angle;
    KnownUnit length;
    KnownMeridian meridian;
    bool isMeridianInUnit; ///< of the text's angles; else in degrees
    bool hasCodes;         ///< EPSG's, in WKT 2
    bool hasAxes;          ///< in WKT 1; WKT 2 always has them
};

/// A sound text of a random method that a parameter record holds, in a random dialect that has the method. The numbers
/// come from pools so small that those of different parameters coincide.
GeneratedText generate(Random& random);

/// The definition's items by the codes of an EPSG method's parameters: 8801 is "lat_0". Empty for a method that no
/// record holds.
QMap<int, QByteArray> itemsOf(int methodCode);

/// A text of an EPSG method, from the values of those items in degrees from Greenwich and metres. None when the dialect
/// does not have the method.
std::optional<GeneratedText> write(int methodCode, Dialect dialect, const QMap<QByteArray, double>& values,
                                   const Spheroid& spheroid, const Layout& layout);

/// As a text holds it, with 15 digits.
QByteArray number(double value);

} // namespace TextGenerator

#pragma once

#include <QByteArray>

/// Texts of coordinate systems as other software writes them.
namespace SampleWkt {

/// A WKT 1 in ESRI's dialect with the false origin 500000, 1000.
QByteArray wkt(const char* method, const char* parameters, const char* behind = R"w(UNIT["Meter",1.0])w",
               const char* name = "X");

/// Parameters for it: central meridian 3, scale factor 0.9999, latitude of origin 46.5.
extern const char* const transverseMercator;

/// A WKT 2 of a polar stereographic system around the north pole, with the meridian -45 and the given axes.
QByteArray polarWkt(const char* axes);

/// A WKT 2 of the British grid, bound to WGS 84 by a transformation with rotations of the given sign.
QByteArray boundWkt(const char* method, int sign);

} // namespace SampleWkt

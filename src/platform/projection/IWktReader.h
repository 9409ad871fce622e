#pragma once

#include <QByteArray>

/// What a WKT text holds.
struct WktSystem {
    enum class Content { Unreadable, NotProjected, Projected };

    Content content = Content::Unreadable;
    QByteArray name; ///< of the projected system, in the encoding of the text that was read
    /// PROJ.4 definition of the projected system, for InitializeProj(). It has no "+proj" when PROJ.4 can't say what
    /// the WKT says; ellipsoid and datum shift are then still those of the WKT.
    QByteArray definition;
};

/// Reads coordinate systems in WKT 1 (GDAL's and ESRI's dialects) and WKT 2.
class IWktReader {
public:
    virtual ~IWktReader() = default;

    /// `wkt` is one system's text without a byte-order mark. Nothing is written to the terminal, whatever it holds.
    virtual WktSystem read(const QByteArray& wkt) = 0;
};

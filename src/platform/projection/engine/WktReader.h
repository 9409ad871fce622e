#pragma once

#include "platform/projection/IWktReader.h"

/// Reads WKT through GDAL.
class WktReader : public IWktReader {
public:
    WktSystem read(const QByteArray& wkt) override;
};

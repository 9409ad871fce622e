#pragma once

#include "platform/projection/IWktReader.h"

#include <QHash>
#include <QSet>

class ProjContext;

/// Reads WKT through GDAL.
class WktReader : public IWktReader {
public:
    explicit WktReader(const ProjContext& context) : context(context) {}

    WktSystem read(const QByteArray& wkt) override;

private:
    bool isGeocentric(const QByteArray& authority, const QByteArray& code);
    bool isTurnedCassini(const QByteArray& name) const;

    const ProjContext& context;
    QHash<QByteArray, QSet<QByteArray>> geocentricCodes; ///< by authority
};

#pragma once

#include "platform/projection/WktSystem.h"

#include <QHash>
#include <QSet>

class ProjContext;

/// Reads WKT through GDAL; see IProjectionModule::readWkt().
class WktReader {
public:
    explicit WktReader(const ProjContext& context) : context(context) {}

    WktSystem read(const QByteArray& wkt);

private:
    bool isGeocentric(const QByteArray& authority, const QByteArray& code);
    bool isTurnedCassini(const QByteArray& name) const;

    const ProjContext& context;
    QHash<QByteArray, QSet<QByteArray>> geocentricCodes; ///< by authority
};

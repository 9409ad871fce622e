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
    bool isTurnedCassini(const QByteArray& name);
    void readTurnedCassini();
    bool hasTurnedAxes(const char* code) const;

    const ProjContext& context;
    QHash<QByteArray, bool> geocentric; ///< answers by authority and code
    QSet<QByteArray> turnedCassini;     ///< letters of the registry's names
    bool turnedCassiniRead = false;
};

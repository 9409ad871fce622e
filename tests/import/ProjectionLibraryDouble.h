#pragma once

#include "platform/projection/IProjectionModule.h"
#include "platform/projection/IWktReader.h"
#include "platform/projection/ProjectionLibrary.h"

#include <QByteArrayList>

/// The projection library and its module in one: gives back what a test has set, and records every call in order.
class ProjectionLibraryDouble : public IProjectionModule, public IWktReader {
public:
    static ProjectionLibraryDouble& instance();

    /// Back to the answers of GRS 1980 without a shift.
    void reset();

    QByteArrayList calls;
    bool definitionIsNull = false;
    QByteArray definition;
    ProjEllipsoid ellipsoid{};
    ProjTowgs84 shift{};
    WktSystem system;
    bool moduleIsMissing = false;
    QByteArray readText; ///< what the reader was given last

    WktSystem read(const QByteArray& wkt) override;

    IProjectionLibrary& library() override;
    IWktReader& wktReader() override { return *this; }
    IGeodesy& geodesy() override;
    IEpsgRegistry& registry() override;
};

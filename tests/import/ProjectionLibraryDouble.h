#pragma once

#include "catalogue/DictionaryGuard.h"
#include "platform/projection/IProjectionModule.h"

#include <QByteArrayList>

/// The projection module: gives back what a test has set, and records every call in order.
class ProjectionLibraryDouble : public IProjectionModule {
public:
    static ProjectionLibraryDouble& instance();

    /// Back to the answers of GRS 1980 without a shift.
    void reset();

    /// The parameter record that the definition in `text` becomes, with the other answers as they are.
    DictionaryGuard converted(const QByteArray& text);

    QByteArrayList calls; ///< those of a handle that is not the double's end with "?"
    bool definitionIsNull = false;
    QByteArray definition;
    ProjEllipsoid projEllipsoid{};
    ProjTowgs84 shift{};
    double angleFactor = 1; ///< what Radian2Angle multiplies with
    WktSystem system;
    bool moduleIsMissing = false;
    QByteArray readText; ///< what the reader was given last

    ProjHandle initialize(const char* text) override;
    const char* define(ProjHandle handle) override;
    ProjEllipsoid ellipsoid(ProjHandle handle) override;
    ProjTowgs84 towgs84(ProjHandle handle) override;
    WktSystem readWkt(const QByteArray& wkt) override;
    ReadDefinition readDefinition(const QByteArray& text) override;

    QByteArray exportWkt(const QByteArray&, const WktNames&, WktDialect, bool) override;
    std::unique_ptr<IProjectedSystem> createSystem(const QByteArray&) override;
    IEpsgRegistry& registry() override;
    QByteArray version() override { return {}; }

private:
    void record(const char* call, ProjHandle handle);
};

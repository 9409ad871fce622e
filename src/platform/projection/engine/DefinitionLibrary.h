#pragma once

#include "platform/projection/IProjectionLibrary.h"
#include "platform/projection/engine/ProjContext.h"

#include <QByteArray>
#include <QSet>

/// The projection library over PROJ.4 definitions.
class DefinitionLibrary : public IProjectionLibrary {
public:
    explicit DefinitionLibrary(const ProjContext& context);

    ProjHandle initialize(const char* definition) override;
    const char* define(ProjHandle handle) const override;
    ProjEllipsoid ellipsoid(ProjHandle handle) const override;
    ProjTowgs84 towgs84(ProjHandle handle) const override;

private:
    const ProjContext& context;
    QSet<QByteArray> definitions;
};

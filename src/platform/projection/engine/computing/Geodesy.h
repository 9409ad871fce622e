#pragma once

#include "platform/projection/IProjectedSystem.h"
#include "platform/projection/WktDialect.h"
#include "platform/projection/WktNames.h"

#include <memory>

class ProjContext;

/// Projected systems and their WKT over PROJ; see IProjectionModule.h.
class Geodesy {
public:
    /// `context` outlives the object and the systems that it creates.
    explicit Geodesy(ProjContext& context) : context(context) {}

    std::unique_ptr<IProjectedSystem> createSystem(const QByteArray& definition);
    QByteArray exportWkt(const QByteArray& definition, const WktNames& names, WktDialect dialect, bool indented);

private:
    ProjContext& context;
};

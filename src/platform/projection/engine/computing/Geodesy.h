#pragma once

#include "platform/projection/IGeodesy.h"

class ProjContext;

/// IGeodesy over PROJ.
class Geodesy : public IGeodesy {
public:
    /// `context` outlives the object and the systems that it creates.
    explicit Geodesy(ProjContext& context) : context(context) {}

    std::unique_ptr<IProjectedSystem> createSystem(const QByteArray& definition) override;
    QByteArray exportWkt(const QByteArray& definition, const QByteArray& name, const QByteArray& ellipsoidName,
                         WktDialect dialect, bool indented) override;

private:
    ProjContext& context;
};

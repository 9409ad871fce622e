#pragma once

#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/engine/proj/ProjObject.h"

class ProjContext;

/// IEpsgRegistry over PROJ's database.
class EpsgRegistry : public IEpsgRegistry {
public:
    /// `context` outlives the object.
    explicit EpsgRegistry(ProjContext& context) : context(context) {}

    const std::vector<RegistrySystem>& projectedSystems() override;
    std::vector<RegistryShift> datumShifts(const QByteArray& code) override;
    QByteArray wkt(const QByteArray& code, const RegistryShift* shift) override;
    QByteArray unitName(const QByteArray& code) override;
    std::vector<RegistryEllipsoid> ellipsoids() override;

private:
    ProjObject system(const QByteArray& code) const;
    void readSystems();

    ProjContext& context;
    std::vector<RegistrySystem> systems;
};

#pragma once

#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/engine/proj/GeographicBox.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <QHash>

#include <map>

class ProjContext;

/// IEpsgRegistry over PROJ's database.
class EpsgRegistry : public IEpsgRegistry {
public:
    /// `context` outlives the object.
    explicit EpsgRegistry(ProjContext& context) : context(context) {}

    const std::vector<RegistrySystem>& projectedSystems() override;
    std::vector<RegistryShift> datumShifts(const QByteArray& code) override;
    std::vector<RegistryShift> datumShiftsAt(const QByteArray& datumName, double latitude, double longitude) override;
    const std::vector<QByteArray>& datumNames() override;
    QByteArray datumName(const QByteArray& code) override;
    QByteArray edition() override;
    QByteArray wkt(const QByteArray& code, const RegistryShift* shift) override;
    const RegistryDefinition& definition(const QByteArray& code) override;
    QByteArray withheldDefinition(const QByteArray& code) override;
    QByteArray unitName(const QByteArray& code) override;
    std::vector<RegistryEllipsoid> ellipsoids() override;

private:
    struct PlacedShift {
        GeographicBox area;
        RegistryShift shift;
    };

    ProjObject system(const QByteArray& code) const;
    void readSystems();
    RegistryDefinition readDefinition(const QByteArray& code) const;
    void readDatums();
    std::vector<PlacedShift> readShifts(const QByteArray& datumName);

    ProjContext& context;
    std::vector<RegistrySystem> systems;
    std::map<QByteArray, RegistryDefinition> definitions; ///< by code
    std::vector<QByteArray> datums;
    QHash<QByteArray, QByteArray> datumCodes; ///< by the name in `datums`
    QHash<QByteArray, std::vector<PlacedShift>> shiftsOfDatums;
};

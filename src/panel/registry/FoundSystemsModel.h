#pragma once

#include "panel/computing/SystemSearch.h"

#include <QAbstractTableModel>

class IEpsgRegistry;
class RegistryModel;

/// The systems that give known coordinates as a table, best first. One that comes out the same as the one above it says
/// so in place of the distance; one that no method of the record holds is grey, and says so in its tooltip.
class FoundSystemsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Distance, Spread, Code, Name, Condition, ColumnCount };

    /// `registry` and `reasons` outlive the model.
    FoundSystemsModel(IEpsgRegistry& registry, const RegistryModel& reasons, QObject* parent = nullptr)
        : QAbstractTableModel(parent), registry(registry), reasons(reasons) {}

    void setSystems(const QVector<FoundSystem>& found);

    const FoundSystem& system(int row) const { return systems[row]; }

    /// The row of the same system, or -1 when it is not listed.
    int rowOf(const FoundSystem& system) const;

    /// The registry's name, or name and group in the catalogue.
    static QString nameOf(const FoundSystem& system);

    /// Metres with as many digits as are of use: "0.03 m", "4.1 m", "1250 m".
    static QString metres(double distance);

    /// What must be so for the system to give the coordinates: "if northing comes first, in US survey feet"; empty
    /// where they are easting and northing in metres.
    QString condition(const FoundSystem& system) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const FoundSystem& system, int column) const;
    QString reason(const FoundSystem& system) const;

    IEpsgRegistry& registry;
    const RegistryModel& reasons;
    QVector<FoundSystem> systems;
};

#pragma once

#include "platform/projection/IEpsgRegistry.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <optional>

class QTimer;

/// The registry's projected systems as a table that a search narrows down: code, name, area. A system that no method of
/// the record holds is grey, and says so in its tooltip. A row turns grey once it has been shown: to find that out for
/// all rows on the screen would take longer than someone who types should wait.
class RegistryModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Code, Name, Area, ColumnCount };

    /// What a system must have to be listed.
    struct Search {
        QString text; ///< words that code, name and area together hold, whatever their case; empty for all systems
        std::optional<double> latitude; ///< degrees; with the longitude, a point that the area's bounding box covers
        std::optional<double> longitude;
        bool deprecatedToo = false;
    };

    /// `registry` outlives the model. Reads the whole list (0.1 s).
    explicit RegistryModel(IEpsgRegistry& registry, QObject* parent = nullptr);

    void setSearch(const Search& search);

    const RegistrySystem& system(int row) const;

    /// The row of the system `code`, or -1 when it is not listed.
    int rowOf(const QByteArray& code) const;

    /// Whether the record can hold the system. Each is tried, once, which takes a tenth of a millisecond: its method
    /// alone does not tell (the registry has six of the transverse Mercator with a scale in another unit, and two of
    /// Cassini's with axes to the south and west).
    bool isHeld(const RegistrySystem& system) const;

    /// Why it can't, translated, which takes some milliseconds; empty when it can.
    QString reason(const RegistrySystem& system) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private Q_SLOTS:
    /// Finds out of some of the rows that were shown whether they are grey.
    void _onIdle();

private:
    enum class Shade : char { Unknown, Asked, Plain, Grey };

    /// The colour of a listed system; asks for it where it is not known yet.
    QVariant foreground(int index) const;

    IEpsgRegistry& registry;
    QStringList searchTexts;                    ///< by index in the registry's list
    QVector<int> rows;                          ///< the listed systems, as indexes in the registry's list, ascending
    mutable QVector<Shade> shades;              ///< by index in the registry's list
    mutable QVector<int> asked;                 ///< the indexes whose shade is Asked
    QTimer* idle;                               ///< runs while there are any
    mutable QHash<QByteArray, QString> reasons; ///< by code, of those that are not held
};

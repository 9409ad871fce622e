#pragma once

#include "panel/computing/PointTable.h"

#include <QAbstractTableModel>

#include <optional>

/// The table of control points as it is shown and typed into, with an empty row at its end for the next point. What was
/// computed is slanted, what is off by more than the tolerance red, and a row without a point of use tinted.
class PointsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        Name,
        Latitude,
        Longitude,
        Height,
        Easting,
        Northing,
        DifferenceEast,
        DifferenceNorth,
        Distance,
        Remark,
        ColumnCount
    };

    explicit PointsModel(QObject* parent = nullptr);

    const PointTable& points() const { return table; }

    /// For computing only: rows, names and what was given stay. refresh() shows what came of it.
    PointTable& computed() { return table; }

    void replace(PointTable&& points);
    void remove(const std::vector<bool>& marked);
    void clear();

    /// Whether nothing can be typed for now.
    void setLocked(bool lock) { isLocked = lock; }

    /// Metres.
    void setTolerance(double metres);
    double tolerance() const { return toleranceMetres; }

    /// The first row behind `row` (-1 or more), and from the top again, that has a remark or, in use, is off by more
    /// than the tolerance; -1 where there is none.
    int nextMarked(int row) const;

    /// Shows all anew: computed figures, notation, unit.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user typed into this row.
    void edited(int row);

    /// The user marked or unmarked a row.
    void usedChanged();

    /// The user typed what is no such figure; why, translated.
    void refused(const QString& reason);

private:
    bool isComputed(std::size_t row, Column column) const;
    bool isBeyond(std::size_t row) const;
    QString text(std::size_t row, Column column) const;
    bool setText(std::size_t row, Column column, const QString& typed);
    std::size_t writableRow(int row);

    PointTable table;
    bool isLocked = false;
    double toleranceMetres = 0.05;
};

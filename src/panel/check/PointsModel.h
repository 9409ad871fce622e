#pragma once

#include "panel/computing/PointTable.h"

#include <QAbstractTableModel>

#include <deque>

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
        FittedEast, ///< what a fit leaves
        FittedNorth,
        Remark,
        ColumnCount
    };

    explicit PointsModel(QObject* parent = nullptr);

    const PointTable& points() const { return table; }

    /// For computing only: rows, names and what was given stay. refresh() shows what came of it.
    PointTable& computed() { return table; }

    void replace(PointTable&& points);

    /// Removes the rows that are marked; `marked` has one value for each row.
    void remove(const std::vector<bool>& marked);
    void clear();

    /// Puts a text into a cell as if typed, where it is one figure or name; false where it may be a line of points.
    bool pasteInto(const QModelIndex& cell, const QString& text);

    /// Brings back the rows that were removed last, or as they were before the last was typed into, and gives the first
    /// of them; -1 where there is nothing to undo.
    int undo();

    /// What a fit leaves at each row, in metres, NaN where it knows none; empty without a fit.
    void showFit(std::vector<GridPoint>&& residuals);

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
    /// How rows were.
    struct Step {
        PointTable rows;
        std::vector<bool> places; ///< of the rows in the table
        bool isTyped;             ///< rather than removed
    };

    void remember(Step&& step);
    bool isComputed(std::size_t row, Column column) const;
    bool isBeyond(std::size_t row) const;
    bool isOff(std::size_t row, Column column) const;
    QString text(std::size_t row, Column column) const;
    bool setText(std::size_t row, Column column, const QString& typed);
    std::size_t writableRow(int row);

    PointTable table;
    std::deque<Step> steps;
    std::vector<GridPoint> fitted;
    bool isLocked = false;
    double toleranceMetres = 0.05;
};

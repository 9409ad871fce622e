#pragma once

#include "panel/computing/ShiftFromPoints.h"

#include <QAbstractTableModel>

#include <array>
#include <memory>

class ShownSystem;

/// Points on the own datum and on WGS 84, as they are typed or pasted, and what a shift leaves at them. The last row is
/// empty: a point that is typed there is added. What can't be read stays as it is, with the reason.
class ShiftPointsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Own, Wgs84 = Own + 3, Before = Wgs84 + 3, East, North, Up, ColumnCount };
    enum class OwnForm { Geographic, Grid };
    enum class Wgs84Form { Geographic, Geocentric };

    explicit ShiftPointsModel(QObject* parent);

    /// What the own places are of.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown);

    /// What the three columns of each place are.
    void setForms(OwnForm own, Wgs84Form wgs84);
    OwnForm ownForm() const { return own; }
    Wgs84Form wgs84Form() const { return wgs84; }

    /// The points that are complete.
    QVector<ShiftFromPoints::Point> points() const;

    /// How many rows have a text that can't be read, or lack one.
    int unusableCount() const;

    /// The shifts whose residuals are shown, null for none, and which of points() are outliers after.
    void showResiduals(const ShiftFromPoints::Parameters* before, const ShiftFromPoints::Parameters* after,
                       const QVector<bool>& outliers);

    /// Puts lines of cells, parted as PointLayout sees it, from that cell on; rows are added as needed.
    void paste(const QString& text, int row, int column);
    void removeRowsOf(const QModelIndexList& indexes);
    void clear();

    /// Takes back the last change of the points; false where there is none.
    bool undo();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /// The points are others, or others are left out.
    void pointsChanged();

private:
    static constexpr int typedColumns = Before;

    struct Row {
        std::array<QString, typedColumns> texts;
        std::array<QString, typedColumns> reasons; ///< why a text is refused
        bool isUsed = true;
        bool isOutlier = false;
        std::optional<ShiftFromPoints::Point> point;

        bool isEmpty() const;
    };

    void read(Row& row) const;
    std::optional<std::array<double, 3>> readPlace(Row& row, int first, bool isGeographic) const;
    void changed();
    void remember();
    bool isOneFigure(const QString& text, int column) const;
    QString residualText(const ShiftFromPoints::Point& point, int column) const;

    QVector<Row> rows;
    QVector<QVector<Row>> steps; ///< the rows before each change
    OwnForm own = OwnForm::Geographic;
    Wgs84Form wgs84 = Wgs84Form::Geographic;
    std::shared_ptr<const ShownSystem> system;
    std::optional<ShiftFromPoints::Parameters> shiftBefore;
    std::optional<ShiftFromPoints::Parameters> shiftAfter;
};

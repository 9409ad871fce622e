#include "panel/check/PointsModel.h"

#include "panel/computing/PointLayout.h"
#include "panel/field/Colours.h"
#include "panel/record/AngleText.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// What can be undone: no more than a user remembers, and than memory bears with a million points.
constexpr std::size_t mostSteps = 50;
constexpr std::size_t mostBytes = 200000000;

/// The number that is shown in a column of the model.
std::optional<PointColumn> numberOf(PointsModel::Column column) {
    switch (column) {
    case PointsModel::Latitude:
        return PointColumn::Latitude;
    case PointsModel::Longitude:
        return PointColumn::Longitude;
    case PointsModel::Height:
        return PointColumn::Height;
    case PointsModel::Easting:
        return PointColumn::Easting;
    case PointsModel::Northing:
        return PointColumn::Northing;
    default:
        return std::nullopt;
    }
}

QString angleText(double degrees) {
    return std::isnan(degrees) ? QString() : AngleText::rounded(degrees);
}

/// The number of a typed text, in degrees or metres; else why it is none.
std::optional<double> typedNumber(const QString& text, PointColumn column, QString* reason) {
    double value = 0.0;
    if (column == PointColumn::Latitude || column == PointColumn::Longitude) {
        const AngleInput input =
            AngleText::parseTyped(text, column == PointColumn::Latitude ? AngleRole::Latitude : AngleRole::Longitude);
        *reason = input.reason;
        value = input.degrees;
    } else if (!LengthUnit::parse(text, &value)) {
        *reason = LengthUnit::refusal();
    }
    if (reason->isEmpty() && !PointTable::accepts(column, value))
        *reason = PanelText::tr("Out of range.");
    return reason->isEmpty() ? std::optional<double>(value) : std::nullopt;
}

} // namespace

PointsModel::PointsModel(QObject* parent) : QAbstractTableModel(parent) {
}

void PointsModel::replace(PointTable&& points) {
    beginResetModel();
    fitted.clear();
    table = std::move(points);
    endResetModel();
}

void PointsModel::remove(const std::vector<bool>& marked) {
    beginResetModel();
    fitted.clear();
    remember({table.take(marked), marked, false});
    endResetModel();
}

void PointsModel::clear() {
    beginResetModel();
    fitted.clear();
    std::vector<bool> all(table.size(), true);
    remember({std::exchange(table, PointTable()), std::move(all), false});
    endResetModel();
}

void PointsModel::remember(Step&& step) {
    steps.push_back(std::move(step));
    std::size_t bytes = 0;
    for (const Step& kept : steps)
        bytes += kept.rows.bytes();
    for (; steps.size() > mostSteps || (bytes > mostBytes && steps.size() > 1); steps.pop_front())
        bytes -= steps.front().rows.bytes();
}

int PointsModel::undo() {
    if (steps.empty())
        return -1;
    beginResetModel();
    fitted.clear();
    // Rows have only been added at the end since: the places are still the same.
    Step& step = steps.back();
    if (step.isTyped)
        table = table.picked(step.places, false);
    table.putBack(step.rows, step.places);
    const auto first = std::find(step.places.begin(), step.places.end(), true) - step.places.begin();
    steps.pop_back();
    endResetModel();
    return int(first);
}

bool PointsModel::pasteInto(const QModelIndex& cell, const QString& text) {
    static const QRegularExpression separators("[\t\r\n;]");
    const QString value = text.trimmed();
    if (value.isEmpty() || value.contains(separators) || !(flags(cell) & Qt::ItemIsEditable))
        return false;
    QString reason;
    const auto number = numberOf(Column(cell.column()));
    // Blanks and commas part columns, and stand within angles, names and the numbers of others.
    static const QRegularExpression decimalComma("^[-+]?\\d*,\\d+$");
    const bool isNumber = number && (typedNumber(value, *number, &reason) || value.contains(decimalComma));
    if (!isNumber && PointLayout::guess(value.toUtf8()).isComplete())
        return false;
    setData(cell, value, Qt::EditRole);
    return true;
}

void PointsModel::showFit(std::vector<GridPoint>&& residuals) {
    fitted = std::move(residuals);
    Q_EMIT dataChanged(index(0, FittedEast), index(rowCount() - 1, FittedNorth));
}

void PointsModel::setTolerance(double metres) {
    toleranceMetres = metres;
    refresh();
}

int PointsModel::nextMarked(int row) const {
    const std::size_t count = table.size();
    for (std::size_t i = 1; i <= count; ++i) {
        const std::size_t next = (std::size_t(row) + i) % count;
        if (table.hasProblem(next) || table.isDuplicate(next) || (table.isUsed(next) && isBeyond(next)))
            return int(next);
    }
    return -1;
}

void PointsModel::refresh() {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int PointsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(table.size()) + 1;
}

int PointsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

bool PointsModel::isComputed(std::size_t row, Column column) const {
    const auto number = numberOf(column);
    return number && std::isnan(table.given(row, *number));
}

bool PointsModel::isBeyond(std::size_t row) const {
    const GridPoint difference = table.difference(row);
    return std::hypot(difference.easting, difference.northing) > toleranceMetres;
}

/// Whether it is a figure that is beyond the tolerance.
bool PointsModel::isOff(std::size_t row, Column column) const {
    return column >= DifferenceEast && column <= Distance && table.isUsed(row) && isBeyond(row);
}

QString PointsModel::text(std::size_t row, Column column) const {
    const GridPoint difference = table.difference(row);
    switch (column) {
    case Name: {
        const std::string_view name = table.name(row);
        return QString::fromUtf8(name.data(), int(name.size()));
    }
    case Latitude:
    case Longitude:
        return angleText(table.shown(row, *numberOf(column)));
    case Height:
    case Easting:
    case Northing:
        return LengthUnit::text(table.shown(row, *numberOf(column)));
    case DifferenceEast:
        return LengthUnit::text(difference.easting);
    case DifferenceNorth:
        return LengthUnit::text(difference.northing);
    case Distance:
        return LengthUnit::text(std::hypot(difference.easting, difference.northing));
    case FittedEast:
        return row < fitted.size() ? LengthUnit::text(fitted[row].easting) : QString();
    case FittedNorth:
        return row < fitted.size() ? LengthUnit::text(fitted[row].northing) : QString();
    case Remark:
        return table.remark(row);
    default:
        return {};
    }
}

QVariant PointsModel::data(const QModelIndex& index, int role) const {
    const auto row = std::size_t(index.row());
    const auto column = Column(index.column());
    if (role == Qt::TextAlignmentRole)
        return int(column == Name || column == Remark ? Qt::AlignLeft | Qt::AlignVCenter
                                                      : Qt::AlignRight | Qt::AlignVCenter);
    if (!index.isValid() || row >= table.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(row, column);
    case Qt::ToolTipRole: {
        const QString remark = table.remark(row);
        return remark.isEmpty() ? QVariant() : remark;
    }
    case Qt::CheckStateRole:
        return column == Name ? QVariant(table.isUsed(row) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::FontRole:
        if (isComputed(row, column) || isOff(row, column)) {
            QFont font = QApplication::font();
            font.setItalic(isComputed(row, column));
            font.setBold(isOff(row, column));
            return font;
        }
        return {};
    case Qt::BackgroundRole:
        return table.hasProblem(row) ? QVariant(Colours::refused(QApplication::palette())) : QVariant();
    case Qt::ForegroundRole:
        if (column == Remark && table.hasProblem(row))
            return Colours::error(QApplication::palette());
        if (!table.isUsed(row))
            return Colours::hint(QApplication::palette());
        return isOff(row, column) ? QVariant(Colours::error(QApplication::palette())) : QVariant();
    default:
        return {};
    }
}

QVariant PointsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? (section == int(table.size()) ? QVariant("*") : QVariant(section + 1))
                                       : QVariant();
    const QString unit = '\n' + LengthUnit::symbol();
    if (role == Qt::DisplayRole) {
        const QString names[ColumnCount] = {PanelText::tr("Name"),
                                            PanelText::tr("Latitude"),
                                            PanelText::tr("Longitude"),
                                            PanelText::tr("Height") + unit,
                                            PanelText::tr("Easting") + unit,
                                            PanelText::tr("Northing") + unit,
                                            "ΔE" + unit,
                                            "ΔN" + unit,
                                            PanelText::tr("Distance") + unit,
                                            PanelText::tr("Fitted ΔE") + unit,
                                            PanelText::tr("Fitted ΔN") + unit,
                                            PanelText::tr("Remark")};
        return names[section];
    }
    if (role != Qt::ToolTipRole)
        return {};
    if (section == Name)
        return PanelText::tr("A point without a check mark is left out of the statistics.");
    if (section == Height)
        return PanelText::tr("Ellipsoidal height; 0 where there is none.");
    if (section >= Latitude && section <= Northing)
        return PanelText::tr("Slanted: computed from the other pair.");
    if (section == FittedEast || section == FittedNorth)
        return PanelText::tr("What the fit would leave.");
    return section == Remark ? QVariant() : PanelText::tr("Computed from latitude and longitude, minus given.");
}

Qt::ItemFlags PointsModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (isLocked)
        return flags;
    if (index.column() <= Northing)
        flags |= Qt::ItemIsEditable;
    if (index.column() == Name && index.row() < int(table.size()))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool PointsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role == Qt::CheckStateRole && std::size_t(index.row()) < table.size()) {
        table.setUsed(std::size_t(index.row()), value.toInt() == Qt::Checked);
        Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
        Q_EMIT usedChanged();
        return true;
    }
    const QString typed = value.toString().trimmed();
    // An editor that is left as it was opened has changed nothing, though it shows fewer digits than there are.
    if (role != Qt::EditRole || typed == data(index, Qt::EditRole).toString())
        return false;
    return setText(std::size_t(index.row()), Column(index.column()), typed);
}

bool PointsModel::setText(std::size_t row, Column column, const QString& typed) {
    const auto number = numberOf(column);
    std::optional<double> value = std::nan("");
    if (number && !typed.isEmpty()) {
        QString reason;
        value = typedNumber(typed, *number, &reason);
        if (!value) {
            Q_EMIT refused(reason);
            return false;
        }
    }
    if (row < table.size()) {
        std::vector<bool> places(row + 1, false);
        places[row] = true;
        PointTable before = table.picked(places, true);
        remember({std::move(before), std::move(places), true});
    }
    row = writableRow(int(row));
    if (number)
        table.setGiven(row, *number, *value);
    else
        table.setName(row, typed.toStdString());
    Q_EMIT edited(int(row));
    Q_EMIT dataChanged(index(int(row), 0), index(int(row), ColumnCount - 1));
    return true;
}

/// The row, which is added when it is the empty one at the end.
std::size_t PointsModel::writableRow(int row) {
    if (std::size_t(row) == table.size()) {
        beginInsertRows({}, row + 1, row + 1);
        table.append();
        endInsertRows();
    }
    return std::size_t(row);
}

#include "panel/shift/ShiftPointsModel.h"

#include "panel/computing/PointLayout.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/Colours.h"
#include "panel/record/AngleText.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

/// The cells of one line, with decimal points.
QStringList cells(const QString& line, const PointLayout& layout) {
    const QByteArray utf8 = line.toUtf8();
    std::vector<std::string_view> fields;
    std::string unquoted;
    layout.split({utf8.constData(), std::size_t(utf8.size())}, fields, unquoted);
    QStringList parts;
    for (const std::string_view field : fields) {
        const QString part = QString::fromUtf8(field.data(), int(field.size()));
        parts << (layout.decimalComma && parts.size() >= ShiftPointsModel::Own ? QString(part).replace(',', '.')
                                                                               : part);
    }
    return parts;
}

/// The ellipsoid of a record, or nothing where it has none that computes.
std::optional<EllipsoidAxes> ellipsoid(const IDictionary& record) {
    EllipsoidAxes axes;
    const ParamField &a = DatumFields::semiMajorAxis(), &f = DatumFields::inverseFlattening();
    const bool isSound = a.read(record, &axes.a) && a.accepts(axes.a) && f.read(record, &axes.inverseFlattening) &&
                         f.accepts(axes.inverseFlattening);
    return isSound ? std::optional<EllipsoidAxes>(axes) : std::nullopt;
}

/// The number of a cell, or nothing and why.
std::optional<double> number(const QString& text, QString* reason) {
    double value;
    QString plain;
    if (NumberText::parseTyped(text, &value, &plain))
        return value;
    *reason = NumberText::refusal(text);
    return std::nullopt;
}

std::optional<double> angle(const QString& text, AngleRole role, QString* reason) {
    const AngleInput input = AngleText::parseTyped(text, role);
    const double limit = role == AngleRole::Latitude ? 90.0 : 360.0;
    if (input.valid && std::abs(input.degrees) <= limit)
        return input.degrees;
    *reason = input.valid ? PanelText::tr("Allowed: %1 to %2.").arg(-limit).arg(limit) : input.reason;
    return std::nullopt;
}

} // namespace

bool ShiftPointsModel::Row::isEmpty() const {
    return std::all_of(texts.begin(), texts.end(), [](const QString& text) { return text.isEmpty(); });
}

ShiftPointsModel::ShiftPointsModel(QObject* parent) : QAbstractTableModel(parent), rows(1) {
}

void ShiftPointsModel::setSystem(const std::shared_ptr<const ShownSystem>& shown) {
    system = shown;
    changed();
}

void ShiftPointsModel::setForms(OwnForm ownForm, Wgs84Form wgs84Form) {
    own = ownForm;
    wgs84 = wgs84Form;
    Q_EMIT headerDataChanged(Qt::Horizontal, Own, Before - 1);
    changed();
}

QVector<ShiftFromPoints::Point> ShiftPointsModel::points() const {
    QVector<ShiftFromPoints::Point> complete;
    for (const Row& row : rows) {
        if (row.point)
            complete.append(*row.point);
    }
    return complete;
}

int ShiftPointsModel::unusableCount() const {
    return int(std::count_if(rows.begin(), rows.end(), [](const Row& row) { return !row.point && !row.isEmpty(); }));
}

void ShiftPointsModel::showResiduals(const ShiftFromPoints::Parameters* before,
                                     const ShiftFromPoints::Parameters* after, const QVector<bool>& outliers) {
    shiftBefore = before ? std::optional<ShiftFromPoints::Parameters>(*before) : std::nullopt;
    shiftAfter = after ? std::optional<ShiftFromPoints::Parameters>(*after) : std::nullopt;
    int next = 0;
    for (Row& row : rows)
        row.isOutlier = row.point && outliers.value(next++);
    Q_EMIT dataChanged(index(0, Before), index(rows.size() - 1, Up));
}

void ShiftPointsModel::remember() {
    constexpr int mostSteps = 50;
    steps.append(rows);
    if (steps.size() > mostSteps)
        steps.removeFirst();
}

bool ShiftPointsModel::undo() {
    if (steps.isEmpty())
        return false;
    beginResetModel();
    rows = steps.takeLast();
    endResetModel();
    changed();
    return true;
}

/// Whether a text without tabs and line ends is one cell's, though blanks or commas are in it.
bool ShiftPointsModel::isOneFigure(const QString& text, int column) const {
    static const QRegularExpression separators("[\t\r\n;]");
    if (text.contains(separators))
        return false;
    if (column == Name)
        return !PointLayout::guess(text.toUtf8()).isComplete();
    const bool isOwn = column < Wgs84;
    const int coordinate = column - (isOwn ? Own : Wgs84);
    QString reason;
    if (coordinate < 2 && (isOwn ? own == OwnForm::Geographic : wgs84 == Wgs84Form::Geographic))
        return angle(text, coordinate == 0 ? AngleRole::Latitude : AngleRole::Longitude, &reason).has_value();
    return number(text, &reason).has_value();
}

void ShiftPointsModel::paste(const QString& text, int row, int column) {
    static const QRegularExpression lineEnds("\r\n|\r|\n");
    if (isOneFigure(text.trimmed(), column)) {
        setData(index(row, column), text);
        return;
    }
    const PointLayout layout = PointLayout::guess(text.toUtf8());
    remember();
    beginResetModel();
    for (const QString& line : text.split(lineEnds)) {
        if (line.trimmed().isEmpty())
            continue;
        if (row >= rows.size())
            rows.resize(row + 1);
        const QStringList parts = cells(line, layout);
        for (int i = 0; i < parts.size() && column + i < typedColumns; ++i)
            rows[row].texts[std::size_t(column) + std::size_t(i)] = parts[i];
        ++row;
    }
    endResetModel();
    changed();
}

void ShiftPointsModel::removeRowsOf(const QModelIndexList& indexes) {
    QVector<bool> isRemoved(rows.size(), false);
    for (const QModelIndex& index : indexes)
        isRemoved[index.row()] = true;
    remember();
    beginResetModel();
    QVector<Row> left;
    for (int i = 0; i < rows.size(); ++i) {
        if (!isRemoved[i])
            left.append(rows[i]);
    }
    rows = left;
    endResetModel();
    changed();
}

void ShiftPointsModel::clear() {
    remember();
    beginResetModel();
    rows.clear();
    endResetModel();
    changed();
}

/// The three numbers of a place, or nothing; the row notes why.
std::optional<std::array<double, 3>> ShiftPointsModel::readPlace(Row& row, int first, bool isGeographic) const {
    std::array<double, 3> values{};
    bool isComplete = true;
    for (int i = 0; i < 3; ++i) {
        const auto at = std::size_t(first) + std::size_t(i);
        const QString& text = row.texts[at];
        if (text.isEmpty()) {
            isComplete = false;
            if (!row.isEmpty())
                row.reasons[at] = PanelText::tr("A value is needed.");
            continue;
        }
        const auto value = isGeographic && i < 2
                               ? angle(text, i == 0 ? AngleRole::Latitude : AngleRole::Longitude, &row.reasons[at])
                               : number(text, &row.reasons[at]);
        isComplete = isComplete && value;
        values[std::size_t(i)] = value.value_or(0.0);
    }
    return isComplete ? std::optional<std::array<double, 3>>(values) : std::nullopt;
}

/// Reads the row's texts anew.
void ShiftPointsModel::read(Row& row) const {
    row.reasons.fill(QString());
    row.point.reset();
    const auto ownPlace = readPlace(row, Own, own == OwnForm::Geographic);
    const auto wgs84Place = readPlace(row, Wgs84, wgs84 == Wgs84Form::Geographic);
    const auto axes = system ? ellipsoid(system->record()) : std::nullopt;
    ShiftFromPoints::Point point;
    if (ownPlace) {
        const auto [first, second, third] = *ownPlace;
        point.place = {first, second, third};
        const bool isOnGrid = own == OwnForm::Grid;
        const auto onGround = isOnGrid && system && system->projection()
                                  ? system->projection()->toGeographic({first, second}, third)
                                  : std::nullopt;
        if (isOnGrid && !onGround)
            row.reasons[Own] = row.reasons[Own + 1] = PanelText::tr("The projection gives no result here.");
        else if (isOnGrid)
            point.place = *onGround;
    }
    if (wgs84Place) {
        const auto [x, y, z] = *wgs84Place;
        point.wgs84 =
            wgs84 == Wgs84Form::Geocentric ? GeocentricPoint{x, y, z} : EllipsoidAxes::wgs84().toGeocentric({x, y, z});
        const double radius =
            std::sqrt(std::pow(point.wgs84.x, 2) + std::pow(point.wgs84.y, 2) + std::pow(point.wgs84.z, 2));
        constexpr double least = 6.3e6, greatest = 6.5e6;
        if (!(radius > least && radius < greatest)) {
            for (std::size_t i = Wgs84; i < Wgs84 + 3; ++i)
                row.reasons[i] = PanelText::tr("This place is not on the Earth.");
        }
    }
    const bool isRefused =
        std::any_of(row.reasons.begin(), row.reasons.end(), [](const QString& reason) { return !reason.isEmpty(); });
    if (!ownPlace || !wgs84Place || !axes || isRefused)
        return;
    point.name = row.texts[Name];
    point.own = axes->toGeocentric(point.place);
    point.isUsed = row.isUsed;
    row.point = point;
}

/// Reads everything anew, with an empty row at the end.
void ShiftPointsModel::changed() {
    if (rows.isEmpty() || !rows.last().isEmpty()) {
        beginInsertRows(QModelIndex(), rows.size(), rows.size());
        rows.resize(rows.size() + 1);
        endInsertRows();
    }
    for (Row& row : rows)
        read(row);
    Q_EMIT dataChanged(index(0, 0), index(rows.size() - 1, ColumnCount - 1));
    Q_EMIT pointsChanged();
}

int ShiftPointsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows.size();
}

int ShiftPointsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString ShiftPointsModel::residualText(const ShiftFromPoints::Point& point, int column) const {
    const auto& shift = column == Before ? shiftBefore : shiftAfter;
    if (!shift)
        return QString();
    const ShiftFromPoints::Residual left = ShiftFromPoints::residual(*shift, point);
    const auto millimetres = [](double metres) {
        return QString::number(std::round(metres * 1e4) / 10.0 + 0.0, 'f', 1);
    };
    switch (column) {
    case Before:
        return QString::number(std::hypot(left.east, left.north, left.up), 'f', 3);
    case East:
        return millimetres(left.east);
    case North:
        return millimetres(left.north);
    default:
        return millimetres(left.up);
    }
}

QVariant ShiftPointsModel::data(const QModelIndex& index, int role) const {
    const Row& row = rows[index.row()];
    const int column = index.column();
    const bool isTyped = column < typedColumns;
    const bool isWrong = isTyped ? !row.reasons[std::size_t(column)].isEmpty() : row.isOutlier && column > Before;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (isTyped)
            return row.texts[std::size_t(column)];
        return row.point ? residualText(*row.point, column) : QString();
    case Qt::CheckStateRole:
        if (column == Name && !row.isEmpty())
            return row.isUsed ? Qt::Checked : Qt::Unchecked;
        return QVariant();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (column == Name ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::ForegroundRole:
        if (isWrong)
            return Colours::error(QApplication::palette());
        return row.isUsed ? QVariant() : Colours::hint(QApplication::palette());
    case Qt::FontRole:
        if (isWrong) {
            QFont bold = QApplication::font();
            bold.setBold(true);
            return bold;
        }
        return QVariant();
    case Qt::ToolTipRole:
        return isTyped         ? row.reasons[std::size_t(column)]
               : row.isOutlier ? PanelText::tr("The other points speak against this one: check it, or leave it out.")
                               : QString();
    default:
        return QVariant();
    }
}

QVariant ShiftPointsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const bool isGrid = own == OwnForm::Grid, isGeocentric = wgs84 == Wgs84Form::Geocentric;
    const QString titles[ColumnCount] = {
        PanelText::tr("Point"),
        isGrid ? PanelText::tr("Easting, m") : PanelText::tr("Latitude"),
        isGrid ? PanelText::tr("Northing, m") : PanelText::tr("Longitude"),
        PanelText::tr("Height, m"),
        isGeocentric ? PanelText::tr("WGS 84 X, m") : PanelText::tr("WGS 84 latitude"),
        isGeocentric ? PanelText::tr("WGS 84 Y, m") : PanelText::tr("WGS 84 longitude"),
        isGeocentric ? PanelText::tr("WGS 84 Z, m") : PanelText::tr("WGS 84 height, m"),
        PanelText::tr("Before, m"),
        PanelText::tr("East, mm"),
        PanelText::tr("North, mm"),
        PanelText::tr("Up, mm"),
    };
    return titles[section];
}

Qt::ItemFlags ShiftPointsModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() < typedColumns)
        flags |= Qt::ItemIsEditable;
    if (index.column() == Name)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool ShiftPointsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole && (role != Qt::EditRole || index.column() >= typedColumns))
        return false;
    remember();
    Row& row = rows[index.row()];
    if (role == Qt::CheckStateRole)
        row.isUsed = value.toInt() == Qt::Checked;
    else
        row.texts[std::size_t(index.column())] = value.toString().trimmed();
    changed();
    return true;
}

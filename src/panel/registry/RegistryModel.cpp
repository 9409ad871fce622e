#include "panel/registry/RegistryModel.h"

#include "import/WktToCoordParam.h"
#include "panel/field/Colours.h"
#include "panel/record/PanelText.h"
#include "panel/record/WithheldText.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPalette>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 patience = 2; // milliseconds that the window does nothing else

bool covers(const RegistrySystem& system, double latitude, double longitude) {
    if (!system.hasExtent || latitude < system.south || latitude > system.north)
        return false;
    const double east = std::remainder(longitude, 360.0);
    return system.west <= system.east ? east >= system.west && east <= system.east
                                      : east >= system.west || east <= system.east;
}

} // namespace

RegistryModel::RegistryModel(IEpsgRegistry& registry, QObject* parent)
    : QAbstractTableModel(parent), registry(registry), idle(new QTimer(this)) {
    connect(idle, SIGNAL(timeout()), this, SLOT(_onIdle()));
    for (const RegistrySystem& system : registry.projectedSystems())
        searchTexts.append(QString::fromUtf8(system.code + '\n' + system.name + '\n' + system.area).toCaseFolded());
    shades.fill(Shade::Unknown, searchTexts.size());
    setSearch({});
}

void RegistryModel::setSearch(const Search& search) {
    const auto& systems = registry.projectedSystems();
    const QStringList words = search.text.toCaseFolded().split(' ', Qt::SkipEmptyParts);
    const auto isWanted = [&](int index) {
        const RegistrySystem& system = systems[std::size_t(index)];
        const QString& text = searchTexts[index];
        return (search.deprecatedToo || !system.deprecated) &&
               std::all_of(words.begin(), words.end(), [&](const QString& word) { return text.contains(word); }) &&
               (!search.latitude || !search.longitude || covers(system, *search.latitude, *search.longitude));
    };
    beginResetModel();
    rows.clear();
    for (int index = 0; index < searchTexts.size(); ++index) {
        if (isWanted(index))
            rows.append(index);
    }
    endResetModel();
    // Those that were asked for are out of sight.
    for (const int index : asked)
        shades[index] = Shade::Unknown;
    asked.clear();
}

const RegistrySystem& RegistryModel::system(int row) const {
    return registry.projectedSystems()[std::size_t(rows[row])];
}

int RegistryModel::rowOf(const QByteArray& code) const {
    for (int row = 0; row < rows.size(); ++row) {
        if (system(row).code == code)
            return row;
    }
    return -1;
}

bool RegistryModel::isHeld(const RegistrySystem& system) const {
    return !registry.definition(system.code).definition.isEmpty();
}

QString RegistryModel::reason(const RegistrySystem& system) const {
    if (isHeld(system))
        return {};
    auto known = reasons.constFind(system.code);
    if (known == reasons.constEnd())
        known =
            reasons.insert(system.code, WithheldText::of(WktToCoordParam::read(registry.wkt(system.code, nullptr))));
    return *known;
}

int RegistryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows.size();
}

int RegistryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RegistryModel::data(const QModelIndex& index, int role) const {
    const RegistrySystem& shown = system(index.row());
    switch (role) {
    case Qt::DisplayRole: {
        const QByteArray texts[ColumnCount] = {shown.code, shown.name, shown.area};
        const QString text = QString::fromUtf8(texts[index.column()]);
        return index.column() == Name && shown.deprecated ? PanelText::tr("%1 (deprecated)").arg(text) : text;
    }
    case Qt::ToolTipRole: {
        const QString why = reason(shown);
        return why.isEmpty() ? data(index, Qt::DisplayRole) : why;
    }
    case Qt::ForegroundRole:
        return foreground(rows[index.row()]);
    default:
        return {};
    }
}

QVariant RegistryModel::foreground(int index) const {
    if (shades[index] == Shade::Grey)
        return Colours::hint(QGuiApplication::palette());
    if (shades[index] == Shade::Unknown) {
        shades[index] = Shade::Asked;
        asked.append(index);
        idle->start();
    }
    return {};
}

void RegistryModel::_onIdle() {
    QElapsedTimer sinceStart;
    for (sinceStart.start(); !asked.isEmpty() && sinceStart.elapsed() < patience;) {
        const int found = asked.takeFirst();
        const bool isPlain = isHeld(registry.projectedSystems()[std::size_t(found)]);
        shades[found] = isPlain ? Shade::Plain : Shade::Grey;
        const int row = int(std::lower_bound(rows.cbegin(), rows.cend(), found) - rows.cbegin());
        if (!isPlain)
            Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1), {Qt::ForegroundRole});
    }
    if (asked.isEmpty())
        idle->stop();
}

QVariant RegistryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QString texts[ColumnCount] = {PanelText::tr("EPSG"), PanelText::tr("Name"), PanelText::tr("Area")};
    return texts[section];
}

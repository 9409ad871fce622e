#include "panel/registry/FoundSystemsModel.h"

#include "panel/field/Colours.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"
#include "panel/registry/RegistryModel.h"
#include "platform/projection/IEpsgRegistry.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>

void FoundSystemsModel::setSystems(const QVector<FoundSystem>& found) {
    beginResetModel();
    systems = found;
    endResetModel();
}

int FoundSystemsModel::rowOf(const FoundSystem& system) const {
    const auto same = std::find_if(systems.begin(), systems.end(), [&system](const FoundSystem& each) {
        return each.registered == system.registered && each.group == system.group && each.name == system.name;
    });
    return same == systems.end() ? -1 : int(same - systems.begin());
}

QString FoundSystemsModel::nameOf(const FoundSystem& system) {
    if (!system.registered)
        return PanelText::tr("%1, in %2")
            .arg(QString::fromLocal8Bit(system.name), QString::fromLocal8Bit(system.group));
    const QString name = QString::fromUtf8(system.registered->name);
    return system.registered->deprecated ? PanelText::tr("%1 (deprecated)").arg(name) : name;
}

QString FoundSystemsModel::metres(double distance) {
    const int decimals = distance < 1.0 ? 2 : distance < 10.0 ? 1 : 0;
    return PanelText::tr("%1 m").arg(distance, 0, 'f', decimals);
}

QString FoundSystemsModel::condition(const FoundSystem& system) const {
    const CoordinateReading& reading = system.fit.reading;
    const auto isUnit = [&reading](double metres) { return std::abs(reading.unit / metres - 1.0) < 1e-9; };
    QStringList parts;
    if (reading.northingFirst)
        parts.append(PanelText::tr("northing comes first"));
    if (isUnit(LengthUnit::metres(LengthUnit::UsSurveyFoot)))
        parts.append(PanelText::tr("in US survey feet"));
    else if (isUnit(LengthUnit::metres(LengthUnit::InternationalFoot)))
        parts.append(PanelText::tr("in international feet"));
    else if (!isUnit(1.0) && system.registered)
        parts.append(PanelText::tr("in %1").arg(QString::fromUtf8(registry.unitName(system.registered->code))));
    if (reading.zoneDigits > 0)
        parts.append(PanelText::tr("%1 is missing before the easting").arg(reading.zoneDigits));
    if (reading.zoneDigits < 0)
        parts.append(PanelText::tr("%1 before the easting is the zone").arg(std::abs(reading.zoneDigits)));
    return parts.isEmpty() ? QString() : PanelText::tr("if %1").arg(parts.join(", "));
}

QString FoundSystemsModel::reason(const FoundSystem& system) const {
    return system.registered ? reasons.reason(*system.registered) : QString();
}

int FoundSystemsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : systems.size();
}

int FoundSystemsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString FoundSystemsModel::text(const FoundSystem& system, int column) const {
    switch (column) {
    case Distance:
        return system.isSame ? PanelText::tr("the same") : metres(system.fit.distance);
    case Spread:
        return system.isSame ? QString() : metres(system.fit.spread);
    case Code:
        return system.registered ? QString::fromUtf8(system.registered->code) : PanelText::tr("own");
    case Name:
        return nameOf(system);
    default:
        return condition(system);
    }
}

QVariant FoundSystemsModel::data(const QModelIndex& index, int role) const {
    const FoundSystem& shown = systems[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, index.column());
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (index.column() <= Spread ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ToolTipRole: {
        const QString why = reason(shown);
        if (!why.isEmpty())
            return why;
        if (index.column() == Distance && shown.fit.reading.shifted)
            return PanelText::tr("With the system's datum shift, the place being on WGS 84");
        return text(shown, index.column());
    }
    case Qt::ForegroundRole:
        if (!reason(shown).isEmpty() || (index.column() == Distance && shown.isSame))
            return Colours::hint(QGuiApplication::palette());
        return {};
    default:
        return {};
    }
}

QVariant FoundSystemsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (section <= Spread ? Qt::AlignRight : Qt::AlignLeft));
    if (role == Qt::ToolTipRole && section == Distance)
        return PanelText::tr("From the place to where the system has the coordinates; of several points the root mean "
                             "square");
    if (role == Qt::ToolTipRole && section == Spread)
        return PanelText::tr("What is left of the distances without what all points have in common, as a datum shift: "
                             "the smaller, the better the system fits");
    if (role != Qt::DisplayRole)
        return {};
    const QString texts[ColumnCount] = {PanelText::tr("Distance"), PanelText::tr("Spread"), PanelText::tr("EPSG"),
                                        PanelText::tr("Name"), PanelText::tr("Condition")};
    return texts[section];
}

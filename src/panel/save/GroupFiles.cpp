#include "panel/save/GroupFiles.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/File.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "catalogue/IDictionary.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/PanelText.h"
#include "panel/record/RecordWkt.h"
#include "platform/projection/WktDialect.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <chrono>

namespace {

const QString suffix = QStringLiteral(".prj");

QStringList listed(const char* names) {
    return QString::fromLocal8Bit(names).split(',', Qt::SkipEmptyParts);
}

IDictionary* recordIn(ICoordSystem& catalogue, const QString& groupName, const QString& name) {
    ICoordSysGroup* const group = catalogue.getGroup(groupName.toLocal8Bit().constData());
    return group ? group->getCoordSystem(name.toLocal8Bit().constData()) : nullptr;
}

/// How many of the values of `record` are others, or none, in `stored`.
int differences(const IDictionary& record, const IDictionary& stored) {
    int count = 0;
    for (int i = 0; i < record.count(); ++i) {
        const char* const key = record.getKey(i);
        const bool isSame = QByteArray(record.getValue(key)) == QByteArray(stored.getValue(key));
        count += isSame ? 0 : 1;
    }
    return count;
}

/// A link that leads nowhere is a file to keep as well.
bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

GroupFiles::GroupFiles(ICoordSystem& catalogue, const IDictionary& shown, QObject* parent)
    : QAbstractTableModel(parent)
    , catalogue(catalogue)
    , shown(shown)
    , shownName(QString::fromLocal8Bit(shown.getValue(CoordParamKey::name)))
    , groupNames(listed(catalogue.getGroupNames()))
    , dialect(WktDialect::Wkt1Esri)
    , names(suffix) {
    // Several groups may have a system of that name; the shown one is the most like the record.
    int fewest = -1;
    for (const QString& name : qAsConst(groupNames)) {
        const IDictionary* const stored = recordIn(catalogue, name, shownName);
        const int count = stored ? differences(shown, *stored) : 0;
        if (!stored || (fewest >= 0 && count >= fewest))
            continue;
        fewest = count;
        shownGroup = name;
    }
    if (fewest >= 0)
        groupNames.move(groupNames.indexOf(shownGroup), 0);
}

void GroupFiles::setGroup(const QString& name) {
    beginResetModel();
    group = name;
    names = FileNames(suffix);
    rows.clear();
    next = 0;
    ICoordSysGroup* const systems = catalogue.getGroup(name.toLocal8Bit().constData());
    const QStringList systemNames = systems ? listed(systems->getCoordSystemNames()) : QStringList();
    rows.resize(systemNames.size());
    for (int i = 0; i < rows.size(); ++i)
        rows[i].system = systemNames.at(i);
    endResetModel();
}

double GroupFiles::nameFiles() {
    constexpr int atOnce = 100; // telling a view of each would take longer than the naming
    const int first = next;
    for (; next < rows.size() && next < first + atOnce; ++next)
        rows[next].file = names.add(rows[next].system);
    if (next > first)
        Q_EMIT dataChanged(index(first, File), index(next - 1, File));
    return done(next);
}

void GroupFiles::start(const QString& intoFolder, WktDialect inDialect) {
    beginResetModel();
    folder = intoFolder;
    dialect = inDialect;
    next = 0;
    for (Row& row : rows) {
        row.remark.clear();
        row.state = State::Planned;
        row.isThere = false;
    }
    endResetModel();
}

double GroupFiles::done(int row) const {
    return row < rows.size() ? double(row) / rows.size() : 1.0;
}

double GroupFiles::look() {
    if (next < rows.size()) {
        Row& row = rows[next++];
        row.isThere = isThere(QDir(folder).filePath(row.file));
        row.state = row.isThere ? State::There : State::Planned;
    }
    const double part = done(next);
    if (part >= 1.0)
        next = 0;
    return part;
}

int GroupFiles::existing() const {
    return int(std::count_if(rows.begin(), rows.end(), [](const Row& row) { return row.isThere; }));
}

double GroupFiles::save(bool overwriting) {
    if (next == rows.size() || !isDone(rows[next], overwriting))
        return done(next);
    Q_EMIT dataChanged(index(next, Result), index(next, Result));
    return done(++next);
}

const IDictionary* GroupFiles::recordOf(const Row& row) const {
    return row.system == shownName && group == shownGroup ? &shown : recordIn(catalogue, group, row.system);
}

/// Whether that row is done: saved, or left out.
bool GroupFiles::isDone(Row& row, bool overwriting) {
    if (!writing.valid())
        return !beginToWrite(row, overwriting);
    if (writing.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
        return false;
    endWriting(row);
    return true;
}

/// Whether the row's file is being written; else the row says why it is left out.
bool GroupFiles::beginToWrite(Row& row, bool overwriting) {
    const QString path = QDir(folder).filePath(row.file);
    row.state = State::LeftOut;
    if (isThere(path) && !(row.isThere && overwriting)) {
        row.remark = PanelText::tr("The file is there already.");
        return false;
    }
    const IDictionary* const record = recordOf(row);
    const DefinitionState state = record ? DefinitionState::of(*record) : DefinitionState();
    const QByteArray wkt = state.definition.isEmpty() ? QByteArray() : recordWkt(*record, dialect, false);
    if (wkt.isEmpty()) {
        row.remark = state.problem.isEmpty() ? PanelText::tr("This form can't express the system.") : state.problem;
        addOlder(row);
        return false;
    }
    row.remark = wktRemark(*record, wkt);
    // A disk may take its time.
    writing = std::async(std::launch::async, [path, wkt] {
        QString error;
        return process_replace_file(path, wkt, &error) ? QString() : error.isEmpty() ? path : error;
    });
    return true;
}

void GroupFiles::endWriting(Row& row) {
    const QString error = writing.get();
    if (error.isEmpty()) {
        row.state = row.remark.isEmpty() ? State::Saved : State::SavedInPart;
        return;
    }
    row.remark = PanelText::tr("The file can't be written: %1").arg(error);
    addOlder(row);
}

void GroupFiles::addOlder(Row& row) {
    if (row.isThere)
        row.remark = PanelText::joined({row.remark, PanelText::tr("The file there is an older one.")});
}

void GroupFiles::sortByResult() {
    beginResetModel();
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& left, const Row& right) { return left.state < right.state; });
    endResetModel();
}

void GroupFiles::end() {
    if (writing.valid())
        endWriting(rows[next]);
    for (Row& row : rows) {
        if (row.state != State::Planned && row.state != State::There)
            continue;
        row.state = State::LeftOut;
        row.remark = PanelText::tr("Cancelled.");
    }
    sortByResult();
}

QString GroupFiles::resultText(const Row& row) {
    switch (row.state) {
    case State::LeftOut:
        return PanelText::tr("Left out. %1").arg(row.remark);
    case State::There:
        return PanelText::tr("There already");
    case State::SavedInPart:
        return PanelText::tr("Saved. %1").arg(row.remark);
    case State::Planned:
        return {};
    case State::Saved:
        return PanelText::tr("Saved");
    }
    return {};
}

/// How many systems have which remark.
QStringList GroupFiles::remarks(bool isSaved) const {
    QMap<QString, int> counts;
    for (const Row& row : rows) {
        if (row.state == (isSaved ? State::SavedInPart : State::LeftOut))
            ++counts[row.remark];
    }
    QStringList lines;
    for (auto it = counts.constBegin(); it != counts.constEnd(); ++it)
        lines.append(QStringLiteral("    %1: %2").arg(it.value()).arg(it.key()));
    return lines;
}

QString GroupFiles::summary() const {
    const auto isLeftOut = [](const Row& row) { return row.state == State::LeftOut; };
    const int leftOut = int(std::count_if(rows.begin(), rows.end(), isLeftOut));
    QStringList lines{PanelText::tr("Saved: %1").arg(rows.size() - leftOut)};
    lines += remarks(true);
    lines += PanelText::tr("Left out: %1").arg(leftOut);
    lines += remarks(false);
    return lines.join('\n');
}

QString GroupFiles::report() const {
    QString text = summary() + '\n';
    for (const Row& row : rows) {
        if (row.state != State::Saved)
            text.append(row.system).append('\t').append(row.file).append('\t').append(resultText(row)).append('\n');
    }
    return text;
}

int GroupFiles::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows.size();
}

int GroupFiles::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant GroupFiles::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const Row& row = rows.at(index.row());
    const QString text = index.column() == System ? row.system : index.column() == File ? row.file : resultText(row);
    // A "<" in a name must stay a "<".
    return role == Qt::ToolTipRole && !text.isEmpty() ? "<qt>" + text.toHtmlEscaped() + "</qt>" : text;
}

QVariant GroupFiles::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == System ? PanelText::tr("System")
           : section == File ? PanelText::tr("File")
                             : PanelText::tr("Result");
}

#include "panel/check/CatalogueDialog.h"

#include "catalogue/Dictionary.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "panel/field/Colours.h"
#include "panel/field/RowTable.h"
#include "panel/record/PanelText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int searchedRole = Qt::UserRole; ///< group and name

QStringList names(const char* list) {
    return QString::fromLocal8Bit(list).split(',', Qt::SkipEmptyParts);
}

} // namespace

CatalogueDialog::CatalogueDialog(ICoordSystem& catalogue, QWidget* parent)
    : Dialog(parent)
    , catalogue(catalogue)
    , systems(new QStandardItemModel(0, ColumnCount, this))
    , found(new QSortFilterProxyModel(this))
    , searchEdit(new QLineEdit)
    , table(rowTable(*found))
    , buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)) {
    setWindowTitle(PanelText::tr("From catalogue"));
    searchEdit->setClearButtonEnabled(true);
    searchEdit->setPlaceholderText(PanelText::tr("Words of the group or of the name"));
    Colours::setReadablePlaceholder(searchEdit);
    searchEdit->setAccessibleName(PanelText::tr("Search"));
    systems->setHorizontalHeaderLabels({PanelText::tr("Group"), PanelText::tr("Name")});
    listSystems();
    found->setSourceModel(systems);
    found->setFilterRole(searchedRole);
    table->setAccessibleName(PanelText::tr("Systems"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->horizontalHeader()->resizeSection(Group, 180);
    buttons->button(QDialogButtonBox::Ok)->setText(PanelText::tr("Compare"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(searchEdit);
    layout->addWidget(table, 1);
    layout->addWidget(buttons);
    resize(560, 480);
    connect(searchEdit, SIGNAL(textChanged(QString)), this, SLOT(_onSearchChanged(QString)));
    connect(table->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(_onSelectionChanged()));
    connect(table, SIGNAL(doubleClicked(QModelIndex)), this, SLOT(_onActivated()));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    _onSearchChanged(QString());
    searchEdit->setFocus();
}

void CatalogueDialog::listSystems() {
    for (const QString& group : names(catalogue.getGroupNames())) {
        ICoordSysGroup* const members = catalogue.getGroup(group.toLocal8Bit().constData());
        for (const QString& name : members ? names(members->getCoordSystemNames()) : QStringList()) {
            auto* groupItem = new QStandardItem(group);
            groupItem->setData(QString(group + ' ' + name), searchedRole);
            auto* nameItem = new QStandardItem(name);
            nameItem->setToolTip(name);
            systems->appendRow({groupItem, nameItem});
        }
    }
}

QString CatalogueDialog::chosen(Column column) const {
    const QModelIndexList rows = table->selectionModel()->selectedRows(column);
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

QString CatalogueDialog::systemName() const {
    const QString name = chosen(Name);
    return name.isEmpty() ? name : PanelText::tr("%1, in %2").arg(name, chosen(Group));
}

bool CatalogueDialog::write(IDictionary* record) const {
    ICoordSysGroup* const group = catalogue.getGroup(chosen(Group).toLocal8Bit().constData());
    const IDictionary* const system = group ? group->getCoordSystem(chosen(Name).toLocal8Bit().constData()) : nullptr;
    if (system)
        dictionary_assign(record, system);
    return system;
}

void CatalogueDialog::keyPressEvent(QKeyEvent* event) {
    // From the search, too, the arrows go through the list.
    const bool isForList = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down ||
                           event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (!isForList || !searchEdit->hasFocus()) {
        Dialog::keyPressEvent(event);
        return;
    }
    QKeyEvent again(event->type(), event->key(), event->modifiers());
    QCoreApplication::sendEvent(table, &again);
}

void CatalogueDialog::_onSearchChanged(const QString& text) {
    // Every word, in any order: "(?=.*word)" looks ahead without moving on.
    QString pattern = "^";
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    for (const QString& word : words)
        pattern += "(?=.*" + QRegularExpression::escape(word) + ')';
    found->setFilterRegularExpression(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption));
    if (chosen(Name).isEmpty())
        table->selectRow(0);
    _onSelectionChanged();
}

void CatalogueDialog::_onSelectionChanged() {
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!chosen(Name).isEmpty());
}

void CatalogueDialog::_onActivated() {
    accept();
}

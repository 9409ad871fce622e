#include "tree/DlgCoordSysGroups.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"
#include "catalogue/ICoordSysGroup.h"
#include "catalogue/ICoordSystem.h"
#include "geodesy/DlgEllipsoid.h"
#include "geodesy/DlgGeoid.h"
#include "import/WktFile.h"
#include "import/WktToCoordParam.h"
#include "platform/desktop/VornMessageBox.h"
#include "platform/projection/IProjectionModule.h"
#include "tree/DlgInputName.h"
#include "tree/ImportProgress.h"
#include "tree/PlainToolTipDelegate.h"
#include "tree/TreeKeys.h"

#include <QAction>
#include <QCursor>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTreeWidgetItemIterator>

DlgCoordSysGroups::DlgCoordSysGroups(ICoordSystem* coordSystem, QWidget* parent)
    : QTreeWidget(parent), coordSystem(coordSystem) {
    setAnimated(true);
    setHeaderHidden(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAccessibleName(tr("CoordSysGroup"));
    setItemDelegate(new PlainToolTipDelegate(this));
    new TreeKeys(this);
    connect(this, SIGNAL(customContextMenuRequested(const QPoint&)), this, SLOT(_onItemRightClicked(const QPoint&)));
    connect(this, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this, SLOT(_onItemClicked(QTreeWidgetItem*, int)));
    loadTree();
    createMenus();
    inputNameDialog = new DlgInputName(this, coordSystem);
}

DlgCoordSysGroups::~DlgCoordSysGroups() = default;

int DlgCoordSysGroups::levelOf(const QTreeWidgetItem* item) {
    return item->data(0, Qt::UserRole).toInt();
}

QTreeWidgetItem* DlgCoordSysGroups::newItem(Level level, const QString& name) {
    auto* item = new QTreeWidgetItem;
    item->setText(0, name);
    item->setToolTip(0, name);
    item->setData(0, Qt::UserRole, static_cast<int>(level));
    return item;
}

void DlgCoordSysGroups::loadTree() {
    clear();
    auto* root = new QTreeWidgetItem(this, QStringList(tr("CoordSysGroup")));
    root->setData(0, Qt::UserRole, static_cast<int>(Root));
    root->setExpanded(true);
    setCurrentItem(root);

    const QStringList groupNames = QString::fromLocal8Bit(coordSystem->getGroupNames()).split(',');
    for (const QString& groupName : groupNames) {
        if (groupName.isEmpty())
            continue;
        QTreeWidgetItem* groupItem = newItem(Group, groupName);
        root->addChild(groupItem);
        ICoordSysGroup* group = coordSystem->getGroup(groupName.toLocal8Bit().constData());
        if (!group)
            continue;
        // All at once: children added one by one cost the tree a signal each.
        QList<QTreeWidgetItem*> systemItems;
        const QStringList systemNames = QString::fromLocal8Bit(group->getCoordSystemNames()).split(',');
        for (const QString& systemName : systemNames) {
            if (!systemName.isEmpty())
                systemItems.append(newItem(System, systemName));
        }
        groupItem->addChildren(systemItems);
    }
}

QAction* DlgCoordSysGroups::addEntry(QMenu* menu, const QString& text, const char* slot) {
    auto* action = new QAction(text, this);
    connect(action, SIGNAL(triggered()), this, slot);
    menu->addAction(action);
    return action;
}

void DlgCoordSysGroups::createMenus() {
    rootMenu = std::make_unique<QMenu>();
    addSysGroupAction = addEntry(rootMenu.get(), tr("AddSysGroup"), SLOT(_onAddClicked()));
    editEllipsoidAction = addEntry(rootMenu.get(), QObject::tr("Edit Ellipsoid"), SLOT(_onAddEllipsoidClicked()));
    addGeoidAction = addEntry(rootMenu.get(), QObject::tr("AddGeoid"), SLOT(_onAddGeoidClicked()));

    groupMenu = std::make_unique<QMenu>();
    importCoordSysAction = addEntry(groupMenu.get(), tr("ImportCoordSys"), SLOT(_onImpCoordSystem()));
    addCoordSysAction = addEntry(groupMenu.get(), tr("AddCoordSys"), SLOT(_onAddClicked()));
    editSysGroupAction = addEntry(groupMenu.get(), tr("EditSysGroup"), SLOT(_onUpdateName()));
    delSysGroupAction = addEntry(groupMenu.get(), tr("DelSysGroup"), SLOT(_onDelCoordItem()));

    coordSysMenu = std::make_unique<QMenu>();
    editSysAction = addEntry(coordSysMenu.get(), tr("EditSys"), SLOT(_onUpdateName()));
    delSysAction = addEntry(coordSysMenu.get(), tr("DelSys"), SLOT(_onDelCoordItem()));
}

void DlgCoordSysGroups::_onItemClicked(QTreeWidgetItem* item, int /*column*/) {
    if (!item || levelOf(item) != System)
        return;
    currentGroupName = item->parent()->text(0);
    currentCoordName = item->text(0);
    Q_EMIT treeItemClicked(currentGroupName, currentCoordName);
}

void DlgCoordSysGroups::selectFirstCoordSystem() {
    QTreeWidgetItem* root = currentItem();
    if (!root)
        return;
    QTreeWidgetItem* groupItem = root->child(0);
    if (!groupItem)
        return;
    groupItem->setExpanded(true);
    QTreeWidgetItem* systemItem = groupItem->child(0);
    if (!systemItem)
        return;
    systemItem->setSelected(true);
    setCurrentItem(systemItem);
    root->setSelected(false);
    Q_EMIT itemClicked(systemItem, 0);
}

QTreeWidgetItem* DlgCoordSysGroups::selectItemByText(const QString& text) {
    QTreeWidgetItem* found = nullptr;
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        if ((*it)->text(0) != text)
            continue;
        found = *it;
        found->setSelected(true);
        setCurrentItem(found);
    }
    return found;
}

void DlgCoordSysGroups::_onItemRightClicked(const QPoint& pos) {
    const QTreeWidgetItem* item = itemAt(pos);
    QMenu* menu = rootMenu.get();
    if (item && levelOf(item) == Group)
        menu = groupMenu.get();
    else if (item && levelOf(item) == System)
        menu = coordSysMenu.get();
    menu->exec(QCursor::pos());
}

QString DlgCoordSysGroups::askName(const QString& title, const QString& groupName, const QString& coordName,
                                   int nameType) {
    inputNameDialog->setWindowTitle(title);
    inputNameDialog->groupName = groupName;
    inputNameDialog->coordName = coordName;
    inputNameDialog->nameType = nameType;
    inputNameDialog->nameEdit->setText(nameType == 0 ? groupName : coordName);
    // The dialog is used again and again: without this the focus would stay on the button pressed last time.
    inputNameDialog->nameEdit->setFocus();
    if (inputNameDialog->exec() != QDialog::Accepted)
        return QString();
    return inputNameDialog->getName();
}

QString DlgCoordSysGroups::askGroupName(const QString& title, const QString& groupName) {
    return askName(title, groupName, QString(), 0);
}

QString DlgCoordSysGroups::askCoordName(const QString& title, const QString& groupName, const QString& coordName) {
    return askName(title, groupName, coordName, 1);
}

void DlgCoordSysGroups::_onAddClicked() {
    const auto* action = qobject_cast<QAction*>(sender());
    const QTreeWidgetItem* item = action == addSysGroupAction ? topLevelItem(0) : currentItem();
    if (item && levelOf(item) != System)
        addUnder(item);
}

void DlgCoordSysGroups::addCoordGroup() {
    QTreeWidgetItem* item = currentItem() ? currentItem() : topLevelItem(0);
    if (levelOf(item) == System) {
        item = item->parent();
        setCurrentItem(item);
    }
    addUnder(item);
}

void DlgCoordSysGroups::addUnder(const QTreeWidgetItem* item) {
    if (levelOf(item) == Root) {
        const QString name = askGroupName(tr("AddSysGroup"), QString());
        if (!name.isEmpty())
            addSysGroup(name);
    } else {
        const QString name = askCoordName(tr("AddCoordSys"), item->text(0), QString());
        if (!name.isEmpty())
            addCoordSys(name);
    }
}

void DlgCoordSysGroups::insertFirst(QTreeWidgetItem* parentItem, QTreeWidgetItem* item) {
    parentItem->insertChild(0, item);
    parentItem->setSelected(false);
    parentItem->setExpanded(true);
    setCurrentItem(item);
}

void DlgCoordSysGroups::addSysGroup(const QString& name) {
    const QByteArray localName = name.toLocal8Bit();
    if (name.isEmpty() || coordSystem->hasGroup(localName.constData()))
        return;
    coordSystem->addGroup(localName.constData());
    insertFirst(topLevelItem(0), newItem(Group, name));
    currentGroupName = name;
}

void DlgCoordSysGroups::addCoordSys(const QString& name) {
    QTreeWidgetItem* groupItem = currentItem();
    const QString groupName = groupItem->text(0);
    const QByteArray localName = name.toLocal8Bit();
    ICoordSysGroup* group = coordSystem->getGroup(groupName.toLocal8Bit().constData());
    if (!group || group->hasCoordSystem(localName.constData()))
        return;

    const DictionaryGuard record;
    if (groupItem->childCount() > 0) {
        const QString lastName = groupItem->child(groupItem->childCount() - 1)->text(0);
        if (const IDictionary* last = group->getCoordSystem(lastName.toLocal8Bit().constData()))
            dictionary_copy(record.get(), last, "ellipsoid_name,ellipsoid_a,ellipsoid_f", ',');
    }
    dic_set_value(record.get(), CoordParamKey::name, "%s", localName.constData());
    group->addCoordSystem(record.get());

    insertFirst(groupItem, newItem(System, name));
    Q_EMIT treeItemClicked(groupName, name);
    Q_EMIT dataChanged();
}

void DlgCoordSysGroups::_onUpdateName() {
    const QTreeWidgetItem* item = currentItem();
    if (!item)
        return;
    const QString oldName = item->text(0);
    if (levelOf(item) == Group) {
        const QString newName = askGroupName(tr("EditSysGroup"), oldName);
        if (!newName.isEmpty())
            updateSysGroupName(oldName, newName);
    } else if (levelOf(item) == System) {
        const QString newName = askCoordName(tr("EditSys"), item->parent()->text(0), oldName);
        if (!newName.isEmpty())
            updateCoordSysName(oldName, newName);
    }
}

void DlgCoordSysGroups::updateSysGroupName(const QString& oldName, const QString& newName) {
    if (newName.isEmpty() ||
        !coordSystem->renameGroup(oldName.toLocal8Bit().constData(), newName.toLocal8Bit().constData()))
        return;
    currentItem()->setText(0, newName);
    currentItem()->setToolTip(0, newName);
    currentGroupName = newName;
    Q_EMIT treeItemClicked(newName, currentCoordName);
    Q_EMIT dataChanged();
}

void DlgCoordSysGroups::updateCoordSysName(const QString& oldName, const QString& newName) {
    const QString groupName = currentItem()->parent()->text(0);
    ICoordSysGroup* group = coordSystem->getGroup(groupName.toLocal8Bit().constData());
    if (!group || !group->renameCoordSystem(oldName.toLocal8Bit().constData(), newName.toLocal8Bit().constData()))
        return;
    currentItem()->setText(0, newName);
    currentItem()->setToolTip(0, newName);
    currentCoordName = newName;
    Q_EMIT treeItemClicked(groupName, newName);
    Q_EMIT dataChanged();
}

void DlgCoordSysGroups::_onDelCoordItem() {
    QTreeWidgetItem* item = currentItem();
    if (!item)
        return;
    const QString name = item->text(0);
    if (levelOf(item) == Group) {
        if (!VornMessageBox::information(this, QObject::tr("Warning"),
                                         tr("are you sure delete coord system group %1 ?").arg(name)))
            return;
        coordSystem->deleteGroup(name.toLocal8Bit().constData());
    } else if (levelOf(item) == System) {
        if (!VornMessageBox::information(this, QObject::tr("Warning"),
                                         tr("are you sure delete coord system %1 ?").arg(name)))
            return;
        // The item's own group: the current group name can name another one that holds a system of the same name.
        ICoordSysGroup* group = coordSystem->getGroup(item->parent()->text(0).toLocal8Bit().constData());
        if (!group)
            return;
        group->deleteCoordSystem(name.toLocal8Bit().constData());
    } else {
        return;
    }
    item->setHidden(true);
    Q_EMIT dataChanged();
}

void DlgCoordSysGroups::_onAddEllipsoidClicked() {
    DlgEllipsoid dialog(this, coordSystem, 0);
    dialog.exec();
    _onItemClicked(selectItemByText(currentCoordName), 0);
}

void DlgCoordSysGroups::_onAddGeoidClicked() {
    DlgGeoid dialog(this, coordSystem, 0);
    dialog.exec();
    _onItemClicked(selectItemByText(currentCoordName), 0);
}

void DlgCoordSysGroups::_onImpCoordSystem() {
    prepareProjectionModule(); // while the files are being chosen
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Selecte WKT file"), QString(), QStringLiteral("*.txt;;*.prj"));
    if (paths.isEmpty())
        return;

    int addedCount = 0;
    ImportProgress progress(this, paths.count());
    for (const QString& path : paths) {
        if (!progress.beginFile(path))
            break;
        const ImportResult result = importFile(path, progress);
        progress.endFile();
        if (result == ImportResult::NoGroup)
            break;
        if (result == ImportResult::Added)
            ++addedCount;
    }

    if (addedCount > 0) {
        loadTree();
        Q_EMIT dataChanged();
    }
}

DlgCoordSysGroups::ImportResult DlgCoordSysGroups::importFile(const QString& path, ImportProgress& progress) {
    const WktSystem system = WktFile::read(path);
    switch (system.content) {
    case WktSystem::Content::NotOpened:
        return ImportResult::Skipped;
    case WktSystem::Content::Unreadable:
        return refuseImport(tr("Import file failed!"), progress);
    case WktSystem::Content::NotProjected:
        return refuseImport(tr("Import file isn't projection coordinates!"), progress);
    case WktSystem::Content::Projected:
        break;
    }

    const DictionaryGuard record;
    WktToCoordParam::convert(system, record.get());
    ICoordSysGroup* group = coordSystem->getGroup(currentGroupName.toLocal8Bit().constData());
    if (!group)
        return ImportResult::NoGroup;
    const QByteArray name = WktToCoordParam::nameInCatalogue(system);
    dic_set_value(record.get(), CoordParamKey::name, "%s", name.constData());
    if (group->hasCoordSystem(name.constData()))
        return refuseImport(tr("The Imported projection coordinates already exist in the group!"), progress);
    return group->addCoordSystem(record.get()) ? ImportResult::Added : ImportResult::Skipped;
}

DlgCoordSysGroups::ImportResult DlgCoordSysGroups::refuseImport(const QString& message, ImportProgress& progress) {
    progress.showMessage([&] { VornMessageBox::information_ok(this, tr("Warning"), message); });
    return ImportResult::Skipped;
}

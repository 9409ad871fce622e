#pragma once

#include <QTreeWidget>

#include <memory>

class DlgInputName;
class ICoordSystem;
class ImportProgress;
class QAction;
class QMenu;

/// The tree of coordinate-system groups and their systems, with the commands that change them. The items mirror the
/// catalogue as it was when the tree was last filled; commands change the catalogue and then patch the items in place.
class DlgCoordSysGroups : public QTreeWidget {
    Q_OBJECT

public:
    DlgCoordSysGroups(ICoordSystem* coordSystem, QWidget* parent);
    ~DlgCoordSysGroups() override;

    /// Makes the first coordinate system of the first group current and announces it as a click would.
    void selectFirstCoordSystem();

Q_SIGNALS:
    /// A coordinate system was chosen: its group's name and its own.
    void treeItemClicked(QString groupName, QString coordName);
    /// A command changed the catalogue.
    void dataChanged();

public Q_SLOTS:
    /// Adds a group or a coordinate system, depending on the current item.
    void addCoordGroup();

private Q_SLOTS:
    void _onItemRightClicked(const QPoint& pos);
    void _onAddClicked();
    void _onImpCoordSystem();
    void _onAddEllipsoidClicked();
    void _onAddGeoidClicked();
    void _onDelCoordItem();
    void _onUpdateName();
    void _onItemClicked(QTreeWidgetItem* item, int column);

private:
    /// What an item stands for, stored under Qt::UserRole.
    enum Level { Root = 0, Group = 1, System = 2 };

    enum class ImportResult { Added, Skipped, NoGroup };

    static int levelOf(const QTreeWidgetItem* item);
    static QTreeWidgetItem* newItem(Level level, const QString& name);

    void loadTree();
    void createMenus();
    QAction* addEntry(QMenu* menu, const QString& text, const char* slot);

    /// Makes the last item with that text current; null when there is none. Hidden items count.
    QTreeWidgetItem* selectItemByText(const QString& text);

    /// Prepares the name dialog and runs it. The name entered, empty when the user cancelled.
    QString askGroupName(const QString& title, const QString& groupName);
    QString askCoordName(const QString& title, const QString& groupName, const QString& coordName);
    QString askName(const QString& title, const QString& groupName, const QString& coordName, int nameType);

    void addUnder(const QTreeWidgetItem* item);
    void insertFirst(QTreeWidgetItem* parentItem, QTreeWidgetItem* item);
    void addSysGroup(const QString& name);
    void addCoordSys(const QString& name);
    void updateSysGroupName(const QString& oldName, const QString& newName);
    void updateCoordSysName(const QString& oldName, const QString& newName);

    ImportResult importFile(const QString& path, ImportProgress& progress);
    /// Tells the user why a file is not imported.
    ImportResult refuseImport(const QString& message, ImportProgress& progress);

    ICoordSystem* coordSystem;
    std::unique_ptr<QMenu> rootMenu;
    QAction* editEllipsoidAction = nullptr;
    QAction* addGeoidAction = nullptr;
    std::unique_ptr<QMenu> groupMenu;
    QAction* addSysGroupAction = nullptr;
    QAction* editSysGroupAction = nullptr;
    QAction* delSysGroupAction = nullptr;
    std::unique_ptr<QMenu> coordSysMenu;
    QAction* importCoordSysAction = nullptr;
    QAction* addCoordSysAction = nullptr;
    QAction* editSysAction = nullptr;
    QAction* delSysAction = nullptr;
    QString currentGroupName;
    QString currentCoordName;
    DlgInputName* inputNameDialog = nullptr;
};

#pragma once

#include "CatalogueText.h"

#include <QObject>
#include <QString>

#include <memory>

class DlgCoordParam;
class DlgCoordSysGroups;
class ICoordSystem;
class QPushButton;
class QTreeWidgetItem;
class VornCoordSysMainWindow;

/// The tool's window, real in every part, and what became known of it since it was started.
class ToolOnScreen : public QObject {
    Q_OBJECT

public:
    /// Where the tool keeps its files, below the folder that stands for the user's home.
    explicit ToolOnScreen(const QString& home);
    ~ToolOnScreen() override;

    /// Shows the window; a second time it ends the first one and reads the files anew.
    void start();

    /// The items of `level` that can be seen or scrolled to, in the order on screen.
    QVector<QTreeWidgetItem*> items(int level) const;

    /// "group,system" of the system announced last, as CatalogueText has it.
    QByteArray announced() const;

    QString dataFolder;
    ICoordSystem* catalogue = nullptr;
    std::unique_ptr<VornCoordSysMainWindow> window;
    DlgCoordSysGroups* tree = nullptr;
    DlgCoordParam* panel = nullptr;
    QPushButton* addButton = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* exitButton = nullptr;

    QString announcedGroup;
    QString announcedName;
    CatalogueText saved;   ///< the systems at the last save or start
    int changes = 0;       ///< how often dataChanged() came since
    bool isSaveNew = true; ///< nobody has looked at the file since
    bool isStarted = true; ///< nobody has looked since the start at what it loaded:
    CatalogueText loaded;
    int leftBehind = 0; ///< how many widgets outlived the last window

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private Q_SLOTS:
    void _onAnnounced(const QString& group, const QString& name);
    void _onChanged();
};

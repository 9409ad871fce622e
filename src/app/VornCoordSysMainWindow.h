#pragma once

#include <QWidget>

class DlgCoordParam;
class DlgCoordSysGroups;
class ICoordSystem;
class QPushButton;

/// The tool's only top-level window: the tree of coordinate systems beside the parameter panel of the one chosen.
///
/// The enabled Save button is the only record of unsaved changes.
class VornCoordSysMainWindow : public QWidget {
    Q_OBJECT

public:
    explicit VornCoordSysMainWindow(QWidget* parent);

protected:
    void closeEvent(QCloseEvent* event) override;

protected Q_SLOTS:
    void _onSave();
    void _onDataChanged();
    void _onTreeItemClicked(QString sGroup, QString sCoord);

private:
    ICoordSystem* coordSystem;
    DlgCoordSysGroups* tree;
    DlgCoordParam* coordParam;
    QPushButton* addButton;
    QPushButton* saveButton;
    QPushButton* exitButton;
    // Which system the panel shows and where its edits are written back.
    QString shownGroupName;
    QString shownCoordName;
};

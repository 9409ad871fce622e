#pragma once

#include <QObject>
#include <QStringList>
#include <QVector>

#include <memory>

class DlgCoordParam;
class DlgCoordSysGroups;
class QPushButton;
class QTreeWidgetItem;
class VornCoordSysMainWindow;

/// A person at work in the tool's window: each call does one thing with mouse and keyboard. Every tab takes its turn.
class Day : public QObject {
    Q_OBJECT

public:
    /// Starts the tool in the home folder `home`, on the starter catalogue.
    explicit Day(const QString& home);
    ~Day() override;

    /// Clicks the next system.
    void select();
    /// Types another value into the next field of the shown system.
    void edit();
    /// Imports the next WKT file into the first group, and deletes the system again. Most files hold one.
    void import();
    /// Saves; after one more edit where there is nothing to save.
    void save();

    /// Opens the file dialog of the import and chooses a file, without the tool.
    void chooseFile();

    /// How often the catalogue was changed, and how often it was saved.
    int changes() const { return changeCount; }
    int saves() const { return saveCount; }

private Q_SLOTS:
    void _onChanged() { ++changeCount; }

private:
    void showTab(int tab);
    void choose(const QString& file) const;
    void trigger(const QString& entry) const;
    QTreeWidgetItem* firstGroup() const;
    void click(QTreeWidgetItem* item) const;

    std::unique_ptr<VornCoordSysMainWindow> window;
    DlgCoordSysGroups* tree;
    DlgCoordParam* panel;
    QPushButton* saveButton = nullptr;
    QStringList files;
    int selections = 0, edits = 0, imports = 0, changeCount = 0, saveCount = 0;
};

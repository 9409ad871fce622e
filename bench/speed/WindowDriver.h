#pragma once

#include <QStringList>

#include <memory>

class DlgCoordParam;
class DlgCoordSysGroups;
class QLineEdit;
class QTreeWidgetItem;
class VornCoordSysMainWindow;

/// A person at the tool's window, timed: each call gives the milliseconds until what it does is painted.
class WindowDriver {
public:
    /// Starts the tool on the user's catalogue, and waits as long as a person looks at a new window.
    WindowDriver();
    ~WindowDriver();

    int tabCount() const;
    QString tabTitle(int tab) const;

    /// Clicks the tab; the mouse came to the tabs shortly before.
    double showTab(int tab);
    /// Clicks the tab with that title.
    double showTab(const QString& title);

    /// Clicks another system; what the tab finds out of it later does not count, see settle().
    double selectSystem();

    /// What is left to do behind selectSystem(): the longest time in which the window does not answer.
    double settle();

    /// Opens the registry's list from the tab that is shown, types `text` into its search, and cancels.
    struct Registry {
        double opened;
        QVector<double> keys;
    };
    Registry searchRegistry(const QString& text);

    /// Imports the files into the first group, from the moment that they are chosen. Negative when any was not taken.
    double import(const QStringList& files);

private:
    QTreeWidgetItem* group(int index) const;

    std::unique_ptr<VornCoordSysMainWindow> window;
    DlgCoordSysGroups* tree;
    DlgCoordParam* panel;
    int selections = 0;
};

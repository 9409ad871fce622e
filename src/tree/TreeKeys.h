#pragma once

#include <QTreeWidget>

/// What the mouse does in a tree, by keys: Enter clicks the current item, and the Menu key asks for its context menu,
/// as does Shift+F10, which not every desktop takes for that key. The item is scrolled into sight first; where it is
/// hidden, the menu is the one of the empty space.
class TreeKeys : public QObject {
    Q_OBJECT

public:
    /// For `tree`, which owns it.
    explicit TreeKeys(QTreeWidget* tree);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect showCurrent() const;
    void click() const;
    void askForMenu() const;

    QTreeWidget* tree;
};

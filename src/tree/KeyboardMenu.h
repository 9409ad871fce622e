#pragma once

#include <QTreeWidget>

/// Asks for a tree's context menu at its current item, scrolled into sight, when the Menu key is pressed or Shift+F10,
/// which not every desktop takes for it. Without such an item it is the menu of the empty space.
class KeyboardMenu : public QObject {
    Q_OBJECT

public:
    /// For `tree`, which owns it.
    explicit KeyboardMenu(QTreeWidget* tree);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void request() const;

    QTreeWidget* tree;
};

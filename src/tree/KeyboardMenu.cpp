#include "tree/KeyboardMenu.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

KeyboardMenu::KeyboardMenu(QTreeWidget* tree) : QObject(tree), tree(tree) {
    tree->installEventFilter(this);
}

bool KeyboardMenu::eventFilter(QObject* watched, QEvent* event) {
    bool isWanted = false;
    if (event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        isWanted = key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier;
    } else if (event->type() == QEvent::ContextMenu) {
        isWanted = static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
    }
    if (!isWanted)
        return QObject::eventFilter(watched, event);
    event->accept();
    request();
    return true;
}

void KeyboardMenu::request() const {
    QTreeWidgetItem* const item = tree->currentItem();
    if (item)
        tree->scrollToItem(item);
    const QRect shown = item ? tree->visualItemRect(item) & tree->viewport()->rect() : QRect();
    Q_EMIT tree->customContextMenuRequested(shown.isEmpty() ? QPoint(-1, -1) : shown.center());
}

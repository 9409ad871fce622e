#include "tree/TreeKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace {

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isMenuKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

} // namespace

TreeKeys::TreeKeys(QTreeWidget* tree) : QObject(tree), tree(tree) {
    tree->installEventFilter(this);
}

bool TreeKeys::eventFilter(QObject* watched, QEvent* event) {
    const auto* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const auto* const menu = event->type() == QEvent::ContextMenu ? static_cast<QContextMenuEvent*>(event) : nullptr;
    if (key && isEnter(*key))
        click();
    else if ((key && isMenuKey(*key)) || (menu && menu->reason() == QContextMenuEvent::Keyboard))
        askForMenu();
    else
        return QObject::eventFilter(watched, event);
    event->accept();
    return true;
}

/// Where the current item is seen; empty where it is hidden, or there is none.
QRect TreeKeys::showCurrent() const {
    QTreeWidgetItem* const item = tree->currentItem();
    if (!item)
        return QRect();
    tree->scrollToItem(item);
    return tree->visualItemRect(item) & tree->viewport()->rect();
}

void TreeKeys::click() const {
    if (!showCurrent().isEmpty())
        Q_EMIT tree->itemClicked(tree->currentItem(), 0);
}

void TreeKeys::askForMenu() const {
    const QRect place = showCurrent();
    Q_EMIT tree->customContextMenuRequested(place.isEmpty() ? QPoint(-1, -1) : place.center());
}

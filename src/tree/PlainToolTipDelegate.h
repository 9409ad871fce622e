#pragma once

#include <QStyledItemDelegate>

/// Shows an item's tooltip letter for letter: Qt would take a name such as "<b>x</b>" for markup.
class PlainToolTipDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

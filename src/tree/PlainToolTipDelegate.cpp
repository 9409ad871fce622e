#include "tree/PlainToolTipDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

bool PlainToolTipDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) {
    const QString text = index.data(Qt::ToolTipRole).toString();
    if (event->type() != QEvent::ToolTip || !Qt::mightBeRichText(text))
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // The tip takes no other hint that this is no markup. Rich text would be wrapped, which a plain tip is not.
    const QString letterForLetter = QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped());
    QToolTip::showText(event->globalPos(), letterForLetter, view, view->visualRect(index));
    return true;
}

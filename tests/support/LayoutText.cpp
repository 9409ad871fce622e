#include "support/LayoutText.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QStringList>
#include <QVariant>

QString layoutText(QLayout* layout) {
    const auto* box = qobject_cast<QBoxLayout*>(layout);
    const auto* grid = qobject_cast<QGridLayout*>(layout);
    QStringList parts;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        QString part = "~";
        if (item->layout())
            part = layoutText(item->layout());
        else if (const QWidget* widget = item->widget())
            part = qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget)
                       ? widget->property("text").toString()
                       : widget->metaObject()->className();
        int row = 0, column = 0, span = 0;
        if (grid)
            grid->getItemPosition(i, &row, &column, &span, &span);
        if (grid)
            part.prepend(QString("%1.%2:").arg(row).arg(column));
        else if (box->stretch(i) != 0)
            part.prepend(QString("%1*").arg(box->stretch(i)));
        parts << part;
    }
    const QString kind = grid ? "grid" : box->direction() == QBoxLayout::LeftToRight ? "row" : "column";
    return kind + '(' + parts.join(", ") + ')';
}

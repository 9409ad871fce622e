#pragma once

#include "panel/field/ResultLabel.h"

#include <QtWidgets>

/// What every page keeps, so that a screen reader can tell of it and a keyboard leads through it. Each function gives
/// what breaks its rule.
namespace PageRules {

inline QString nameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

/// On Unix Qt gives the chosen entry for a list's name; what it is for stands in its label or its description.
inline QString labelOf(QWidget* widget) {
    const auto* const seen = QAccessible::queryAccessibleInterface(widget);
    if (!widget->inherits("QComboBox"))
        return nameOf(widget);
    const auto labels = seen->relations(QAccessible::Label);
    return labels.isEmpty() ? seen->text(QAccessible::Description) : labels.first().first->text(QAccessible::Name);
}

inline QString called(QWidget* widget) {
    const QString name = nameOf(widget);
    const QString type = widget->metaObject()->className();
    return name.isEmpty() ? type + " in " + widget->parentWidget()->metaObject()->className()
                          : type + " \"" + name + '"';
}

template <typename Widget> QList<Widget*> visible(const QWidget& root) {
    QList<Widget*> all;
    for (Widget* widget : root.findChildren<Widget*>()) {
        if (widget->isVisible() && widget->window() == root.window())
            all << widget;
    }
    return all;
}

inline bool isPartOf(const QObject* object, std::initializer_list<const char*> types) {
    for (const QObject* parent = object ? object->parent() : nullptr; parent; parent = parent->parent()) {
        for (const char* type : types) {
            if (parent->inherits(type))
                return true;
        }
    }
    return false;
}

/// What a screen reader finds that does something, or shows a picture, and has no name.
inline QStringList nameless(QAccessibleInterface* seen) {
    static const QSet<int> named = {QAccessible::EditableText, QAccessible::ComboBox,    QAccessible::Button,
                                    QAccessible::CheckBox,     QAccessible::RadioButton, QAccessible::Table,
                                    QAccessible::List,         QAccessible::Tree,        QAccessible::PageTab,
                                    QAccessible::SpinBox,      QAccessible::Slider,      QAccessible::ProgressBar,
                                    QAccessible::Graphic,      QAccessible::Border,      QAccessible::ColumnHeader};
    QStringList found;
    if (!seen || seen->state().invisible)
        return found;
    auto* const widget = qobject_cast<QWidget*>(seen->object());
    if (named.contains(seen->role()) && (widget ? labelOf(widget) : seen->text(QAccessible::Name)).isEmpty()) {
        const QObject* const object = seen->object();
        // A frame that is nothing but one, or a part of what has a name.
        const bool isPart = (object && object->inherits("QFrame") && seen->role() == QAccessible::Border) ||
                            isPartOf(object, {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QMessageBox"});
        if (!isPart)
            found << QString("nameless %1 %2 in %3")
                         .arg(QMetaEnum::fromType<QAccessible::Role>().valueToKey(seen->role()),
                              object ? object->metaObject()->className() : "cell",
                              object && object->parent() ? object->parent()->metaObject()->className() : "");
    }
    if (seen->role() == QAccessible::Tree || seen->role() == QAccessible::Table || seen->role() == QAccessible::List)
        return found; // their cells are texts
    for (int i = 0; i < seen->childCount(); ++i)
        found << nameless(seen->child(i));
    return found;
}

inline QStringList namelessColumns(const QWidget& root) {
    QStringList found;
    for (QHeaderView* header : visible<QHeaderView>(root)) {
        for (int i = 0; header->orientation() == Qt::Horizontal && header->model() && i < header->count(); ++i) {
            if (!header->isSectionHidden(i) && header->model()->headerData(i, Qt::Horizontal).toString().isEmpty())
                found << QString("column %1 of %2 has no name").arg(i).arg(called(header->parentWidget()));
        }
    }
    return found;
}

/// Texts that are seen and not said.
inline QStringList unsaid(const QWidget& root) {
    QStringList found;
    for (QLabel* label : visible<QLabel>(root)) {
        if (label->textFormat() != Qt::RichText && !nameOf(label).contains(label->text()))
            found << "label \"" + label->text() + "\" is said as \"" + nameOf(label) + '"';
    }
    return found;
}

/// Whether Tab leads to it.
inline bool isStop(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
           !widget->focusProxy();
}

/// The widgets that Tab leads to, in the order in which a page is read: a layout's from its first cell to its last.
inline void appendInReadingOrder(QLayoutItem* item, QList<QWidget*>& order);

inline void appendInReadingOrder(QWidget* widget, QList<QWidget*>& order) {
    if (isStop(widget))
        order << widget;
    if (widget->inherits("QAbstractSpinBox") || widget->inherits("QComboBox") || widget->inherits("QTabBar"))
        return; // one thing
    if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
        appendInReadingOrder(tabs->tabBar(), order);
        if (tabs->currentWidget())
            appendInReadingOrder(tabs->currentWidget(), order);
    } else if (auto* splitter = qobject_cast<QSplitter*>(widget)) {
        for (int i = 0; i < splitter->count(); ++i)
            appendInReadingOrder(splitter->widget(i), order);
    } else if (auto* area = qobject_cast<QScrollArea*>(widget)) {
        appendInReadingOrder(area->widget(), order);
    } else if (auto* table = qobject_cast<QTableWidget*>(widget)) {
        for (int row = 0; row < table->rowCount(); ++row) {
            for (int column = 0; column < table->columnCount(); ++column) {
                if (QWidget* const cell = table->cellWidget(row, column))
                    appendInReadingOrder(cell, order);
            }
        }
    } else if (widget->layout() && !widget->inherits("QAbstractScrollArea")) {
        appendInReadingOrder(widget->layout(), order);
    }
}

inline void appendInReadingOrder(QLayoutItem* item, QList<QWidget*>& order) {
    if (QWidget* const widget = item->widget())
        return widget->isVisible() ? appendInReadingOrder(widget, order) : void();
    QLayout* const layout = item->layout();
    QVector<QPair<QPair<int, int>, QLayoutItem*>> cells;
    for (int i = 0; layout && i < layout->count(); ++i) {
        int row = 0, column = i, rows = 1, columns = 1;
        if (auto* grid = qobject_cast<QGridLayout*>(layout))
            grid->getItemPosition(i, &row, &column, &rows, &columns);
        cells << qMakePair(qMakePair(row, column), layout->itemAt(i));
    }
    std::stable_sort(cells.begin(), cells.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& cell : qAsConst(cells))
        appendInReadingOrder(cell.second, order);
}

/// Where Tab leads otherwise than one reads, or not at all.
inline QStringList unread(QWidget& root) {
    QList<QWidget*> reading, chain;
    appendInReadingOrder(&root, reading);
    QWidget* widget = &root;
    do {
        const bool isOther =
            isStop(widget) && root.isAncestorOf(widget) && !widget->parentWidget()->inherits("QAbstractSpinBox");
        if (reading.contains(widget) || isOther)
            chain << widget;
        widget = widget->nextInFocusChain();
    } while (widget != &root);
    for (int i = 0; i < qMax(reading.size(), chain.size()); ++i) {
        if (reading.value(i) != chain.value(i))
            return {QString("Tab leads after %1 to %2, one reads %3")
                        .arg(i > 0 ? called(reading[i - 1]) : "the start",
                             chain.value(i) ? called(chain[i]) : "the end",
                             reading.value(i) ? called(reading[i]) : "the end")};
    }
    return {};
}

/// What the mouse can do something with and the keyboard cannot.
inline QStringList unreachable(const QWidget& root) {
    QStringList found;
    for (QWidget* widget : visible<QWidget>(root)) {
        bool isPart = false; // of something that the keyboard reaches, or of a scroll bar's frame
        for (const QWidget* parent = widget->parentWidget(); parent && parent != &root; parent = parent->parentWidget())
            isPart = isPart || parent->inherits("QComboBox") || parent->inherits("QAbstractSpinBox") ||
                     parent->inherits("QLineEdit") || parent->inherits("QTabBar") ||
                     (parent->inherits("QAbstractItemView") && !widget->inherits("QComboBox"));
        bool acts = false;
        for (const char* type : {"QAbstractButton", "QLineEdit", "QPlainTextEdit", "QComboBox", "QAbstractItemView",
                                 "QTabBar", "QAbstractSpinBox", "AreaPlot"})
            acts = acts || widget->inherits(type);
        const auto* const view = qobject_cast<QAbstractItemView*>(widget);
        const bool isPicture = view && view->selectionMode() == QAbstractItemView::NoSelection;
        const bool hasKey = widget->window()->inherits("QProgressDialog"); // Escape cancels
        if (acts && !hasKey && !isPart && !isPicture && widget->isEnabled() && !isStop(widget))
            found << called(widget) + " is not reached by Tab";
    }
    return found;
}

/// Names that several things on the page have: who hears them can't tell which is meant.
inline QStringList ambiguous(QWidget& root) {
    QList<QWidget*> stops;
    appendInReadingOrder(&root, stops);
    QMap<QPair<int, QString>, int> names;
    for (QWidget* widget : qAsConst(stops))
        ++names[qMakePair(int(QAccessible::queryAccessibleInterface(widget)->role()), labelOf(widget))];
    QStringList found;
    for (auto name = names.begin(); name != names.end(); ++name) {
        if (*name > 1)
            found << QString("%1 things are named \"%2\"").arg(*name).arg(name.key().second);
    }
    return found;
}

/// Labels whose field does not know them.
inline QStringList loose(const QWidget& root) {
    QStringList found;
    for (QLabel* label : visible<QLabel>(root)) {
        if (label->buddy() || label->text().isEmpty() || qobject_cast<ResultLabel*>(label))
            continue;
        QWidget* nearest = nullptr; // on its right, in its line
        const QRect place(label->mapTo(label->window(), QPoint()), label->size());
        for (QWidget* other : label->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            const QRect there(other->mapTo(other->window(), QPoint()), other->size());
            const bool isBeside = other->isVisible() && there.left() >= place.right() &&
                                  qAbs(there.center().y() - place.center().y()) < place.height() / 2;
            if (isBeside && (!nearest || other->x() < nearest->x()))
                nearest = other;
        }
        const bool isField = nearest && (nearest->inherits("QLineEdit") || nearest->inherits("QComboBox") ||
                                         nearest->inherits("QAbstractSpinBox") || nearest->inherits("ResultLabel"));
        if (isField && !labelOf(nearest).startsWith(label->text().remove(':')))
            found << "label \"" + label->text() + "\" is no buddy of " + called(nearest);
    }
    return found;
}

inline QStringList broken(QWidget& root) {
    return nameless(QAccessible::queryAccessibleInterface(&root)) + namelessColumns(root) + unsaid(root) +
           unread(root) + unreachable(root) + ambiguous(root) + loose(root);
}

} // namespace PageRules

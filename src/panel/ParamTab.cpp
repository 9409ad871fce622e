#include "panel/ParamTab.h"

#include "panel/record/CoordParamEditor.h"

#include <QVector>

ParamTab::ParamTab(CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : QWidget(parent), paramEditor(editor), readOnly(readOnly) {
}

const IDictionary& ParamTab::record() const {
    return paramEditor.record();
}

void ParamTab::prepare() {
    if (isBuilt)
        return;
    build();
    keepInTabOrder();
    isBuilt = true;
}

void ParamTab::refresh() {
    stale = !isVisible();
    if (!stale)
        showRecord();
}

/// What is built after other tabs comes last in the window's tab order: moves it to where the tab stands.
void ParamTab::keepInTabOrder() {
    QVector<QWidget*> order;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if (isAncestorOf(widget) && widget->focusPolicy() != Qt::NoFocus)
            order.append(widget);
    }
    setFocusPolicy(Qt::TabFocus); // for setTabOrder() to know this widget's place
    QWidget* before = this;
    for (QWidget* widget : qAsConst(order)) {
        setTabOrder(before, widget);
        before = widget;
    }
    setFocusPolicy(Qt::NoFocus);
}

void ParamTab::showEvent(QShowEvent* event) {
    if (stale)
        refresh();
    QWidget::showEvent(event);
}

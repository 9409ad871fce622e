#include "panel/ParamTab.h"

#include "panel/record/CoordParamEditor.h"

ParamTab::ParamTab(CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : QWidget(parent), paramEditor(editor), readOnly(readOnly) {
}

const IDictionary& ParamTab::record() const {
    return paramEditor.record();
}

void ParamTab::refresh() {
    stale = !isVisible();
    if (!stale)
        showRecord();
}

void ParamTab::showEvent(QShowEvent* event) {
    if (stale)
        refresh();
    QWidget::showEvent(event);
}

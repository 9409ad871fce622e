#include "panel/DlgCoordParam.h"

#include "panel/CheckTab.h"
#include "panel/DatumShiftTab.h"
#include "panel/DefinitionTab.h"
#include "panel/EllipsoidTab.h"
#include "panel/HeightTab.h"
#include "panel/ParamTab.h"
#include "panel/ProjectionTab.h"

#include <QScrollArea>

DlgCoordParam::DlgCoordParam(ICoordSystem* coordSystem, QWidget* parent, bool readOnly) : QTabWidget(parent) {
    addParamTab(new EllipsoidTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new ProjectionTab(editor, readOnly, nullptr));
    addParamTab(new DatumShiftTab(editor, readOnly, nullptr));
    addParamTab(new HeightTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new CheckTab(editor, readOnly, nullptr));
    addParamTab(new DefinitionTab(editor, readOnly, nullptr));
}

DlgCoordParam::~DlgCoordParam() {
    // Before the record goes: a field that loses the keyboard on its way out still looks at it.
    while (count() > 0)
        delete widget(0);
}

void DlgCoordParam::setCoordParam(const IDictionary& record) {
    editor.setRecord(record);
    refreshTabs(nullptr);
}

QSize DlgCoordParam::sizeHint() const {
    // A splitter shares its width out by size hint times stretch factor. With a tree's hint for its own, the panel gets
    // the two thirds meant for it, whichever tab is the widest.
    constexpr int widthOfATree = 256;
    return {widthOfATree, QTabWidget::sizeHint().height()};
}

const IDictionary& DlgCoordParam::getMetaData() const {
    return editor.record();
}

void DlgCoordParam::addParamTab(ParamTab* tab) {
    tabs.append(tab);
    connect(tab, SIGNAL(recordEdited()), this, SLOT(_onRecordEdited()));
    connect(tab, SIGNAL(angleNotationChanged()), this, SLOT(_onAngleNotationChanged()));

    // Scrolls only where the window is too small for the tab.
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(tab);
    addTab(area, tab->title());
}

void DlgCoordParam::refreshTabs(const QObject* except) {
    for (ParamTab* tab : qAsConst(tabs)) {
        if (tab != except)
            tab->refresh();
    }
}

void DlgCoordParam::_onRecordEdited() {
    refreshTabs(sender());
    Q_EMIT dataChanged();
}

void DlgCoordParam::_onAngleNotationChanged() {
    refreshTabs(sender());
}

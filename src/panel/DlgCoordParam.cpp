#include "panel/DlgCoordParam.h"

#include "catalogue/CoordParamKey.h"
#include "panel/CheckTab.h"
#include "panel/DatumShiftTab.h"
#include "panel/DefinitionTab.h"
#include "panel/EllipsoidTab.h"
#include "panel/HeightTab.h"
#include "panel/ParamTab.h"
#include "panel/ProjectionTab.h"
#include "panel/SystemNameLine.h"

#include <QEvent>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

DlgCoordParam::DlgCoordParam(ICoordSystem* coordSystem, QWidget* parent, bool readOnly) : QTabWidget(parent) {
    addParamTab(new EllipsoidTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new ProjectionTab(editor, readOnly, nullptr));
    addParamTab(new DatumShiftTab(editor, readOnly, nullptr));
    addParamTab(new HeightTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new CheckTab(editor, readOnly, nullptr));
    addParamTab(new DefinitionTab(editor, readOnly, nullptr));
    showName();
}

DlgCoordParam::~DlgCoordParam() {
    // Before the record goes: a field that loses the keyboard on its way out still looks at it.
    while (count() > 0)
        delete widget(0);
}

void DlgCoordParam::setCoordParam(const IDictionary& record) {
    editor.setRecord(record);
    refreshTabs(nullptr);
    showName();
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
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(tab);
    // A scroll area would paint a background of its own, which differs from the page's.
    area->viewport()->setAutoFillBackground(false);
    tab->setAutoFillBackground(false);

    nameLines.append(new SystemNameLine);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(nameLines.last());
    layout->addWidget(area, 1);
    layout->setSpacing(0);
    // The tab below has margins of its own; the name stands where its content does.
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    layout->setContentsMargins(0, margin / 2, 0, 0);
    nameLines.last()->setContentsMargins(margin, 0, margin, 0);
    addTab(page, tab->title());
}

void DlgCoordParam::refreshTabs(const QObject* except) {
    for (ParamTab* tab : qAsConst(tabs)) {
        if (tab != except)
            tab->refresh();
    }
}

// Which system an edit goes into must be seen beside the field: the tree's current item can be another one.
void DlgCoordParam::showName() {
    const QString name = QString::fromLocal8Bit(editor.record().getValue(CoordParamKey::name));
    QString text = name.isEmpty() ? tr("No coordinate system") : name;
    if (!isEnabled())
        text = tr("%1 – choose a coordinate system in the tree").arg(text);
    for (SystemNameLine* line : qAsConst(nameLines))
        line->setText(text);
}

void DlgCoordParam::changeEvent(QEvent* event) {
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        showName();
}

void DlgCoordParam::_onRecordEdited() {
    refreshTabs(sender());
    Q_EMIT dataChanged();
}

void DlgCoordParam::_onAngleNotationChanged() {
    refreshTabs(sender());
}

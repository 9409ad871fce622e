#include "panel/DlgCoordParam.h"

#include "catalogue/CoordParamKey.h"
#include "panel/CheckTab.h"
#include "panel/DatumShiftTab.h"
#include "panel/DefinitionTab.h"
#include "panel/EllipsoidTab.h"
#include "panel/HeightTab.h"
#include "panel/ParamTab.h"
#include "panel/ProjectionTab.h"
#include "panel/field/ScreenReader.h"
#include "panel/field/SystemNameLine.h"
#include "platform/projection/IProjectionModule.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// What the tab widget turns to. Its tab is built before the page is shown, so that it is never seen without its
/// fields.
class Page : public QWidget {
public:
    explicit Page(ParamTab* tab) : tab(tab) {}

    void setVisible(bool visible) override {
        if (visible)
            tab->prepare();
        QWidget::setVisible(visible);
    }

private:
    ParamTab* tab;
};

} // namespace

DlgCoordParam::DlgCoordParam(ICoordSystem* coordSystem, QWidget* parent, bool readOnly)
    : QTabWidget(parent), readOnly(readOnly) {
    ScreenReader::introduceWidgets();
    addHeader();
    addParamTab(new EllipsoidTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new ProjectionTab(editor, readOnly, nullptr));
    addParamTab(new DatumShiftTab(editor, readOnly, nullptr));
    addParamTab(new HeightTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new CheckTab(coordSystem, editor, readOnly, nullptr));
    addParamTab(new DefinitionTab(coordSystem, editor, readOnly, nullptr));
    connect(this, SIGNAL(currentChanged(int)), this, SLOT(_onPageChanged()));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(_onFocusChanged(QWidget*, QWidget*)));
    _onPageChanged();
    showHeader();
    tabBar()->installEventFilter(this);
}

DlgCoordParam::~DlgCoordParam() {
    // Before the record goes: a field that loses the keyboard on its way out still looks at it. The header goes with
    // the page that it stands on; that one last, or the next would come to the front.
    disconnect(SIGNAL(currentChanged(int)), this);
    while (count() > 1)
        delete widget(currentIndex() == 0 ? 1 : 0);
    delete widget(0);
}

void DlgCoordParam::setCoordParam(const IDictionary& record) {
    editor.setRecord(record);
    hasRecord = true;
    refreshTabs(nullptr);
    showHeader();
}

QSize DlgCoordParam::sizeHint() const {
    // A splitter shares its width out by size hint times stretch factor. With a tree's hint for its own, the panel gets
    // the two thirds meant for it, whichever tab is the widest. Where the tab bar needs more than that of the smallest
    // window (a large font, long translations), the panel gets what the bar needs: scrolled away, a tab is not found.
    constexpr int widthOfATree = 256;
    constexpr int widthOfBoth = 770;
    const int ofBar = std::min(tabBar()->sizeHint().width() + 10, widthOfBoth * 5 / 6);
    const int width = widthOfATree * ofBar / (widthOfBoth - ofBar) / 2;
    // As high as the longest form, which may not be built yet: Qt lets a scroll area ask for this much at the most.
    const int page = header->sizeHint().height() + 24 * fontMetrics().height();
    return {std::max(widthOfATree, width), tabBar()->sizeHint().height() + page};
}

const IDictionary& DlgCoordParam::getMetaData() const {
    return editor.record();
}

void DlgCoordParam::addHeader() {
    header = new QWidget(this);
    nameLine = new SystemNameLine;
    backButton = new QPushButton;
    backButton->setFixedHeight(backButton->fontMetrics().height() + 6); // so that the longest form fits its window
    connect(backButton, SIGNAL(clicked()), this, SLOT(_onBack()));
    auto* layout = new QHBoxLayout(header);
    // The tab below has margins of its own; the name stands where its content does.
    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    layout->setContentsMargins(margin, margin / 4, margin, 0);
    layout->addWidget(nameLine, 1);
    layout->addWidget(backButton);
    layout->addStrut(backButton->height()); // also while the button makes room for what is to be done
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

    auto* page = new Page(tab);
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area, 1);
    addTab(page, tab->title());
}

void DlgCoordParam::refreshTabs(const QObject* except) {
    for (ParamTab* tab : qAsConst(tabs)) {
        if (tab != except)
            tab->refresh();
    }
}

// Which system an edit goes into must be seen beside the field: the tree's current item can be another one.
void DlgCoordParam::showHeader() {
    const QString name = QString::fromLocal8Bit(editor.record().getValue(CoordParamKey::name));
    const QString text = name.isEmpty() ? tr("No coordinate system") : name;
    const bool takesEdits = hasRecord && isEnabled();
    nameLine->setText(takesEdits ? text : tr("%1 – choose a coordinate system in the tree").arg(text));
    for (ParamTab* tab : qAsConst(tabs))
        tab->setEnabled(hasRecord);
    const bool isForward = editor.canGoForward();
    backButton->setVisible(takesEdits && !readOnly);
    backButton->setText(isForward ? tr("Forward to the edited values") : tr("Back to the values before"));
    backButton->setEnabled(isForward || editor.canGoBack());
}

void DlgCoordParam::changeEvent(QEvent* event) {
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        showHeader();
}

bool DlgCoordParam::eventFilter(QObject* object, QEvent* event) {
    // Who reaches for the tabs may turn to one that computes.
    if (object == tabBar() && (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn))
        prepareProjectionModule();
    return QTabWidget::eventFilter(object, event);
}

void DlgCoordParam::_onRecordEdited() {
    refreshTabs(sender());
    showHeader();
    Q_EMIT dataChanged();
}

void DlgCoordParam::_onAngleNotationChanged() {
    refreshTabs(sender());
}

void DlgCoordParam::_onBack() {
    if (editor.canGoForward())
        editor.goForward();
    else
        editor.goBack();
    _onRecordEdited();
}

void DlgCoordParam::_onPageChanged() {
    if (!currentWidget())
        return;
    static_cast<QBoxLayout*>(currentWidget()->layout())->insertWidget(0, header);
    header->show();
}

// A button that greys itself when it has been pressed ("Save", "Take over") hands the keyboard on to its neighbour,
// which the next key would press. It goes back to where it was instead.
void DlgCoordParam::_onFocusChanged(QWidget* old, QWidget* now) {
    const bool isGreyed = old && now && old->window() == window() && old->isVisible() && !old->isEnabled();
    if (isGreyed && keyboardBefore && keyboardBefore->isVisible() && keyboardBefore->isEnabled())
        keyboardBefore->setFocus(Qt::OtherFocusReason);
    else if (old)
        keyboardBefore = old;
}

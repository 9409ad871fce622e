#include "panel/CheckTab.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/IDictionary.h"
#include "panel/check/CheckPointPane.h"
#include "panel/check/DistortionPane.h"
#include "panel/computing/DistortionLines.h"
#include "panel/field/AngleNotationBox.h"
#include "panel/field/MessageLine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DefinitionState.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IProjectionModule.h"

#include <QTabWidget>
#include <QVBoxLayout>

CheckTab::CheckTab(CoordParamEditor& editor, bool readOnly, QWidget* parent) : ParamTab(editor, readOnly, parent) {
}

CheckTab::~CheckTab() = default;

QString CheckTab::title() const {
    return PanelText::tr("Check");
}

void CheckTab::build() {
    problemLine = new MessageLine;
    pages = new QTabWidget;
    pages->setDocumentMode(true);
    pointPane = new CheckPointPane;
    pages->addTab(pointPane, PanelText::tr("Point"));
    distortionPane = new DistortionPane(isReadOnly());
    pages->addTab(distortionPane, PanelText::tr("Distortion"));
    connect(pages, SIGNAL(currentChanged(int)), this, SLOT(_onPageChanged()));
    connect(distortionPane, SIGNAL(proposalAccepted()), this, SLOT(_onProposalAccepted()));

    notationBox = new AngleNotationBox;
    notationBox->setAccessibleName(PanelText::tr("Show angles in"));
    notationBox->setToolTip(notationBox->accessibleName());
    pages->setCornerWidget(notationBox);
    connect(notationBox, SIGNAL(notationChosen()), this, SLOT(_onNotationChosen()));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(problemLine);
    layout->addWidget(pages, 1);
}

void CheckTab::showRecord() {
    if (!pages)
        build();
    const DefinitionState state = DefinitionState::of(record());
    if (state.definition.isEmpty())
        system.reset();
    else if (state.definition != definition)
        system = projectionModule()->createSystem(state.definition);
    definition = state.definition;
    problemLine->setMessage(state.problem, MessageLine::Tone::Error);
    problemLine->setVisible(!state.problem.isEmpty());
    pages->setEnabled(system != nullptr);
    notationBox->showNotation();
    showSystem();
}

void CheckTab::showSystem() {
    pointPane->setSystem(system.get(), DistortionLines::origin(record()),
                         QString::fromLocal8Bit(record().getValue(CoordParamKey::name)));
    pointPane->showNotation();
    distortionPane->setSystem(&record(), system.get(), pointPane->place());
}

void CheckTab::_onPageChanged() {
    distortionPane->setCheckedPlace(pointPane->place());
}

void CheckTab::_onProposalAccepted() {
    const auto proposal = distortionPane->proposal();
    if (!proposal)
        return;
    proposal->apply(editor());
    showRecord();
    recordChanged();
}

void CheckTab::_onNotationChosen() {
    pointPane->showNotation();
    Q_EMIT angleNotationChanged();
}

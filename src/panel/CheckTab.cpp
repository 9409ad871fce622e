#include "panel/CheckTab.h"

#include "catalogue/DictionaryGuard.h"
#include "panel/check/CatalogueDialog.h"
#include "panel/check/CheckPointPane.h"
#include "panel/check/ComparePane.h"
#include "panel/check/DistortionPane.h"
#include "panel/check/PointsPane.h"
#include "panel/computing/FitToPoints.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/AngleNotationBox.h"
#include "panel/field/LengthUnitBox.h"
#include "panel/field/MessageLine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/PanelText.h"
#include "panel/registry/RegistryDialog.h"
#include "platform/projection/IProjectionModule.h"

#include <QHBoxLayout>
#include <QTabWidget>
#include <QVBoxLayout>

CheckTab::CheckTab(ICoordSystem* catalogue, CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent), catalogue(catalogue) {
}

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
    pointsPane = new PointsPane(isReadOnly());
    pages->addTab(pointsPane, PanelText::tr("Points"));
    comparePane = new ComparePane;
    pages->addTab(comparePane, PanelText::tr("Compare"));
    connect(pages, SIGNAL(currentChanged(int)), this, SLOT(_onPageChanged()));
    connect(distortionPane, SIGNAL(proposalAccepted()), this, SLOT(_onProposalAccepted()));
    connect(pointsPane, SIGNAL(fitAccepted()), this, SLOT(_onFitAccepted()));
    connect(comparePane, SIGNAL(catalogueWanted()), this, SLOT(_onCatalogueWanted()));
    connect(comparePane, SIGNAL(registryWanted()), this, SLOT(_onRegistryWanted()));

    notationBox = new AngleNotationBox;
    notationBox->setAccessibleName(PanelText::tr("Show angles in"));
    notationBox->setToolTip(notationBox->accessibleName());
    unitBox = new LengthUnitBox;
    connect(notationBox, SIGNAL(notationChosen()), this, SLOT(_onNotationChosen()));
    connect(unitBox, SIGNAL(unitChosen()), this, SLOT(_onUnitChosen()));

    auto* layout = new QVBoxLayout(this);
    auto* shownIn = new QHBoxLayout;
    shownIn->addStretch();
    shownIn->addWidget(unitBox);
    shownIn->addWidget(notationBox);
    layout->setSpacing(2);
    layout->addWidget(problemLine);
    layout->addLayout(shownIn);
    layout->addWidget(pages, 1);
}

void CheckTab::showRecord() {
    system = ShownSystem::of(record(), system.get());
    pointPane->setSystem(system);
    pointPane->showNotation();
    distortionPane->setSystem(system, pointPane->place());
    distortionPane->showUnits();
    comparePane->setSystem(system, pointPane->place());
    pointsPane->setSystem(system);
    pointsPane->showNotation();
    problemLine->setMessage(system->problem(), MessageLine::Tone::Error);
    problemLine->setVisible(!system->problem().isEmpty());
    pages->setEnabled(system->projection() != nullptr);
    notationBox->showNotation();
    unitBox->showUnit();
}

void CheckTab::_onPageChanged() {
    distortionPane->setCheckedPlace(pointPane->place());
    comparePane->setCheckedPlace(pointPane->place());
}

void CheckTab::_onProposalAccepted() {
    const auto proposal = distortionPane->proposal();
    if (!proposal)
        return;
    pointPane->keepPlace();
    proposal->apply(editor());
    showRecord();
    recordChanged();
}

void CheckTab::_onFitAccepted() {
    const FitToPoints fit = pointsPane->fit(); // the box will show another
    pointPane->keepPlace();
    fit.apply(editor());
    showRecord();
    recordChanged();
}

void CheckTab::_onNotationChosen() {
    pointPane->showNotation();
    pointsPane->showNotation();
    Q_EMIT angleNotationChanged();
}

void CheckTab::_onUnitChosen() {
    distortionPane->showUnits();
    comparePane->showUnits();
    pointPane->showNotation();
    pointsPane->showNotation();
}

void CheckTab::_onCatalogueWanted() {
    CatalogueDialog dialog(*catalogue, this);
    const DictionaryGuard chosen;
    if (dialog.exec() == QDialog::Accepted && dialog.write(chosen.get()))
        comparePane->setOther(*chosen, dialog.systemName());
}

void CheckTab::_onRegistryWanted() {
    IProjectionModule* const module = projectionModule();
    if (!module)
        return;
    RegistryDialog dialog(*module, catalogue, this);
    const DictionaryGuard chosen;
    if (dialog.exec() == QDialog::Accepted && dialog.write(chosen.get()))
        comparePane->setOther(*chosen, dialog.systemName());
}

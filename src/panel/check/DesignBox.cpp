#include "panel/check/DesignBox.h"

#include "panel/field/ChoiceBox.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/ParamField.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// "-12.3 to 4.5", without a minus before zeros.
QString rangeText(const DesignProposal::Distortion& distortion) {
    const auto text = [](double ppm) { return QString::number(std::round(ppm * 10.0) / 10.0 + 0.0, 'f', 1); };
    return PanelText::tr("%1 to %2").arg(text(distortion.smallest), text(distortion.largest));
}

QString changeText(const DesignProposal::Change& change) {
    const QString unit = change.field->isAngle() ? QStringLiteral("°") : QString();
    return PanelText::named(change.field->labelText(), NumberText::shortest(change.before) + unit + " → " +
                                                           NumberText::shortest(change.after) + unit);
}

} // namespace

DesignBox::DesignBox(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , readOnly(readOnly)
    , goalBox(new ChoiceBox)
    , lineBox(new QCheckBox)
    , changesLabel(new QLabel)
    , effectLabel(new QLabel)
    , acceptButton(new QPushButton(PanelText::tr("Take over"))) {
    goalBox->addItem(PanelText::tr("For this area"));
    goalBox->addItem(PanelText::tr("For the point"));
    goalBox->setAccessibleName(PanelText::tr("Least distortion"));
    goalBox->setToolTip(
        PanelText::tr("Where the largest distortion at that height is to be smallest: in the square on the "
                      "map, or at the checked point."));
    changesLabel->setWordWrap(true);
    effectLabel->setWordWrap(true);
    goalBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    goalBox->setMinimumContentsLength(6);
    goalBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* title = new QLabel(PanelText::tr("Design"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setBuddy(goalBox);
    auto* goal = new QHBoxLayout;
    goal->addWidget(title);
    goal->addWidget(goalBox, 1);
    goal->addWidget(lineBox);
    goal->addWidget(acceptButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(goal);
    layout->addWidget(changesLabel);
    layout->addWidget(effectLabel);
    connect(goalBox, SIGNAL(currentIndexChanged(int)), this, SIGNAL(goalChanged()));
    connect(lineBox, SIGNAL(toggled(bool)), this, SIGNAL(goalChanged()));
    connect(acceptButton, SIGNAL(clicked()), this, SLOT(_onAcceptClicked()));
}

bool DesignBox::isForPoint() const {
    return goalBox->currentIndex() == 1;
}

bool DesignBox::placesLine() const {
    return lineBox->isChecked();
}

void DesignBox::showProposal(bool possible, const ParamField* line, const std::optional<DesignProposal>& proposal) {
    goalBox->setEnabled(possible);
    lineBox->setVisible(line != nullptr);
    if (line)
        lineBox->setText(line->quantity == Quantity::Longitude ? PanelText::tr("Move the meridian")
                                                               : PanelText::tr("Move the parallel"));
    acceptButton->setEnabled(!readOnly && proposal && !proposal->changes().isEmpty());
    if (!proposal) {
        changesLabel->setText(possible ? PanelText::tr("There is nothing to propose here.")
                                       : PanelText::tr("This system has no scale factor to choose."));
        effectLabel->clear();
        return;
    }
    QStringList changes;
    for (const DesignProposal::Change& change : proposal->changes())
        changes.append(changeText(change));
    changesLabel->setText(changes.isEmpty() ? PanelText::tr("The system is as good as it can be here.")
                                            : changes.join(",  "));
    effectLabel->setText(
        PanelText::tr("Distortion in ppm: %1 → %2").arg(rangeText(proposal->before()), rangeText(proposal->after())));
}

void DesignBox::clear() {
    goalBox->setEnabled(false);
    lineBox->setVisible(false);
    acceptButton->setEnabled(false);
    changesLabel->clear();
    effectLabel->clear();
}

/// The keyboard stays beside the button, which has nothing more to take over then.
void DesignBox::_onAcceptClicked() {
    if (acceptButton->hasFocus())
        goalBox->setFocus();
    Q_EMIT accepted();
}

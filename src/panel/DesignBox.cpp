#include "panel/DesignBox.h"

#include "panel/ChoiceBox.h"
#include "panel/DlgCoordParam.h"
#include "panel/NumberText.h"
#include "panel/ParamField.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// "-12.3 to 4.5", without a minus before zeros.
QString rangeText(const DesignProposal::Range& range) {
    const auto text = [](double ppm) { return QString::number(std::round(ppm * 10.0) / 10.0 + 0.0, 'f', 1); };
    return DlgCoordParam::tr("%1 to %2").arg(text(range.smallest), text(range.largest));
}

QString changeText(const DesignProposal::Change& change) {
    const QString unit = change.field->isAngle() ? QStringLiteral("°") : QString();
    return change.field->labelText() + ": " + NumberText::shortest(change.before) + unit + " → " +
           NumberText::shortest(change.after) + unit;
}

} // namespace

DesignBox::DesignBox(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , readOnly(readOnly)
    , goalBox(new ChoiceBox)
    , lineBox(new QCheckBox)
    , changesLabel(new QLabel)
    , effectLabel(new QLabel)
    , acceptButton(new QPushButton(DlgCoordParam::tr("Take over"))) {
    goalBox->addItem(DlgCoordParam::tr("For this area"));
    goalBox->addItem(DlgCoordParam::tr("For the checked point"));
    goalBox->setAccessibleName(DlgCoordParam::tr("Least distortion"));
    goalBox->setToolTip(DlgCoordParam::tr("Where the largest distortion at the mean height is to be smallest."));
    changesLabel->setWordWrap(true);
    effectLabel->setWordWrap(true);
    goalBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    goalBox->setMinimumContentsLength(6);
    goalBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* title = new QLabel(DlgCoordParam::tr("Design"));
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
    connect(acceptButton, SIGNAL(clicked()), this, SIGNAL(accepted()));
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
        lineBox->setText(line->quantity == Quantity::Longitude ? DlgCoordParam::tr("Move the meridian")
                                                               : DlgCoordParam::tr("Move the parallel"));
    acceptButton->setEnabled(!readOnly && proposal && !proposal->changes().isEmpty());
    if (!proposal) {
        changesLabel->setText(possible ? DlgCoordParam::tr("There is nothing to propose here.")
                                       : DlgCoordParam::tr("This system has no scale factor to choose."));
        effectLabel->clear();
        return;
    }
    QStringList changes;
    for (const DesignProposal::Change& change : proposal->changes())
        changes.append(changeText(change));
    changesLabel->setText(changes.isEmpty() ? DlgCoordParam::tr("The system is as good as it can be here.")
                                            : changes.join(",  "));
    effectLabel->setText(DlgCoordParam::tr("Distortion in ppm: %1 → %2")
                             .arg(rangeText(proposal->before()), rangeText(proposal->after())));
}

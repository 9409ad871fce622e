#include "panel/check/FitBox.h"

#include "panel/computing/DesignProposal.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/MessageLine.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/ParamField.h"
#include "platform/projection/IProjectionModule.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// "False easting: 500000 → 500012.3456 ± 0.0021 m"
QString changeText(const FitToPoints::Change& change) {
    const bool isFactor = change.field->quantity == Quantity::ScaleFactor;
    const int decimals = change.field->isAngle() ? 8 : isFactor ? 9 : 4;
    QString text = change.field->labelText() + ": " + NumberText::shortest(change.before) + " → " +
                   NumberText::shortest(change.after);
    if (!std::isnan(change.deviation))
        text += " ± " + NumberText::rounded(change.deviation, decimals);
    return text + (change.field->isAngle() ? "°" : isFactor ? "" : " m");
}

double largest(const QVector<GridPoint>& residuals) {
    double length = 0.0;
    for (const GridPoint& residual : residuals)
        length = std::max(length, std::hypot(residual.easting, residual.northing));
    return length;
}

QString metres(double length) {
    return QString::number(length, 'f', 4);
}

} // namespace

FitBox::FitBox(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , readOnly(readOnly)
    , eastingBox(new QCheckBox(PanelText::tr("False easting")))
    , northingBox(new QCheckBox(PanelText::tr("False northing")))
    , factorBox(new QCheckBox(PanelText::tr("Scale factor")))
    , lineBox(new QCheckBox)
    , changesLabel(new QLabel)
    , effectLabel(new QLabel)
    , diagnosisLabel(new QLabel)
    , acceptButton(new QPushButton(PanelText::tr("Take over"))) {
    auto* title = new QLabel(PanelText::tr("Fit"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setToolTip(PanelText::tr("What would meet the points best; what is not ticked is held."));
    auto* choices = new QHBoxLayout;
    choices->addWidget(title);
    for (QCheckBox* box : {eastingBox, northingBox, factorBox, lineBox}) {
        box->setChecked(box != lineBox);
        choices->addWidget(box);
        connect(box, SIGNAL(toggled(bool)), this, SLOT(_onChoiceChanged()));
    }
    choices->addStretch(1);
    choices->addWidget(acceptButton);
    connect(acceptButton, SIGNAL(clicked()), this, SLOT(_onAcceptClicked()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(choices);
    changesLabel->setAccessibleName(PanelText::tr("Fitted values"));
    effectLabel->setAccessibleName(PanelText::tr("Before and after"));
    diagnosisLabel->setAccessibleName(PanelText::tr("Diagnosis"));
    for (QLabel* label : {changesLabel, effectLabel, diagnosisLabel}) {
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, MessageLine::textColor(*this, MessageLine::Tone::Warning));
    diagnosisLabel->setPalette(colours);
}

void FitBox::setPoints(const std::shared_ptr<const ShownSystem>& shown, const QVector<KnownPoint>& known) {
    system = shown;
    points = known;
    showFit();
}

void FitBox::showFit() {
    const bool isSystem = system && system->projection();
    setEnabled(isSystem);
    result = FitToPoints();
    if (isSystem) {
        const ParamField* const line = DesignProposal::lineField(system->record());
        lineBox->setVisible(line != nullptr);
        if (line)
            lineBox->setText(line->labelText());
        factorBox->setEnabled(DesignProposal::isPossible(system->record()));
        result = FitToPoints::solve(
            system->record(), *projectionModule(), points,
            {eastingBox->isChecked(), northingBox->isChecked(), factorBox->isChecked(), lineBox->isChecked()});
    }
    QStringList changes;
    bool isOther = false;
    for (const FitToPoints::Change& change : result.changes()) {
        changes.append(changeText(change));
        isOther = isOther || change.after != change.before;
    }
    changesLabel->setText(result.problem().isEmpty() ? changes.join(",  ") : result.problem());
    effectLabel->setText(effectText());
    diagnosisLabel->setText(result.diagnosis());
    diagnosisLabel->setVisible(!result.diagnosis().isEmpty());
    acceptButton->setEnabled(!readOnly && isOther);
}

QString FitBox::effectText() const {
    if (result.residualsBefore().isEmpty())
        return QString();
    QStringList parts{PanelText::tr("RMS %1 → %2 m, largest %3 → %4 m.")
                          .arg(metres(FitToPoints::rms(result.residualsBefore())),
                               metres(FitToPoints::rms(result.residualsAfter())),
                               metres(largest(result.residualsBefore())), metres(largest(result.residualsAfter())))};
    if (const auto& remains = result.remainder()) {
        const bool isLarge = std::abs(remains->rotation) > 0.1;
        const double unit = isLarge ? 1.0 : 3600.0;
        parts << PanelText::tr("Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.")
                     .arg(NumberText::rounded(remains->rotation * unit, isLarge ? 4 : 2),
                          NumberText::rounded(remains->rotationDeviation * unit, isLarge ? 4 : 2),
                          isLarge ? QStringLiteral("°") : QStringLiteral("\""), NumberText::rounded(remains->scale, 2),
                          NumberText::rounded(remains->scaleDeviation, 2));
    }
    return parts.join(' ');
}

void FitBox::_onChoiceChanged() {
    showFit();
}

/// The keyboard stays beside the button, which has nothing more to take over then.
void FitBox::_onAcceptClicked() {
    if (acceptButton->hasFocus())
        eastingBox->setFocus();
    Q_EMIT accepted();
}

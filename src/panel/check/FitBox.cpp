#include "panel/check/FitBox.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/computing/DesignProposal.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/Colours.h"
#include "panel/field/ResultLabel.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/ProjectionFields.h"
#include "platform/projection/IProjectionModule.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

namespace Key = CoordParamKey;

/// A value of the record with its unit; lengths in the one chosen now.
QString valueText(const ParamField& field, double value) {
    if (field.isAngle())
        return NumberText::shortest(value) + "°";
    if (field.quantity == Quantity::ScaleFactor)
        return NumberText::shortest(value);
    // A record's own digits are metres.
    return (LengthUnit::chosen() == LengthUnit::Metre ? NumberText::shortest(value) : LengthUnit::text(value)) + ' ' +
           LengthUnit::symbol();
}

/// " ± 0.0021", where there is a standard deviation.
QString deviationText(const ParamField& field, double deviation) {
    if (std::isnan(deviation))
        return QString();
    const bool isFactor = field.quantity == Quantity::ScaleFactor;
    const double unit = field.isAngle() || isFactor ? 1.0 : LengthUnit::metres();
    return " ± " + NumberText::rounded(deviation / unit, field.isAngle() ? 8 : isFactor ? 9 : 4);
}

/// A text of any length in a column that keeps its width.
void setText(QLabel* label, const QString& text) {
    label->setText(text);
    label->setToolTip(text);
}

/// Of a whole system's size, what is behind the point tells nothing.
QString misfitText(double metres) {
    constexpr double large = 10000.0;
    return metres < large ? LengthUnit::text(metres) : QString::number(metres / LengthUnit::metres(), 'f', 0);
}

/// "0.0093, 1.3057": the root mean square, and the largest.
QString misfitText(const QVector<GridPoint>& residuals) {
    double largest = 0.0;
    for (const GridPoint& residual : residuals)
        largest = std::max(largest, std::hypot(residual.easting, residual.northing));
    return residuals.isEmpty() ? QString() : misfitText(FitToPoints::rms(residuals)) + ", " + misfitText(largest);
}

} // namespace

FitBox::FitBox(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , readOnly(readOnly)
    , misfitBefore(new ResultLabel(PanelText::tr("Misfit before")))
    , misfitAfter(new ResultLabel(PanelText::tr("Misfit after")))
    , problemLabel(new ResultLabel(PanelText::tr("Problem")))
    , remainderLabel(new ResultLabel(PanelText::tr("Remainder")))
    , diagnosisLabel(new ResultLabel(PanelText::tr("Diagnosis")))
    , acceptButton(new QPushButton(PanelText::tr("Take over"))) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    auto* grid = new QGridLayout;
    layout->addLayout(grid);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(8);
    grid->setColumnStretch(2, 1);
    auto* title = new QLabel(PanelText::tr("Fit"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setToolTip(PanelText::tr("What would meet the points best; what is not ticked is held."));
    grid->addWidget(title, 0, 0);
    grid->addWidget(new QLabel(PanelText::tr("before")), 0, 1, Qt::AlignRight);
    grid->addWidget(new QLabel(PanelText::tr("after ± standard deviation")), 0, 2);
    buildRow(grid, Line, QString());
    buildRow(grid, Factor, PanelText::tr("Scale factor"));
    buildRow(grid, East, PanelText::tr("False easting"));
    buildRow(grid, North, PanelText::tr("False northing"));
    values[Line].box->setChecked(false);
    constexpr int row = ValueCount + 1;
    auto* misfitLabel = new QLabel(PanelText::tr("RMS, largest"));
    misfitLabel->setBuddy(misfitBefore);
    auto* before = new QHBoxLayout; // its two figures need more room than the one above them, its title less
    before->setSpacing(grid->horizontalSpacing());
    before->addWidget(misfitLabel);
    before->addStretch(1);
    before->addWidget(misfitBefore);
    grid->addLayout(before, row, 0, 1, 2);
    grid->addWidget(misfitAfter, row, 2);
    misfitAfter->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* texts = new QVBoxLayout;
    for (QLabel* label : {problemLabel, remainderLabel, diagnosisLabel}) {
        label->setWordWrap(true);
        texts->addWidget(label);
    }
    auto* below = new QHBoxLayout;
    below->addLayout(texts, 1);
    below->addWidget(acceptButton, 0, Qt::AlignTop);
    layout->addLayout(below);
    connect(acceptButton, SIGNAL(clicked()), this, SLOT(_onAcceptClicked()));
}

void FitBox::buildRow(QGridLayout* grid, Value value, const QString& title) {
    Row& row = values[value];
    row = {new QCheckBox(title), new ResultLabel, new ResultLabel};
    row.box->setChecked(true);
    row.after->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(row.box, value + 1, 0);
    grid->addWidget(row.before, value + 1, 1, Qt::AlignRight);
    grid->addWidget(row.after, value + 1, 2);
    connect(row.box, SIGNAL(toggled(bool)), this, SLOT(_onChoiceChanged()));
}

void FitBox::setPoints(const std::shared_ptr<const ShownSystem>& shown, const QVector<KnownPoint>& known) {
    system = shown;
    points = known;
    showFit();
}

bool FitBox::isChosen(Value value) const {
    return values[value].box->isChecked();
}

std::vector<GridPoint> FitBox::residuals(std::size_t rows) const {
    if (result.residualsAfter().isEmpty())
        return {};
    std::vector<GridPoint> left(rows, GridPoint{std::nan(""), std::nan("")});
    for (int i = 0; i < points.size(); ++i) {
        if (points[i].row < rows)
            left[points[i].row] = result.residualsAfter()[i];
    }
    return left;
}

void FitBox::showFit() {
    QPalette colours;
    colours.setColor(QPalette::WindowText, Colours::warning(colours));
    for (QLabel* label : {problemLabel, diagnosisLabel})
        label->setPalette(colours);
    const bool isSystem = system && system->projection();
    setEnabled(isSystem);
    result = isSystem ? FitToPoints::solve(system->record(), *projectionModule(), points,
                                           {isChosen(East), isChosen(North), isChosen(Factor), isChosen(Line)})
                      : FitToPoints();
    showValues();
    bool isOther = false;
    for (const FitToPoints::Change& change : result.changes())
        isOther = isOther || change.after != change.before;
    acceptButton->setEnabled(!readOnly && isOther);
    misfitBefore->setText(misfitText(result.residualsBefore()));
    setText(misfitAfter, misfitText(result.residualsAfter()) +
                             (result.residualsAfter().isEmpty() ? QString() : ' ' + LengthUnit::symbol()));
    const std::pair<QLabel*, QString> texts[] = {
        {problemLabel, result.problem()}, {remainderLabel, remainderText()}, {diagnosisLabel, result.diagnosis()}};
    for (const auto& [label, text] : texts) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
    Q_EMIT fitChanged();
}

/// Also those that are held, with the record's value alone.
void FitBox::showValues() {
    if (!system || !system->projection())
        return;
    const IDictionary& record = system->record();
    const ProjectionFields& method = *ProjectionFields::ofRecord(record);
    const ParamField* fields[ValueCount];
    fields[Line] = DesignProposal::lineField(record);
    fields[Factor] = DesignProposal::isPossible(record) ? method.field(Key::factor) : nullptr;
    fields[East] = method.field(Key::falseEast);
    fields[North] = method.field(Key::falseNorth);
    if (fields[Line])
        values[Line].box->setText(fields[Line]->labelText());
    for (std::size_t i = 0; i < ValueCount; ++i) {
        const ParamField* const field = fields[i];
        const Row& row = values[i];
        for (QWidget* widget :
             {static_cast<QWidget*>(row.box), static_cast<QWidget*>(row.before), static_cast<QWidget*>(row.after)})
            widget->setVisible(field != nullptr);
        if (!field)
            continue;
        row.before->setAccessibleName(PanelText::tr("%1 before").arg(row.box->text()));
        row.after->setAccessibleName(PanelText::tr("%1 after").arg(row.box->text()));
        row.before->setText(valueText(*field, dictionary_number(record, field->key, 0.0)));
        setText(row.after, QString());
        for (const FitToPoints::Change& change : result.changes()) {
            if (change.field == field)
                setText(row.after, valueText(*field, change.after) + deviationText(*field, change.deviation));
        }
    }
}

QString FitBox::remainderText() const {
    const auto& remains = result.remainder();
    if (!remains)
        return QString();
    const bool isLarge = std::abs(remains->rotation) > 0.1;
    const double unit = isLarge ? 1.0 : 3600.0;
    const int decimals = isLarge ? 4 : 2;
    return PanelText::tr("Against the ground remain a rotation of %1 ± %2%3 and a scale of %4 ± %5 ppm.")
        .arg(NumberText::rounded(remains->rotation * unit, decimals),
             NumberText::rounded(remains->rotationDeviation * unit, decimals),
             isLarge ? QStringLiteral("°") : QStringLiteral("\""), NumberText::rounded(remains->scale, 2),
             NumberText::rounded(remains->scaleDeviation, 2));
}

void FitBox::_onChoiceChanged() {
    showFit();
}

/// The keyboard stays beside the button, which has nothing more to take over then.
void FitBox::_onAcceptClicked() {
    if (acceptButton->hasFocus())
        values[East].box->setFocus();
    Q_EMIT accepted();
}

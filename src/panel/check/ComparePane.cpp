#include "panel/check/ComparePane.h"

#include "panel/check/AreaBox.h"
#include "panel/check/AreaPlot.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/MessageLine.h"
#include "panel/field/ResultLabel.h"
#include "panel/field/SystemNameLine.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr int areaNodes = 15;   ///< on each side, for the mean
constexpr int mapNodes = 10000; ///< at most, for a large window: five computations at each

/// What differences up to `largest` metres are shown in: millimetres below a metre.
struct DifferenceUnit {
    explicit DifferenceUnit(double largest) {
        const bool isMetric = LengthUnit::chosen() == LengthUnit::Metre;
        const bool isSmall = isMetric && largest < 1.0;
        symbol = isSmall ? "mm" : LengthUnit::symbol();
        metres = isSmall ? 0.001 : LengthUnit::metres();
        decimals = isMetric ? 3 : 4;
    }

    QString text(double length) const {
        const double power = std::pow(10.0, decimals);
        const double rounded = std::round(length / metres * power) / power;
        return QString::number(rounded + 0.0, 'f', decimals) + ' ' + symbol; // no minus before zeros
    }

    QString symbol;
    double metres;
    int decimals;
};

/// As many nodes as the plot needs, in its shape, but no more than can be computed at once.
QSize nodesFor(const AreaPlot& plot) {
    const QSize needed = plot.nodeCount();
    const double part = std::sqrt(double(mapNodes) / std::max(mapNodes, needed.width() * needed.height()));
    return (QSizeF(needed) * part).toSize().expandedTo(QSize(2, 2));
}

} // namespace

ComparePane::ComparePane(QWidget* parent)
    : QWidget(parent)
    , nameLine(new SystemNameLine)
    , catalogueButton(new QPushButton(PanelText::tr("From catalogue...")))
    , registryButton(new QPushButton(PanelText::tr("From registry...")))
    , areaBox(new AreaBox)
    , shiftBox(new QCheckBox(PanelText::tr("With datum shifts")))
    , meanBox(new QCheckBox(PanelText::tr("Apart from the mean")))
    , remarkLine(new MessageLine)
    , plot(new AreaPlot(PanelText::tr("Picture of the difference"))) {
    shiftBox->setToolTip(PanelText::tr("The same place for both systems: through WGS 84 with both datum shifts, or "
                                       "else the same latitude and longitude."));
    meanBox->setToolTip(PanelText::tr("The map shows what is left of the difference without its mean over the area, "
                                      "as after another false easting and northing."));
    nameLine->setToolTip(PanelText::tr("The difference is easting and northing of the shown system minus those of the "
                                       "other one, at the same place on the ground."));
    nameLine->setText(PanelText::tr("Choose a system to compare with"));
    plot->setMinimumSize(260, 110);

    auto* choice = new QHBoxLayout;
    choice->addWidget(nameLine, 1);
    choice->addWidget(catalogueButton);
    choice->addWidget(registryButton);
    auto* settings = new QHBoxLayout;
    settings->addWidget(shiftBox);
    settings->addWidget(meanBox);
    settings->addStretch();
    auto* numbers = new QGridLayout;
    addResults(numbers);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 3, 0, 0);
    layout->setSpacing(3);
    layout->addLayout(choice);
    layout->addWidget(areaBox);
    layout->addLayout(settings);
    layout->addWidget(remarkLine);
    layout->addWidget(plot, 1);
    layout->addLayout(numbers);
    connect(catalogueButton, SIGNAL(clicked()), this, SIGNAL(catalogueWanted()));
    connect(registryButton, SIGNAL(clicked()), this, SIGNAL(registryWanted()));
    connect(areaBox, SIGNAL(areaChanged()), this, SLOT(_onSettingsChanged()));
    for (QCheckBox* box : {shiftBox, meanBox})
        connect(box, SIGNAL(toggled(bool)), this, SLOT(_onSettingsChanged()));
    connect(plot, SIGNAL(pointed(double, double)), this, SLOT(_onPointed(double, double)));
    connect(plot, SIGNAL(left()), this, SLOT(_onLeft()));
    connect(plot, SIGNAL(resized()), this, SLOT(_onSettingsChanged()));
}

void ComparePane::addResults(QGridLayout* grid) {
    const std::array<QString, ColumnCount> headings = {PanelText::tr("ΔE"), PanelText::tr("ΔN"),
                                                       PanelText::tr("Distance")};
    const std::array<QString, RowCount> names = {PanelText::tr("At the mouse"), PanelText::tr("Checked point"),
                                                 PanelText::tr("Mean"), PanelText::tr("Apart from it")};
    const std::array<QString, RowCount> explained = {
        QString(), PanelText::tr("The point of the page \"Point\"."), PanelText::tr("Over the black square."),
        PanelText::tr("What is left of the difference without its mean is no larger in the black square.")};
    grid->setVerticalSpacing(1);
    for (int column = 0; column < ColumnCount; ++column) {
        grid->addWidget(new QLabel(headings[std::size_t(column)]), 0, column + 1, Qt::AlignRight);
        grid->setColumnStretch(column + 1, 1);
    }
    for (int row = 0; row < RowCount; ++row) {
        auto* name = new QLabel(names[std::size_t(row)]);
        name->setToolTip(explained[std::size_t(row)]);
        grid->addWidget(name, row + 1, 0);
        for (int column = 0; column < ColumnCount; ++column) {
            auto* result = new ResultLabel(names[std::size_t(row)] + ", " + headings[std::size_t(column)]);
            result->setText(QStringLiteral("–"));
            result->setAlignment(Qt::AlignRight);
            grid->addWidget(result, row + 1, column + 1);
            results[std::size_t(row)][std::size_t(column)] = result;
        }
    }
}

void ComparePane::setSystem(const std::shared_ptr<const ShownSystem>& shown,
                            const std::optional<GeographicPoint>& place) {
    system = shown;
    areaBox->setSystem(shown);
    areaBox->setCheckedPlace(place);
    _onSettingsChanged();
}

void ComparePane::setCheckedPlace(const std::optional<GeographicPoint>& place) {
    areaBox->setCheckedPlace(place);
    _onSettingsChanged();
}

void ComparePane::setOther(const IDictionary& record, const QString& name) {
    other = ShownSystem::of(record, nullptr);
    otherName = name;
    nameLine->setText(PanelText::tr("minus %1").arg(name));
    nameLine->setToolTip(
        PanelText::tr("Easting and northing of the shown system minus those of %1, as it was when it was "
                      "chosen, at the same place on the ground.")
            .arg(name));
    _onSettingsChanged();
}

void ComparePane::showUnits() {
    _onSettingsChanged();
}

void ComparePane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    _onSettingsChanged();
}

std::optional<SystemDifference> ComparePane::difference() const {
    if (!system || !system->projection() || !other || !other->projection())
        return std::nullopt;
    return SystemDifference(*system->projection(), *other->projection(),
                            shiftBox->isChecked() ? SystemDifference::Sameness::Wgs84
                                                  : SystemDifference::Sameness::LatitudeLongitude);
}

void ComparePane::_onSettingsChanged() {
    if (!isVisible())
        return;
    areaBox->offerCentres();
    summarize();
    draw();
}

/// The figures that do not depend on the map: the area is a square on the ground, whatever the window's shape.
void ComparePane::summarize() {
    summary.reset();
    const auto compared = difference();
    const auto checked = areaBox->checkedPlace();
    const auto square = compared ? areaBox->square() : std::nullopt;
    if (square)
        summary = compared->over(square->nodes(areaNodes));
    showOffset(Checked, compared && checked ? compared->at(*checked) : std::nullopt);
    showOffset(Mean, summary ? std::optional<GridOffset>(summary->mean) : std::nullopt);
    showOffset(Largest, std::nullopt);
    if (summary)
        showLengths(Largest, {summary->largest.easting, summary->largest.northing, summary->largestLength});
    remarkLine->setMessage(remark(), MessageLine::Tone::Warning);
}

QString ComparePane::remark() const {
    if (!other || !system || !system->projection())
        return QString();
    if (!other->projection())
        return PanelText::named(otherName, other->problem());
    if (!summary)
        return PanelText::tr("One of the projections gives no result in this area.");
    if (!shiftBox->isChecked())
        return QString();
    const bool isKnown = system->projection()->hasDatumShift(), isOtherKnown = other->projection()->hasDatumShift();
    if (!isKnown && !isOtherKnown)
        return PanelText::tr("Neither system defines a datum shift: both count as on WGS 84.");
    return isKnown && isOtherKnown ? QString()
                                   : PanelText::tr("No datum shift is defined by %1: it counts as on WGS 84.")
                                         .arg(isKnown ? otherName : system->name());
}

void ComparePane::draw() {
    const auto compared = difference();
    if (!compared || !summary) {
        plot->clear();
        return;
    }
    const QSize canvas = plot->nodeCount();
    drawOnce(*compared);
    // Other numbers on the axes may have changed the canvas's shape, and so the area.
    if (plot->nodeCount() != canvas)
        drawOnce(*compared);
}

void ComparePane::drawOnce(const SystemDifference& compared) {
    constexpr double noise = 1e-6;        // metres
    constexpr double noiseOfLarge = 1e-9; // of the difference: numbers of ten digits
    const IProjectedSystem& projection = *system->projection();
    const DistortionLines::Line outline = areaBox->outline();
    const GridArea area = plot->fitted(areaBox->gridArea(outline));
    const QSize nodes = nodesFor(*plot);
    QVector<double> lengths = compared.lengths(AreaValues::nodes(area, nodes.width(), nodes.height()),
                                               meanBox->isChecked() ? summary->mean : GridOffset{0.0, 0.0});
    const double largest = AreaValues(lengths, nodes.width()).largest();
    const DifferenceUnit unit(largest);
    for (double& length : lengths)
        length /= unit.metres;
    plot->showValues(AreaValues(lengths, nodes.width()), area,
                     {unit.symbol, std::max(noise, noiseOfLarge * largest) / unit.metres});
    plot->showLines(DistortionLines(system->record(), projection, area));
    const auto checked = areaBox->checkedPlace();
    plot->showPlaces(DistortionLines::origin(system->record()), checked ? projection.toGrid(*checked) : std::nullopt,
                     outline);
}

void ComparePane::showOffset(Row row, const std::optional<GridOffset>& offset) {
    if (offset)
        return showLengths(row, {offset->easting, offset->northing, offset->length()});
    for (QLabel* result : results[std::size_t(row)])
        result->setText(QStringLiteral("–"));
}

void ComparePane::showLengths(Row row, const std::array<double, ColumnCount>& metres) {
    const DifferenceUnit unit(metres[Distance]);
    for (std::size_t column = 0; column < ColumnCount; ++column)
        results[std::size_t(row)][column]->setText(unit.text(metres[column]));
}

void ComparePane::_onPointed(double easting, double northing) {
    const auto compared = difference();
    showOffset(Mouse, compared ? compared->atGrid({easting, northing}) : std::nullopt);
    QStringList texts;
    for (const QLabel* result : results[Mouse])
        texts << PanelText::named(result->accessibleName(), result->text());
    plot->describePlace(texts.join(", "));
}

void ComparePane::_onLeft() {
    showOffset(Mouse, std::nullopt);
    plot->describePlace(QString());
}

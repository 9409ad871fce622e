#include "panel/check/DistortionPane.h"

#include "panel/check/AreaBox.h"
#include "panel/check/AreaPlot.h"
#include "panel/check/DesignBox.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/CheckField.h"
#include "panel/field/NumberBox.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IProjectionModule.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int designNodes = 15;

bool isSamePlace(const GeographicPoint& left, const GeographicPoint& right) {
    constexpr double closing = 1e-7; // degrees: a centimetre
    return std::abs(left.latitude - right.latitude) < closing &&
           std::abs(std::remainder(left.longitude - right.longitude, 360.0)) < closing;
}

} // namespace

DistortionPane::DistortionPane(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , areaBox(new AreaBox)
    , heightBox(new NumberBox)
    , plot(new AreaPlot(PanelText::tr("Picture of the linear distortion")))
    , readout(new QLabel)
    , design(new DesignBox(readOnly)) {
    heightBox->setDecimals(0);
    heightBox->setRange(-1000, 9000);
    heightBox->setSingleStep(50);
    heightBox->setSuffix(" m");
    heightBox->setToolTip(PanelText::tr("Mean ellipsoidal height of the ground; 0 shows the grid's own distortion."));
    auto* heightLabel = new QLabel(PanelText::tr("Height"));
    heightLabel->setBuddy(heightBox);
    // Its text changes while the map is resized. If that changed the least width of the form, a scroll bar could come
    // and go without end.
    readout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    plot->setMinimumSize(260, 170);
    auto* settings = new QHBoxLayout;
    settings->addWidget(areaBox, 1);
    settings->addWidget(heightLabel);
    settings->addWidget(heightBox);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addLayout(settings);
    layout->addWidget(plot, 1);
    layout->addWidget(readout);
    layout->addWidget(design);
    connect(areaBox, SIGNAL(areaChanged()), this, SLOT(_onSettingsChanged()));
    connect(heightBox, SIGNAL(valueChanged(double)), this, SLOT(_onSettingsChanged()));
    connect(plot, SIGNAL(pointed(double, double)), this, SLOT(_onPointed(double, double)));
    connect(plot, SIGNAL(left()), this, SLOT(_onLeft()));
    connect(plot, SIGNAL(resized()), this, SLOT(_onPlotResized()));
    connect(design, SIGNAL(goalChanged()), this, SLOT(_onSettingsChanged()));
    connect(design, SIGNAL(accepted()), this, SLOT(_onAccepted()));
    _onLeft();
}

void DistortionPane::setSystem(const std::shared_ptr<const ShownSystem>& shown,
                               const std::optional<GeographicPoint>& place) {
    system = shown;
    areaBox->setSystem(shown);
    areaBox->setCheckedPlace(place);
    _onSettingsChanged();
}

void DistortionPane::setCheckedPlace(const std::optional<GeographicPoint>& place) {
    const auto before = areaBox->checkedPlace();
    const bool isSame = place && before && place->latitude == before->latitude && place->longitude == before->longitude;
    areaBox->setCheckedPlace(place);
    if (!isSame)
        _onSettingsChanged();
}

void DistortionPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    _onSettingsChanged();
}

const IProjectedSystem* DistortionPane::projection() const {
    return system ? system->projection() : nullptr;
}

void DistortionPane::_onSettingsChanged() {
    if (!isVisible())
        return;
    areaBox->offerCentres();
    draw();
    propose();
}

void DistortionPane::_onPlotResized() {
    if (isVisible())
        draw();
}

void DistortionPane::draw() {
    if (!projection()) {
        plot->clear();
        return;
    }
    const QSize canvas = plot->nodeCount();
    drawOnce();
    // Other numbers on the axes may have changed the canvas's shape, and so the area.
    if (plot->nodeCount() != canvas)
        drawOnce();
}

void DistortionPane::drawOnce() {
    const DistortionLines::Line outline = areaBox->outline();
    const GridArea area = plot->fitted(areaBox->gridArea(outline));
    const QSize nodes = plot->nodeCount();
    plot->showValues(AreaValues::distortion(*projection(), area, nodes.width(), nodes.height(), meanHeight()), area,
                     {PanelText::tr("ppm"), AreaValues::distortionNoise});
    plot->showLines(DistortionLines(system->record(), *projection(), area));
    const auto checked = areaBox->checkedPlace();
    const bool isCheckedShown = checked && areaBox->chosenCentre() == AreaBox::CheckedPoint;
    plot->showPlaces(DistortionLines::origin(system->record()),
                     isCheckedShown ? projection()->toGrid(*checked) : std::nullopt, outline);
}

/// Metres.
double DistortionPane::meanHeight() const {
    return heightBox->value() * shownUnit;
}

void DistortionPane::showUnits() {
    const QSignalBlocker blocker(heightBox);
    const double height = meanHeight();
    shownUnit = LengthUnit::metres();
    heightBox->setRange(std::round(-1000.0 / shownUnit), std::round(9000.0 / shownUnit));
    heightBox->setSuffix(' ' + LengthUnit::symbol());
    heightBox->setValue(std::round(height / shownUnit));
    _onSettingsChanged();
}

QVector<GeographicPoint> DistortionPane::designPoints() const {
    if (design->isForPoint())
        return areaBox->checkedPlace() ? QVector<GeographicPoint>{*areaBox->checkedPlace()}
                                       : QVector<GeographicPoint>();
    QVector<GeographicPoint> points;
    const auto area = areaBox->square();
    for (const GeographicPoint& place : area ? area->nodes(designNodes) : QVector<GeographicPoint>()) {
        // What lies beyond the projection's end can't be made better.
        if (projection()->localScale(place))
            points.append(place);
    }
    return points;
}

void DistortionPane::propose() {
    IProjectionModule* const module = projectionModule();
    designProposal.reset();
    if (projection() && module)
        designProposal =
            DesignProposal::make(system->record(), *module, designPoints(), meanHeight(), design->placesLine());
    if (projection())
        design->showProposal(DesignProposal::isPossible(system->record()), DesignProposal::lineField(system->record()),
                             designProposal);
    else
        design->clear();
}

void DistortionPane::_onPointed(double easting, double northing) {
    if (!projection())
        return;
    const GridPoint point{easting, northing};
    double ppm = 0.0;
    projection()->linearDistortion(&point, 1, meanHeight(), &ppm);
    const auto place = projection()->toGeographic(point, 0.0);
    if (!place || std::isnan(ppm))
        return _onLeft();
    const bool isMetric = LengthUnit::chosen() == LengthUnit::Metre;
    const int decimals = 5; // a metre on the ground: more than a pixel tells
    readout->setText(
        PanelText::tr("%1 ppm   %2, %3\nE %4 %6  N %5 %6")
            .arg(ppm, 0, 'f', 1)
            .arg(CheckField::angleText(place->latitude, decimals), CheckField::angleText(place->longitude, decimals))
            .arg(isMetric ? easting / 1000.0 : easting / LengthUnit::metres(), 0, 'f', isMetric ? 3 : 0)
            .arg(isMetric ? northing / 1000.0 : northing / LengthUnit::metres(), 0, 'f', isMetric ? 3 : 0)
            .arg(isMetric ? QStringLiteral("km") : LengthUnit::symbol()));
    plot->describePlace(readout->text());
}

void DistortionPane::_onLeft() {
    readout->setText(PanelText::tr("Point at the map for the distortion there.") + '\n');
    plot->describePlace(QString());
}

/// The area stays where it is on the ground, though what it is around may move.
void DistortionPane::_onAccepted() {
    if (!projection())
        return;
    const auto before = projection()->toGeographic(areaBox->centre(), 0.0);
    Q_EMIT proposalAccepted();
    const auto after = projection() ? projection()->toGeographic(areaBox->centre(), 0.0) : std::nullopt;
    if (!before || !after || design->isForPoint() || isSamePlace(*before, *after))
        return;
    areaBox->stayAround(*before);
}

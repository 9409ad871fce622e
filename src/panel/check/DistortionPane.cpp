#include "panel/check/DistortionPane.h"

#include "panel/check/DesignBox.h"
#include "panel/check/DistortionPlot.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/CheckField.h"
#include "panel/field/ChoiceBox.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IProjectionModule.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int designNodes = 15;
constexpr int defaultWidth = 500; ///< kilometres

} // namespace

DistortionPane::DistortionPane(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , centreBox(new ChoiceBox)
    , widthBox(new ChoiceBox)
    , heightBox(new QSpinBox)
    , plot(new DistortionPlot)
    , readout(new QLabel)
    , design(new DesignBox(readOnly)) {
    centreBox->addItem(PanelText::tr("Around the origin"));
    centreBox->addItem(PanelText::tr("Around the standard parallels"));
    centreBox->addItem(PanelText::tr("Around the checked point"));
    centreBox->setAccessibleName(PanelText::tr("Area"));
    for (const int kilometres : {2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000})
        widthBox->addItem(QString::number(kilometres) + " km", kilometres);
    widthBox->setCurrentIndex(widthBox->findData(defaultWidth));
    widthBox->setAccessibleName(PanelText::tr("Width of the area"));
    widthBox->setToolTip(widthBox->accessibleName());
    heightBox->setRange(-1000, 9000);
    heightBox->setSingleStep(50);
    heightBox->setSuffix(" m");
    heightBox->setToolTip(PanelText::tr("Mean ellipsoidal height of the ground; 0 shows the grid's own distortion."));
    auto* heightLabel = new QLabel(PanelText::tr("Mean height"));
    heightLabel->setBuddy(heightBox);
    readout->setTextInteractionFlags(Qt::NoTextInteraction);
    plot->setMinimumSize(260, 170);
    for (ChoiceBox* box : {centreBox, widthBox}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(6);
    }
    centreBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* settings = new QHBoxLayout;
    settings->addWidget(centreBox, 1);
    settings->addWidget(widthBox);
    settings->addWidget(heightLabel);
    settings->addWidget(heightBox);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addLayout(settings);
    layout->addWidget(plot, 1);
    layout->addWidget(readout);
    layout->addWidget(design);
    for (ChoiceBox* box : {centreBox, widthBox})
        connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(_onSettingsChanged()));
    connect(heightBox, SIGNAL(valueChanged(int)), this, SLOT(_onSettingsChanged()));
    connect(plot, SIGNAL(pointed(double, double)), this, SLOT(_onPointed(double, double)));
    connect(plot, SIGNAL(left()), this, SLOT(_onLeft()));
    connect(plot, SIGNAL(resized()), this, SLOT(_onPlotResized()));
    connect(design, SIGNAL(goalChanged()), this, SLOT(_onSettingsChanged()));
    connect(design, SIGNAL(accepted()), this, SIGNAL(proposalAccepted()));
    _onLeft();
}

void DistortionPane::setSystem(const std::shared_ptr<const ShownSystem>& shown,
                               const std::optional<GeographicPoint>& place) {
    system = shown;
    checkedPlace = place;
    _onSettingsChanged();
}

void DistortionPane::setCheckedPlace(const std::optional<GeographicPoint>& place) {
    const bool isSame = place && checkedPlace && place->latitude == checkedPlace->latitude &&
                        place->longitude == checkedPlace->longitude;
    checkedPlace = place;
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

GridPoint DistortionPane::centre() const {
    std::optional<GridPoint> place;
    if (centreBox->currentIndex() == Parallels)
        place = DistortionLines::middleOfParallels(system->record(), *projection());
    else if (centreBox->currentIndex() == CheckedPoint && checkedPlace)
        place = projection()->toGrid(*checkedPlace);
    return place ? *place : DistortionLines::origin(system->record());
}

/// Greys what the system does not have; chosen all the same, it stands for the origin.
void DistortionPane::offerCentres() {
    auto* items = qobject_cast<QStandardItemModel*>(centreBox->model());
    items->item(Parallels)->setEnabled(projection() &&
                                       DistortionLines::middleOfParallels(system->record(), *projection()));
    items->item(CheckedPoint)->setEnabled(projection() && checkedPlace);
}

void DistortionPane::_onSettingsChanged() {
    if (!isVisible())
        return;
    offerCentres();
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
    area = plot->areaAround(centre(), widthBox->currentData().toInt() * 1000.0);
    const QSize nodes = plot->nodeCount();
    plot->showDistortion(DistortionGrid(*projection(), area, nodes.width(), nodes.height(), heightBox->value()), area);
    plot->showLines(DistortionLines(system->record(), *projection(), area), DistortionLines::origin(system->record()));
}

QVector<GeographicPoint> DistortionPane::designPoints() const {
    if (design->isForPoint())
        return checkedPlace ? QVector<GeographicPoint>{*checkedPlace} : QVector<GeographicPoint>();
    QVector<GeographicPoint> points;
    for (const GridPoint& node : DistortionGrid::nodes(area, designNodes, designNodes)) {
        if (const auto place = projection()->toGeographic(node, 0.0))
            points.append(*place);
    }
    return points;
}

void DistortionPane::propose() {
    IProjectionModule* const module = projectionModule();
    designProposal.reset();
    if (projection() && module)
        designProposal = DesignProposal::make(system->record(), module->geodesy(), designPoints(), heightBox->value(),
                                              design->placesLine());
    design->showProposal(system && DesignProposal::isPossible(system->record()),
                         system ? DesignProposal::lineField(system->record()) : nullptr, designProposal);
}

void DistortionPane::_onPointed(double easting, double northing) {
    if (!projection())
        return;
    const GridPoint point{easting, northing};
    double ppm = 0.0;
    projection()->linearDistortion(&point, 1, heightBox->value(), &ppm);
    const auto place = projection()->toGeographic(point, 0.0);
    if (!place || std::isnan(ppm))
        return _onLeft();
    const int decimals = 5; // a metre on the ground: more than a pixel tells
    readout->setText(
        PanelText::tr("E %1 km  N %2 km   %3, %4   %5 ppm")
            .arg(easting / 1000.0, 0, 'f', 3)
            .arg(northing / 1000.0, 0, 'f', 3)
            .arg(CheckField::angleText(place->latitude, decimals), CheckField::angleText(place->longitude, decimals))
            .arg(ppm, 0, 'f', 1));
}

void DistortionPane::_onLeft() {
    readout->setText(PanelText::tr("Point at the map for the distortion there."));
}

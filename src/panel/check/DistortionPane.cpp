#include "panel/check/DistortionPane.h"

#include "panel/check/DesignBox.h"
#include "panel/check/DistortionPlot.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/CheckField.h"
#include "panel/field/ChoiceBox.h"
#include "panel/record/LengthUnit.h"
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

bool isSamePlace(const GeographicPoint& left, const GeographicPoint& right) {
    constexpr double closing = 1e-7; // degrees: a centimetre
    return std::abs(left.latitude - right.latitude) < closing &&
           std::abs(std::remainder(left.longitude - right.longitude, 360.0)) < closing;
}

} // namespace

DistortionPane::DistortionPane(bool readOnly, QWidget* parent)
    : QWidget(parent)
    , centreBox(new ChoiceBox)
    , widthBox(new ChoiceBox)
    , heightBox(new QSpinBox)
    , plot(new DistortionPlot)
    , readout(new QLabel)
    , design(new DesignBox(readOnly)) {
    centreBox->addItem(PanelText::tr("Origin"));
    centreBox->addItem(PanelText::tr("Standard parallels"));
    centreBox->addItem(PanelText::tr("Checked point"));
    centreBox->addItem(PanelText::tr("Designed area"));
    centreBox->setAccessibleName(PanelText::tr("Area"));
    centreBox->setToolTip(PanelText::tr("What the map is around."));
    for (const int kilometres : {2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000})
        widthBox->addItem(QString::number(kilometres) + " km", kilometres);
    widthBox->setCurrentIndex(widthBox->findData(defaultWidth));
    widthBox->setAccessibleName(PanelText::tr("Width of the area"));
    widthBox->setToolTip(PanelText::tr("Side of the square area; the map shows all of it."));
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
    connect(design, SIGNAL(accepted()), this, SLOT(_onAccepted()));
    _onLeft();
}

void DistortionPane::setSystem(const std::shared_ptr<const ShownSystem>& shown,
                               const std::optional<GeographicPoint>& place) {
    // Another system is seen where it belongs.
    if (centreBox->currentIndex() == DesignedArea && system && system->name() != shown->name()) {
        const QSignalBlocker silent(centreBox);
        centreBox->setCurrentIndex(Origin);
    }
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
    else if (centreBox->currentIndex() == DesignedArea && designedPlace)
        place = projection()->toGrid(*designedPlace);
    return place ? *place : DistortionLines::origin(system->record());
}

/// Greys what the system does not have; chosen all the same, it stands for the origin.
void DistortionPane::offerCentres() {
    auto* items = qobject_cast<QStandardItemModel*>(centreBox->model());
    items->item(Parallels)->setEnabled(projection() &&
                                       DistortionLines::middleOfParallels(system->record(), *projection()));
    items->item(CheckedPoint)->setEnabled(projection() && checkedPlace);
    items->item(DesignedArea)->setEnabled(projection() && designedPlace);
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
    const DistortionLines::Line outline = designOutline();
    const DistortionArea area = mapArea(outline);
    const QSize nodes = plot->nodeCount();
    plot->showDistortion(DistortionGrid(*projection(), area, nodes.width(), nodes.height(), meanHeight()), area);
    plot->showLines(DistortionLines(system->record(), *projection(), area));
    const bool isCheckedShown = checkedPlace && centreBox->currentIndex() == CheckedPoint;
    plot->showPlaces(DistortionLines::origin(system->record()),
                     isCheckedShown ? projection()->toGrid(*checkedPlace) : std::nullopt, outline);
}

/// Metres.
double DistortionPane::meanHeight() const {
    return heightBox->value() * shownUnit;
}

void DistortionPane::showUnits() {
    const QSignalBlocker blocker(heightBox);
    const double height = meanHeight();
    shownUnit = LengthUnit::metres();
    heightBox->setRange(int(std::round(-1000.0 / shownUnit)), int(std::round(9000.0 / shownUnit)));
    heightBox->setSuffix(' ' + LengthUnit::symbol());
    heightBox->setValue(int(std::round(height / shownUnit)));
    _onSettingsChanged();
}

double DistortionPane::side() const {
    return widthBox->currentData().toInt() * 1000.0;
}

/// The area to design for, around the map's centre and as wide as it says; nothing where the projection ends.
std::optional<DesignArea> DistortionPane::designArea() const {
    const auto place = projection()->toGeographic(centre(), 0.0);
    return place ? std::optional<DesignArea>(DesignArea(*place, side())) : std::nullopt;
}

DistortionLines::Line DistortionPane::designOutline() const {
    DistortionLines::Line line;
    const auto area = designArea();
    for (const GeographicPoint& place : area ? area->outline() : QVector<GeographicPoint>()) {
        if (const auto point = projection()->toGrid(place))
            line.push_back(*point);
    }
    return line;
}

/// What the map shows: all of the area to design for and a little around it, however that is turned on the grid.
DistortionArea DistortionPane::mapArea(const DistortionLines::Line& outline) const {
    constexpr double margin = 1.04;
    const GridPoint middle = centre();
    double width = side(), height = side();
    for (const GridPoint& point : outline) {
        width = std::max(width, 2.0 * std::abs(point.easting - middle.easting));
        height = std::max(height, 2.0 * std::abs(point.northing - middle.northing));
    }
    // Towards the end of a projection the grid has no end.
    const double most = 2.0 * side();
    return plot->fitted({middle, margin * std::min(width, most), margin * std::min(height, most)});
}

QVector<GeographicPoint> DistortionPane::designPoints() const {
    if (design->isForPoint())
        return checkedPlace ? QVector<GeographicPoint>{*checkedPlace} : QVector<GeographicPoint>();
    QVector<GeographicPoint> points;
    const auto area = designArea();
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
}

void DistortionPane::_onLeft() {
    readout->setText(PanelText::tr("Point at the map for the distortion there.") + '\n');
}

/// The area stays where it is on the ground, though what it is around may move.
void DistortionPane::_onAccepted() {
    if (!projection())
        return;
    const auto before = projection()->toGeographic(centre(), 0.0);
    Q_EMIT proposalAccepted();
    const auto after = projection() ? projection()->toGeographic(centre(), 0.0) : std::nullopt;
    if (!before || !after || design->isForPoint() || isSamePlace(*before, *after))
        return;
    designedPlace = before;
    centreBox->setCurrentIndex(DesignedArea);
    _onSettingsChanged();
}

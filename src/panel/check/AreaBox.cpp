#include "panel/check/AreaBox.h"

#include "panel/computing/ShownSystem.h"
#include "panel/field/ChoiceBox.h"
#include "panel/record/PanelText.h"

#include <QHBoxLayout>
#include <QStandardItemModel>

#include <algorithm>
#include <cmath>

namespace {

constexpr int defaultWidth = 500; ///< kilometres

}

AreaBox::AreaBox(QWidget* parent) : QWidget(parent), centreBox(new ChoiceBox), widthBox(new ChoiceBox) {
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
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(centreBox, 1);
    layout->addWidget(widthBox);
    for (ChoiceBox* box : {centreBox, widthBox}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(6);
        connect(box, SIGNAL(currentIndexChanged(int)), this, SIGNAL(areaChanged()));
    }
    centreBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void AreaBox::setSystem(const std::shared_ptr<const ShownSystem>& shown) {
    // Another system is seen where it belongs.
    if (chosenCentre() == DesignedArea && system && system->name() != shown->name()) {
        const QSignalBlocker silent(centreBox);
        centreBox->setCurrentIndex(Origin);
    }
    system = shown;
}

void AreaBox::setCheckedPlace(const std::optional<GeographicPoint>& place) {
    checked = place;
}

const IProjectedSystem* AreaBox::projection() const {
    return system ? system->projection() : nullptr;
}

AreaBox::Centre AreaBox::chosenCentre() const {
    return Centre(centreBox->currentIndex());
}

void AreaBox::offerCentres() {
    auto* items = qobject_cast<QStandardItemModel*>(centreBox->model());
    items->item(Parallels)->setEnabled(projection() &&
                                       DistortionLines::middleOfParallels(system->record(), *projection()));
    items->item(CheckedPoint)->setEnabled(projection() && checked);
    items->item(DesignedArea)->setEnabled(projection() && designed);
}

void AreaBox::stayAround(const GeographicPoint& place) {
    designed = place;
    centreBox->setCurrentIndex(DesignedArea);
    Q_EMIT areaChanged();
}

GridPoint AreaBox::centre() const {
    std::optional<GridPoint> place;
    if (chosenCentre() == Parallels)
        place = DistortionLines::middleOfParallels(system->record(), *projection());
    else if (chosenCentre() == CheckedPoint && checked)
        place = projection()->toGrid(*checked);
    else if (chosenCentre() == DesignedArea && designed)
        place = projection()->toGrid(*designed);
    return place ? *place : DistortionLines::origin(system->record());
}

double AreaBox::side() const {
    return widthBox->currentData().toInt() * 1000.0;
}

std::optional<DesignArea> AreaBox::square() const {
    const auto place = projection()->toGeographic(centre(), 0.0);
    return place ? std::optional<DesignArea>(DesignArea(*place, side())) : std::nullopt;
}

DistortionLines::Line AreaBox::outline() const {
    DistortionLines::Line line;
    const auto area = square();
    for (const GeographicPoint& place : area ? area->outline() : QVector<GeographicPoint>()) {
        if (const auto point = projection()->toGrid(place))
            line.push_back(*point);
    }
    return line;
}

GridArea AreaBox::gridArea(const DistortionLines::Line& outline) const {
    constexpr double margin = 1.04;
    const GridPoint middle = centre();
    double width = side(), height = side();
    for (const GridPoint& point : outline) {
        width = std::max(width, 2.0 * std::abs(point.easting - middle.easting));
        height = std::max(height, 2.0 * std::abs(point.northing - middle.northing));
    }
    // Towards the end of a projection the grid has no end.
    const double most = 2.0 * side();
    return {middle, margin * std::min(width, most), margin * std::min(height, most)};
}

#include "panel/check/CheckPointPane.h"

#include "catalogue/CoordParamKey.h"
#include "panel/computing/DistortionLines.h"
#include "panel/computing/ShiftEstimate.h"
#include "panel/computing/ShownSystem.h"
#include "panel/field/CheckField.h"
#include "panel/field/ChoiceBox.h"
#include "panel/field/CopyButton.h"
#include "panel/field/MessageLine.h"
#include "panel/field/ResultLabel.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"
#include "platform/projection/IProjectionModule.h"

#include <QGridLayout>
#include <QLabel>
#include <QStandardItemModel>

#include <cmath>

namespace {

constexpr double unreliable = 0.001; ///< metres of closing error

const ParamField& latitudeField() {
    static const ParamField field{"", Quantity::Latitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Latitude"), -90.0, 90.0,
                                  0.0};
    return field;
}

const ParamField& longitudeField() {
    static const ParamField field{
        "", Quantity::Longitude, QT_TRANSLATE_NOOP("DlgCoordParam", "Longitude"), -360.0, 360.0, 0.0};
    return field;
}

const ParamField& heightField() {
    static const ParamField field{
        "",  Quantity::Length, QT_TRANSLATE_NOOP("DlgCoordParam", "Ellipsoidal height"), -20000.0, 100000.0, 0.0, false,
        true};
    return field;
}

ParamField gridField(const char* label) {
    return {"", Quantity::Length, label, -1e9, 1e9, 0.0};
}

/// A factor and what it does in ppm, without a minus before zeros.
QString factorText(double factor) {
    const double ppm = std::round((factor - 1.0) * 1e8) / 100.0;
    return QString::number(factor, 'f', 10) + "  (" + QString::number(ppm + 0.0, 'f', 2) + " ppm)";
}

/// What `factor` makes of the scale: one factor, or two where the projection is not conformal.
template <typename Factor> QString factorsText(const LocalScale& scale, Factor factor) {
    if (scale.isConformal())
        return factorText(factor(scale.mean));
    return PanelText::tr("along the meridian %1\nalong the parallel %2")
        .arg(factorText(factor(scale.meridian)), factorText(factor(scale.parallel)));
}

/// A distance in metres, or in millimetres below one.
QString errorText(double metres) {
    return metres < 1.0 ? QString::number(metres * 1000.0, 'f', 3) + " mm" : QString::number(metres, 'f', 3) + " m";
}

} // namespace

CheckPointPane::CheckPointPane(QWidget* parent) : QWidget(parent) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 3, 0, 0);
    grid->setVerticalSpacing(1);
    grid->setColumnStretch(3, 1);
    addPlaceFields(grid);
    addGridFields(grid);
    addResults(grid);
    copyButton = new CopyButton(PanelText::tr("Copy as text"));
    grid->addWidget(copyButton, grid->rowCount(), 1, Qt::AlignLeft);
    grid->setRowStretch(grid->rowCount(), 1);
    connect(copyButton, SIGNAL(clicked()), this, SLOT(_onCopy()));
}

void CheckPointPane::addPlaceFields(QGridLayout* grid) {
    datumBox = new ChoiceBox;
    datumBox->addItem(PanelText::tr("The system's own"));
    datumBox->addItem(PanelText::tr("WGS 84"));
    auto* label = new QLabel(PanelText::tr("Datum"));
    label->setBuddy(datumBox);
    datumBox->setAccessibleName(label->text());
    grid->addWidget(label, 0, 0);
    grid->addWidget(datumBox, 0, 1);
    placeMessage = new MessageLine(this);
    latitude = new CheckField(latitudeField(), placeMessage, grid, 1);
    longitude = new CheckField(longitudeField(), placeMessage, grid, 2);
    height = new CheckField(heightField(), placeMessage, grid, 3);
    grid->addWidget(placeMessage, 4, 0, 1, 4);
    height->setValue(0.0);
    connect(datumBox, SIGNAL(currentIndexChanged(int)), this, SLOT(_onDatumChanged()));
    connect(latitude, SIGNAL(edited()), this, SLOT(_onPlaceEdited()));
    connect(longitude, SIGNAL(edited()), this, SLOT(_onPlaceEdited()));
    connect(height, SIGNAL(edited()), this, SLOT(_onDatumChanged()));
}

void CheckPointPane::addGridFields(QGridLayout* grid) {
    gridMessage = new MessageLine(this);
    easting = new CheckField(gridField(QT_TRANSLATE_NOOP("DlgCoordParam", "Easting")), gridMessage, grid, 5);
    northing = new CheckField(gridField(QT_TRANSLATE_NOOP("DlgCoordParam", "Northing")), gridMessage, grid, 6);
    grid->addWidget(gridMessage, 7, 0, 1, 4);
    connect(easting, SIGNAL(edited()), this, SLOT(_onGridEdited()));
    connect(northing, SIGNAL(edited()), this, SLOT(_onGridEdited()));
}

void CheckPointPane::addResults(QGridLayout* grid) {
    const std::array<QString, ResultCount> names = {PanelText::tr("Grid scale factor"), PanelText::tr("Convergence"),
                                                    PanelText::tr("Combined factor"), QString(),
                                                    PanelText::tr("Closing error")};
    for (std::size_t i = 0; i < ResultCount; ++i) {
        labels[i] = new QLabel(names[i]);
        results[i] = new ResultLabel(names[i]);
        results[i]->setWordWrap(true);
        results[i]->setFocusPolicy(Qt::StrongFocus);
        labels[i]->setBuddy(results[i]);
        grid->addWidget(labels[i], 8 + int(i), 0, Qt::AlignTop);
        grid->addWidget(results[i], 8 + int(i), 1, 1, 3);
    }
    labels[Convergence]->setToolTip(PanelText::tr(
        "A true azimuth is the grid bearing plus the convergence. Where the projection is not conformal, this "
        "holds along the meridian only."));
    labels[CombinedFactor]->setToolTip(
        PanelText::tr("Grid scale factor times R / (R + height): from a distance at that height to the grid."));
    labels[ClosingError]->setToolTip(
        PanelText::tr("How far the point is off when it is computed there and back: through the projection, and "
                      "through the datum shift."));
}

void CheckPointPane::setSystem(const std::shared_ptr<const ShownSystem>& shown) {
    system = shown;
    recompute();
}

const IProjectedSystem* CheckPointPane::projection() const {
    return system ? system->projection() : nullptr;
}

void CheckPointPane::showNotation() {
    for (CheckField* field : {latitude, longitude, height, easting, northing})
        field->showNotation();
    showResults();
}

void CheckPointPane::keepPlace() {
    if (source == Source::Grid && point)
        source = Source::Place;
}

std::optional<GeographicPoint> CheckPointPane::place() const {
    return point ? std::optional<GeographicPoint>(point->own) : std::nullopt;
}

CheckPoint::Datum CheckPointPane::datum() const {
    return datumBox->currentIndex() == 0 ? CheckPoint::Datum::Own : CheckPoint::Datum::Wgs84;
}

std::optional<CheckPoint> CheckPointPane::compute() const {
    const IProjectedSystem* const projected = projection();
    if (!projected || !height->value())
        return std::nullopt;
    switch (source) {
    case Source::Origin:
        return CheckPoint::fromGrid(*projected, DistortionLines::origin(system->record()), *height->value(), datum());
    case Source::Place:
        if (!latitude->value() || !longitude->value())
            return std::nullopt;
        return CheckPoint::fromGeographic(*projected, {*latitude->value(), *longitude->value(), *height->value()},
                                          datum());
    case Source::Grid:
        if (!easting->value() || !northing->value())
            return std::nullopt;
        return CheckPoint::fromGrid(*projected, {*easting->value(), *northing->value()}, *height->value(), datum());
    }
    return std::nullopt;
}

/// Computes the point, and shows it in those fields that it was not computed from.
void CheckPointPane::recompute() {
    point = compute();
    if (source != Source::Grid) {
        point ? easting->setValue(point->grid.easting) : easting->clear();
        point ? northing->setValue(point->grid.northing) : northing->clear();
    }
    if (source != Source::Place) {
        point ? latitude->setValue(point->on(datum())->latitude) : latitude->clear();
        point ? longitude->setValue(point->on(datum())->longitude) : longitude->clear();
    }
    showResults();
}

void CheckPointPane::_onPlaceEdited() {
    source = Source::Place;
    recompute();
}

void CheckPointPane::_onGridEdited() {
    source = Source::Grid;
    recompute();
}

void CheckPointPane::_onDatumChanged() {
    recompute();
}

QString CheckPointPane::placeText(const GeographicPoint& place) const {
    const bool decimal = AngleText::notation() == AngleNotation::DecimalDegrees;
    const QString unit = decimal ? QStringLiteral("°") : QString();
    return CheckField::angleText(place.latitude) + unit + ", " + CheckField::angleText(place.longitude) + unit + ", " +
           QString::number(place.height / LengthUnit::metres(), 'f', 4) + ' ' + LengthUnit::symbol();
}

bool CheckPointPane::isComplete() const {
    const bool isPlace = latitude->value() && longitude->value();
    const bool isGridPoint = easting->value() && northing->value();
    return projection() && height->value() && (isPlace || isGridPoint);
}

/// Why there is nothing on WGS 84, and how far off the own datum's figures are there as far as the registry knows.
QString CheckPointPane::unknownShiftText() const {
    if (QByteArray(system->record().getValue(CoordParamKey::datumName)) == "World Geodetic System 1984")
        return PanelText::tr("the same: the system's datum is WGS 84");
    const QString unknown = PanelText::tr("unknown: the system defines no datum shift");
    IProjectionModule* const module = projectionModule();
    const auto estimate =
        point && module ? ShiftEstimate::at(system->record(), *module, point->own) : std::optional<ShiftEstimate>();
    if (!estimate)
        return unknown;
    const QString smallest = QString::number(estimate->smallest, 'f', 0);
    const QString largest = QString::number(estimate->largest, 'f', 0);
    return unknown + '\n' +
           (smallest == largest
                ? PanelText::tr("The registry's shifts move this point by %1 m.").arg(largest)
                : PanelText::tr("The registry's shifts move this point by %1 to %2 m.").arg(smallest, largest));
}

void CheckPointPane::showResults() {
    const bool ownShown = datum() == CheckPoint::Datum::Own;
    const bool isShiftKnown = !projection() || projection()->hasDatumShift();
    // Chosen all the same, it gives no result.
    qobject_cast<QStandardItemModel*>(datumBox->model())->item(int(CheckPoint::Datum::Wgs84))->setEnabled(isShiftKnown);
    labels[OtherDatum]->setText(ownShown ? PanelText::tr("On WGS 84") : PanelText::tr("On the own datum"));
    results[OtherDatum]->setAccessibleName(labels[OtherDatum]->text());
    copyButton->setEnabled(point.has_value());
    for (QLabel* result : results)
        result->setText(QStringLiteral("–"));
    if (!isShiftKnown)
        results[OtherDatum]->setText(unknownShiftText());
    else if (point)
        results[OtherDatum]->setText(placeText(ownShown ? *point->wgs84 : point->own));
    if (!point) {
        if (isComplete() && (ownShown || isShiftKnown))
            results[ScaleFactor]->setText(PanelText::tr("The projection gives no result for this point."));
        return;
    }
    const LocalScale& scale = point->scale;
    results[ScaleFactor]->setText(factorsText(scale, [](double factor) { return factor; }));
    results[CombinedFactor]->setText(
        factorsText(scale, [this](double factor) { return point->combinedFactor(factor); }));
    showConvergence();
    showClosingError();
}

void CheckPointPane::showConvergence() {
    QString text = CheckField::angleText(point->scale.convergence, 7) +
                   (AngleText::notation() == AngleNotation::DecimalDegrees ? QStringLiteral("°") : QString());
    if (!point->scale.isConformal())
        text = PanelText::tr("along the meridian %1\nin other directions off by up to %2\"")
                   .arg(text, QString::number(point->bearingError() * 3600.0, 'f', 1));
    results[Convergence]->setText(text);
}

void CheckPointPane::showClosingError() {
    const bool isProjectionOff = point->closingError > unreliable;
    const bool isShiftOff = point->shiftClosingError.value_or(0.0) > unreliable;
    QString text = errorText(point->closingError);
    if (point->shiftClosingError)
        text = PanelText::tr("%1, datum shift %2").arg(text, errorText(*point->shiftClosingError));
    if (isProjectionOff)
        text += "  " + PanelText::tr("The projection is not reliable here.");
    if (isShiftOff)
        text += "  " + PanelText::tr("The datum shift is not reliable here.");
    results[ClosingError]->setText(text);
    QPalette colors;
    if (isProjectionOff || isShiftOff)
        colors.setColor(QPalette::WindowText, MessageLine::textColor(*this, MessageLine::Tone::Error));
    results[ClosingError]->setPalette(colors);
}

void CheckPointPane::_onCopy() {
    QStringList lines{system->name(), PanelText::tr("Datum") + '\t' + datumBox->currentText()};
    for (const CheckField* field : {latitude, longitude, height, easting, northing})
        lines.append(QString(field->labelText() + '\t' + field->text() + ' ' + field->unitText()).trimmed());
    for (std::size_t i = 0; i < ResultCount; ++i)
        lines.append(labels[i]->text() + '\t' + results[i]->text());
    copyButton->copy(lines.join('\n') + '\n');
}

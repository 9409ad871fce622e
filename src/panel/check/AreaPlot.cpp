#include "panel/check/AreaPlot.h"

#include "panel/check/PlainScaleDraw.h"
#include "panel/field/Colours.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <qwt_color_map.h>
#include <qwt_matrix_raster_data.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_spectrogram.h>
#include <qwt_scale_widget.h>
#include <qwt_symbol.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int pixelsPerNode = 4;
constexpr int contourCount = 8;
constexpr int parallelCount = 2;
constexpr int keySteps = 20; ///< of the arrow keys, across the map
constexpr int axes[] = {QwtPlot::xBottom, QwtPlot::yLeft, QwtPlot::yRight};

/// Blue for negative, white for 0, red for positive values: ColorBrewer's diverging scheme RdBu, which the colour-blind
/// tell apart, with white for its grey middle and without its darkest, on which no line
/// is seen (Brewer, Hatchard and Harrower 2003, "ColorBrewer in print", Cartography
/// and Geographic Information Science 30(1)).
class AreaColours : public QwtLinearColorMap {
public:
    AreaColours() : QwtLinearColorMap(QColor(0x4393c3), QColor(0xd6604d)) {
        addColorStop(0.25, QColor(0x92c5de));
        addColorStop(0.5, QColor(0xffffff));
        addColorStop(0.75, QColor(0xf4a582));
    }

    /// The interval to spread the colours over, for values from `low` to `high`. White is 0. Values of one sign that
    /// lie far from 0 have more of that sign's colours than 0 would leave them, but white is none of theirs.
    static QwtInterval interval(double low, double high) {
        constexpr double firstColour = 0.25; // of the way from white to the full colour
        const double extreme = std::abs(low) > std::abs(high) ? low : high;
        const double smallest = low > 0.0 ? low : std::min(high, 0.0);
        const double start = std::min(smallest / extreme, firstColour);
        const double white = (smallest - start * extreme) / (1.0 - start);
        const double reach = std::abs(extreme - white);
        return QwtInterval(white - reach, white + reach);
    }
};

/// Metres in one unit of the axes: a thousand of the unit of length chosen now.
double axisUnit() {
    return 1000.0 * LengthUnit::metres();
}

QString axisUnitText() {
    return LengthUnit::chosen() == LengthUnit::Metre ? QStringLiteral("km") : "1000 " + LengthUnit::symbol();
}

QwtInterval interval(double centre, double width) {
    return QwtInterval((centre - width / 2.0) / axisUnit(), (centre + width / 2.0) / axisUnit());
}

QPointF onAxes(const GridPoint& point) {
    return QPointF(point.easting, point.northing) / axisUnit();
}

double squaredDistance(const QPointF& left, const QPointF& right) {
    const QPointF difference = left - right;
    return QPointF::dotProduct(difference, difference);
}

} // namespace

AreaPlot::AreaPlot(const QString& accessibleName, QWidget* parent)
    : QwtPlot(parent)
    , spectrogram(new QwtPlotSpectrogram)
    , originMarker(new QwtPlotMarker(PanelText::tr("Origin")))
    , checkedMarker(new QwtPlotMarker(PanelText::tr("Checked point"))) {
    setAccessibleName(accessibleName);
    setUpAxes();
    spectrogram->setDisplayMode(QwtPlotSpectrogram::ContourMode, true);
    spectrogram->setDefaultContourPen(Colours::line, 1.0);
    spectrogram->setConrecFlag(QwtRasterData::IgnoreAllVerticesOnLevel, false);
    spectrogram->setRenderThreadCount(0); // as many as the machine has
    spectrogram->attach(this);
    meridian = newLine(PanelText::tr("Central meridian"), Qt::DashLine);
    for (int i = 0; i < parallelCount; ++i)
        parallels.append(newLine(PanelText::tr("Standard parallel"), Qt::DotLine));
    originMarker->setSymbol(new QwtSymbol(QwtSymbol::Cross, QBrush(), QPen(Qt::black, 2.0), QSize(13, 13)));
    originMarker->attach(this);
    areaOutline = newLine(PanelText::tr("Outline of the area"), Qt::SolidLine);
    areaOutline->setPen(Qt::black, 1.5);
    checkedMarker->setSymbol(
        new QwtSymbol(QwtSymbol::Ellipse, QBrush(Qt::yellow), QPen(Qt::black, 2.0), QSize(10, 10)));
    checkedMarker->setZ(40.0);
    checkedMarker->attach(this);
    keyMark = new QwtPlotMarker;
    keyMark->setLineStyle(QwtPlotMarker::Cross);
    keyMark->setLinePen(Qt::black, 1.0);
    keyMark->setZ(50.0);
    keyMark->attach(this);

    setCanvasBackground(Qt::white);
    auto* frame = qobject_cast<QwtPlotCanvas*>(canvas());
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setMouseTracking(true);
    frame->installEventFilter(this);
    clear();
}

void AreaPlot::setUpAxes() {
    const QFont small = font();
    for (const int axis : axes) {
        setAxisFont(axis, small);
        setAxisScaleDraw(axis, new PlainScaleDraw);
        setAxisMaxMajor(axis, 5);
        axisWidget(axis)->setMargin(0);
    }
    axisWidget(yRight)->setColorBarEnabled(true);
    axisWidget(yRight)->setColorBarWidth(12);
    plotLayout()->setAlignCanvasToScales(true);
}

void AreaPlot::showTitles(const QString& unit) {
    for (const int axis : axes) {
        QwtText title(axis == xBottom ? PanelText::tr("Easting, %1").arg(axisUnitText())
                      : axis == yLeft ? PanelText::tr("Northing, %1").arg(axisUnitText())
                                      : unit);
        title.setFont(font());
        setAxisTitle(axis, title);
    }
}

QwtPlotCurve* AreaPlot::newLine(const QString& title, Qt::PenStyle style) {
    auto* curve = new QwtPlotCurve(title);
    curve->setPen(Colours::gridLine, 2.0, style);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(this);
    return curve;
}

void AreaPlot::enableAxes(bool enable) {
    for (const int axis : axes)
        enableAxis(axis, enable);
}

GridArea AreaPlot::fitted(const GridArea& area) const {
    const QSize size = canvas()->contentsRect().size().expandedTo(QSize(1, 1));
    const double metresPerPixel = std::max(area.width / size.width(), area.height / size.height());
    return {area.centre, metresPerPixel * size.width(), metresPerPixel * size.height()};
}

QSize AreaPlot::nodeCount() const {
    const QSize size = canvas()->contentsRect().size() / pixelsPerNode;
    return size.expandedTo(QSize(2, 2));
}

void AreaPlot::showValues(const AreaValues& values, const GridArea& area, const Unit& unit) {
    if (values.isEmpty()) {
        clear();
        return;
    }
    enableAxes(true);
    showTitles(unit.symbol);
    const QwtInterval easting = interval(area.centre.easting, area.width);
    const QwtInterval northing = interval(area.centre.northing, area.height);
    setAxisScale(xBottom, easting.minValue(), easting.maxValue());
    setAxisScale(yLeft, northing.minValue(), northing.maxValue());
    auto* raster = new QwtMatrixRasterData;
    raster->setResampleMode(QwtMatrixRasterData::BilinearInterpolation);
    raster->setValueMatrix(values.values(), values.columnCount());
    // Qwt takes the values for those of cells' middles: the outer nodes lie half a cell inside.
    const QSizeF cell(easting.width() / (values.columnCount() - 1), northing.width() / (values.rowCount() - 1));
    raster->setInterval(Qt::XAxis,
                        QwtInterval(easting.minValue() - cell.width() / 2.0, easting.maxValue() + cell.width() / 2.0));
    raster->setInterval(
        Qt::YAxis, QwtInterval(northing.minValue() - cell.height() / 2.0, northing.maxValue() + cell.height() / 2.0));
    spectrogram->setData(raster);
    spectrogram->setVisible(true);
    setColours(values, unit.noise);
    const bool isEven = values.largest() - values.smallest() <= 2.0 * unit.noise;
    const QList<double> levels = isEven ? QList<double>() : values.contourLevels(contourCount).toList();
    spectrogram->setContourLevels(levels);
    updateAxes();
    updateLayout(); // not before the next event otherwise, and the labels need the final canvas
    showLabels(levels);
    describe(values, area, unit.symbol);
    setFocusPolicy(Qt::TabFocus);
}

/// What is seen at a glance, for who does not see it.
void AreaPlot::describe(const AreaValues& values, const GridArea& area, const QString& unit) {
    const auto text = [](double number) { return NumberText::rounded(number, 3); };
    const QVector<GridPoint> nodes = AreaValues::nodes(area, values.columnCount(), values.rowCount());
    const auto extreme = [&](const QString& sentence, double value) {
        const QPointF place = onAxes(nodes[values.values().indexOf(value)]);
        return sentence.arg(text(value), unit, text(place.x()), text(place.y()));
    };
    const QwtInterval easting = interval(area.centre.easting, area.width);
    const QwtInterval northing = interval(area.centre.northing, area.height);
    summary = PanelText::joined(
        {extreme(PanelText::tr("Smallest value: %1 %2 at easting %3, northing %4."), values.smallest()),
         extreme(PanelText::tr("Largest value: %1 %2 at easting %3, northing %4."), values.largest()),
         PanelText::tr("The picture: easting %1 to %2, northing %3 to %4, in %5.")
             .arg(text(easting.minValue()), text(easting.maxValue()), text(northing.minValue()),
                  text(northing.maxValue()), axisUnitText()),
         PanelText::tr("The arrow keys move a mark over it.")});
    setAccessibleDescription(summary);
}

void AreaPlot::describePlace(const QString& text) {
    setAccessibleDescription(text.isEmpty() ? summary : text + ". " + summary);
}

void AreaPlot::setColours(const AreaValues& values, double noise) {
    const double low = values.smallest() - noise;
    const double high = values.largest() + noise;
    const QwtInterval colours = AreaColours::interval(low, high);
    spectrogram->data()->setInterval(Qt::ZAxis, colours);
    spectrogram->setColorMap(new AreaColours);
    axisWidget(yRight)->setColorMap(colours, new AreaColours);
    setAxisScale(yRight, low, high);
}

void AreaPlot::showLabels(const QList<double>& levels) {
    for (QwtPlotMarker* label : qAsConst(labels)) {
        label->detach();
        delete label;
    }
    labels.clear();
    const QwtRasterData* const raster = spectrogram->data();
    const QRectF area(axisInterval(xBottom).minValue(), axisInterval(yLeft).minValue(), axisInterval(xBottom).width(),
                      axisInterval(yLeft).width());
    const auto lines = raster->contourLines(area, nodeCount() / 2, levels, QwtRasterData::IgnoreOutOfRange);
    // Each contour has a label where it comes nearest to the middle of the south-western and north-eastern quarters.
    const QPointF quarter(area.width() / 4.0, area.height() / 4.0);
    for (auto line = lines.constBegin(); line != lines.constEnd(); ++line) {
        for (const QPointF& aim : {area.center() - quarter, area.center() + quarter}) {
            const bool west = aim.x() < area.center().x();
            const QPointF* best = nullptr;
            for (const QPointF& point : line.value()) {
                const bool fits = (point.x() < area.center().x()) == west;
                if (fits && (!best || squaredDistance(point, aim) < squaredDistance(*best, aim)))
                    best = &point;
            }
            if (best)
                addLabel(line.key(), *best);
        }
    }
}

void AreaPlot::addLabel(double level, const QPointF& place) {
    QwtText text(QString::number(level, 'g', 10));
    text.setColor(Qt::black);
    text.setBackgroundBrush(QColor(255, 255, 255, 190));
    text.setBorderRadius(2.0);
    const QSizeF size = text.textSize(font());
    // A label that would cover another one is left out.
    const QPointF pixel(canvasMap(xBottom).transform(place.x()), canvasMap(yLeft).transform(place.y()));
    const QRectF frame(pixel - QPointF(size.width() / 2.0, size.height() / 2.0), size);
    const QRectF room = frame.adjusted(-6.0, -2.0, 6.0, 2.0);
    for (const QwtPlotMarker* other : qAsConst(labels)) {
        const QPointF otherPixel(canvasMap(xBottom).transform(other->xValue()),
                                 canvasMap(yLeft).transform(other->yValue()));
        const QSizeF otherSize = other->label().textSize(font());
        if (room.intersects(QRectF(otherPixel - QPointF(otherSize.width() / 2.0, otherSize.height() / 2.0), otherSize)))
            return;
    }
    if (!QRectF(canvas()->contentsRect()).contains(frame))
        return;
    auto* label = new QwtPlotMarker;
    label->setItemAttribute(QwtPlotItem::Legend, false);
    label->setLabel(text);
    label->setValue(place);
    label->setZ(30.0);
    label->attach(this);
    labels.append(label);
}

void AreaPlot::drawLine(QwtPlotCurve* curve, const DistortionLines::Line& line) {
    QVector<QPointF> points;
    for (const GridPoint& point : line)
        points.append(onAxes(point));
    curve->setSamples(points);
    curve->setVisible(!points.isEmpty());
}

void AreaPlot::showLines(const DistortionLines& lines) {
    drawLine(meridian, lines.centralMeridian());
    for (int i = 0; i < parallelCount; ++i) {
        const bool used = i < int(lines.standardParallels().size());
        drawLine(parallels[i], used ? lines.standardParallels()[std::size_t(i)] : DistortionLines::Line());
    }
    replot();
}

void AreaPlot::showPlaces(const GridPoint& origin, const std::optional<GridPoint>& checked,
                          const DistortionLines::Line& outline) {
    originMarker->setValue(onAxes(origin));
    originMarker->setVisible(true);
    checkedMarker->setValue(onAxes(checked.value_or(GridPoint())));
    checkedMarker->setVisible(checked.has_value());
    drawLine(areaOutline, outline);
    replot();
    pointAgain();
}

void AreaPlot::clear() {
    for (QwtPlotItem* item : itemList())
        item->setVisible(false);
    enableAxes(false);
    summary = PanelText::tr("The picture is empty.");
    setAccessibleDescription(summary);
    setFocusPolicy(Qt::NoFocus);
    replot();
    pointAgain();
}

void AreaPlot::point(const std::optional<QPoint>& pixel, bool byKeys) {
    const bool wasByKeys = keyMark->isVisible();
    mouse = pixel;
    keyMark->setVisible(byKeys && pixel && spectrogram->isVisible());
    if (wasByKeys && !keyMark->isVisible())
        replot();
    pointAgain();
}

/// Tells what is under the mouse or the mark, if it is over a map.
void AreaPlot::pointAgain() {
    if (keyMark->isVisible()) {
        keyMark->setValue(invTransform(xBottom, mouse->x()), invTransform(yLeft, mouse->y()));
        replot();
    }
    if (mouse && spectrogram->isVisible())
        Q_EMIT pointed(invTransform(xBottom, mouse->x()) * axisUnit(), invTransform(yLeft, mouse->y()) * axisUnit());
    else
        Q_EMIT left();
}

bool AreaPlot::eventFilter(QObject* object, QEvent* event) {
    if (object == canvas() && (event->type() == QEvent::MouseMove || event->type() == QEvent::Leave)) {
        point(event->type() == QEvent::MouseMove ? std::optional<QPoint>(static_cast<QMouseEvent*>(event)->pos())
                                                 : std::nullopt,
              false);
    }
    return QwtPlot::eventFilter(object, event);
}

void AreaPlot::resizeEvent(QResizeEvent* event) {
    QwtPlot::resizeEvent(event);
    Q_EMIT resized();
}

void AreaPlot::keyPressEvent(QKeyEvent* event) {
    const QRect room = canvas()->contentsRect();
    const bool isFine = (event->modifiers() & Qt::ShiftModifier) != 0; // a pixel
    const int step = isFine ? 1 : std::max(1, room.width() / keySteps);
    QPoint way;
    switch (event->key()) {
    case Qt::Key_Left:
        way.rx() = -step;
        break;
    case Qt::Key_Right:
        way.rx() = step;
        break;
    case Qt::Key_Up:
        way.ry() = -step;
        break;
    case Qt::Key_Down:
        way.ry() = step;
        break;
    default:
        QwtPlot::keyPressEvent(event);
        return;
    }
    const QPoint to = mouse.value_or(room.center()) + way;
    point(QPoint(qBound(room.left(), to.x(), room.right()), qBound(room.top(), to.y(), room.bottom())), true);
}

void AreaPlot::focusInEvent(QFocusEvent* event) {
    QwtPlot::focusInEvent(event);
    point(canvas()->contentsRect().center(), true);
}

void AreaPlot::focusOutEvent(QFocusEvent* event) {
    QwtPlot::focusOutEvent(event);
    point(std::nullopt, false);
}

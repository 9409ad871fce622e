#include "panel/check/PointsPlot.h"

#include "panel/check/PlainScaleDraw.h"
#include "panel/field/Colours.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QMouseEvent>
#include <QPainter>
#include <qwt_painter.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_item.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int pixelsPerCell = 4;     ///< of points in one cell, one is drawn
constexpr double vectorShare = 0.15; ///< of the canvas that the longest vector of a sound point takes
constexpr int reach = 8;             ///< pixels around a point that count as it

/// The largest of 1, 2 and 5 times a power of ten that is no more than `value`.
double roundedDown(double value) {
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    const double digits = value / power;
    return power * (digits >= 5.0 ? 5.0 : digits >= 2.0 ? 2.0 : 1.0);
}

double length(const GridPoint& vector) {
    return std::hypot(vector.easting, vector.northing);
}

/// "×2000", "×2·10^8".
QString magnification(double factor) {
    constexpr double longest = 1e7;
    if (factor < longest)
        return "×" + (factor < 1.0 ? QString::number(factor, 'g', 3) : QString::number(factor, 'f', 0));
    const int power = int(std::floor(std::log10(factor) + 1e-9));
    return QString("×%1·10^%2").arg(std::round(factor / std::pow(10.0, power))).arg(power);
}

QString barText(double metres) {
    if (LengthUnit::chosen() != LengthUnit::Metre)
        return QString::number(metres / LengthUnit::metres(), 'g', 3) + QChar(QChar::Nbsp) + LengthUnit::symbol();
    return metres < 1.0 ? QString::number(metres * 1000.0, 'g', 3) + QChar(QChar::Nbsp) + "mm"
                        : QString::number(metres, 'f', 0) + QChar(QChar::Nbsp) + "m";
}

} // namespace

/// The points and vectors; coordinates of the plot are in the chosen unit.
class ResidualItem : public QwtPlotItem {
public:
    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF& canvas) const override;

    QPointF pixel(const GridPoint& place, const QwtScaleMap& xMap, const QwtScaleMap& yMap) const {
        const double unit = LengthUnit::metres();
        return {xMap.transform(place.easting / unit), yMap.transform(place.northing / unit)};
    }

    QVector<PointsPlot::Mark> marks;
    double factor = 0.0; ///< of the vectors over the map's scale; 0 without vectors
    std::optional<GridPoint> selected;

private:
    void drawBar(QPainter* painter, double pixelsPerMetre, const QRectF& canvas) const;
};

void ResidualItem::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                        const QRectF& canvas) const {
    painter->setRenderHint(QPainter::Antialiasing, marks.size() < 3000);
    const double pixelsPerMetre = xMap.pDist() / xMap.sDist() / LengthUnit::metres();
    for (const PointsPlot::Mark& mark : marks) {
        const QPointF at = pixel(mark.place, xMap, yMap);
        const QColor colour = !mark.isUsed ? Colours::leftOut : mark.isBeyond ? Colours::beyond : Colours::sound;
        if (factor > 0.0 && !std::isnan(mark.difference.easting)) {
            painter->setPen(QPen(colour, 1.5));
            const double scale = pixelsPerMetre * factor;
            // Far beyond the canvas a line has no end that a painter knows.
            const double shrink = std::min(1.0, 5000.0 / (length(mark.difference) * scale + 1e-300));
            painter->drawLine(at, at + scale * shrink * QPointF(mark.difference.easting, -mark.difference.northing));
        }
        painter->setPen(mark.isUsed ? QPen(Qt::NoPen) : QPen(colour, 1.0));
        painter->setBrush(mark.isUsed ? QBrush(colour) : QBrush(Qt::NoBrush));
        // A shape for each colour.
        if (mark.isUsed && mark.isBeyond)
            painter->drawRect(QRectF(at - QPointF(3.0, 3.0), QSizeF(6.0, 6.0)));
        else
            painter->drawEllipse(at, 2.5, 2.5);
    }
    if (selected) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(Qt::black, 2.0));
        painter->drawEllipse(pixel(*selected, xMap, yMap), 7.0, 7.0);
    }
    if (factor > 0.0)
        drawBar(painter, pixelsPerMetre, canvas);
}

/// How long a round residual is drawn.
void ResidualItem::drawBar(QPainter* painter, double pixelsPerMetre, const QRectF& canvas) const {
    const double unit = LengthUnit::metres();
    const double residual = roundedDown(vectorShare * canvas.width() / (pixelsPerMetre * factor) / unit) * unit;
    const double pixels = residual * pixelsPerMetre * factor;
    const QString text = barText(residual) + ' ' + magnification(factor);
    constexpr int flags = Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap; // a narrow picture has two lines
    const QRectF room = canvas.adjusted(5.0, 5.0, -3.0, -12.0);
    const QRectF words = painter->boundingRect(room, flags, text);
    const QPointF start(canvas.left() + 5.0, canvas.bottom() - 8.0);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(255, 255, 255, 200));
    painter->drawRect(QRectF(start + QPointF(-4.0, -words.height() - 6.0),
                             QSizeF(std::max(pixels, words.width()) + 10.0, words.height() + 12.0)));
    painter->setPen(QPen(Qt::black, 2.0));
    painter->drawLine(start, start + QPointF(pixels, 0.0));
    painter->drawText(room, flags, text);
}

PointsPlot::PointsPlot(QWidget* parent) : QwtPlot(parent), item(new ResidualItem) {
    setAccessibleName(PanelText::tr("Picture of the points"));
    const QFont small = font();
    for (const int axis : {xBottom, yLeft}) {
        setAxisFont(axis, small);
        setAxisScaleDraw(axis, new PlainScaleDraw);
        setAxisMaxMajor(axis, 4);
        axisWidget(axis)->setMargin(0);
    }
    plotLayout()->setAlignCanvasToScales(true);
    setCanvasBackground(Qt::white);
    item->attach(this);
    auto* frame = qobject_cast<QwtPlotCanvas*>(canvas());
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setMouseTracking(true);
    frame->installEventFilter(this);
}

std::optional<double> PointsPlot::exaggeration() const {
    return item->factor > 0.0 ? std::optional<double>(item->factor) : std::nullopt;
}

const QVector<PointsPlot::Mark>& PointsPlot::marks() const {
    return item->marks;
}

const std::optional<GridPoint>& PointsPlot::selected() const {
    return item->selected;
}

void PointsPlot::begin(const GridPoint& lowest, const GridPoint& highest, double newTolerance) {
    constexpr double least = 10.0, margin = 1.15; // metres across, and room around the outermost points
    tolerance = newTolerance;
    longest = longestSound = 0.0;
    cells.clear();
    weights.clear();
    if (lowest.easting > highest.easting)
        return;
    size = canvas()->contentsRect().size().expandedTo(QSize(pixelsPerCell, pixelsPerCell));
    metresPerPixel = margin * std::max({(highest.easting - lowest.easting) / size.width(),
                                        (highest.northing - lowest.northing) / size.height(), least / size.width()});
    lower = {(lowest.easting + highest.easting - metresPerPixel * size.width()) / 2.0,
             (lowest.northing + highest.northing - metresPerPixel * size.height()) / 2.0};
    const QSize count = size / pixelsPerCell + QSize(1, 1);
    cells.resize(std::size_t(count.width()) * std::size_t(count.height()));
    weights.assign(cells.size(), -1.0);
}

void PointsPlot::add(const PointTable& table, std::size_t first, std::size_t last) {
    const int columns = size.width() / pixelsPerCell + 1;
    for (std::size_t row = first; row < last && !cells.empty(); ++row) {
        const GridPoint place = table.grid(row);
        if (std::isnan(place.easting) || std::isnan(place.northing))
            continue;
        const double cellSize = metresPerPixel * pixelsPerCell;
        const double column = std::floor((place.easting - lower.easting) / cellSize);
        const double line = std::floor((place.northing - lower.northing) / cellSize);
        const double cell = line * columns + column;
        if (!(column >= 0.0 && column < columns && cell >= 0.0 && cell < double(cells.size())))
            continue;
        const bool isUsed = table.isUsed(row);
        const GridPoint difference = table.difference(row);
        const double distance = length(difference);
        if (isUsed && !std::isnan(distance)) {
            longest = std::max(longest, distance);
            if (distance <= tolerance)
                longestSound = std::max(longestSound, distance);
        }
        const double weight = std::isnan(distance) || !isUsed ? 0.0 : distance;
        if (weight > weights[std::size_t(cell)]) {
            weights[std::size_t(cell)] = weight;
            cells[std::size_t(cell)] = {row, place, difference, isUsed, distance > tolerance};
        }
    }
}

void PointsPlot::finish() {
    item->marks.clear();
    item->factor = 0.0;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        if (weights[cell] >= 0.0)
            item->marks.append(cells[cell]);
    }
    for (const int axis : {xBottom, yLeft})
        enableAxis(axis, !cells.empty());
    if (!cells.empty()) {
        constexpr double noise = 1e-6; // of the computation, metres
        const double reference = longestSound > noise ? longestSound : longest;
        if (reference > noise)
            item->factor =
                roundedDown(vectorShare * metresPerPixel * std::min(size.width(), size.height()) / reference);
        const double unit = LengthUnit::metres();
        const GridPoint upper{lower.easting + metresPerPixel * size.width(),
                              lower.northing + metresPerPixel * size.height()};
        setAxisMaxMajor(xBottom, std::max(1, size.width() / fontMetrics().horizontalAdvance("-12345678900")));
        setAxisScale(xBottom, lower.easting / unit, upper.easting / unit);
        setAxisScale(yLeft, lower.northing / unit, upper.northing / unit);
    }
    for (const int axis : {xBottom, yLeft}) {
        const QString title = axis == xBottom ? PanelText::tr("Easting, %1") : PanelText::tr("Northing, %1");
        QwtText small(title.arg(LengthUnit::symbol()));
        small.setFont(font());
        // Beside a small picture the unit alone has room.
        if (small.textSize().width() + fontMetrics().height() > (axis == xBottom ? size.width() : size.height()))
            small.setText(LengthUnit::symbol());
        setAxisTitle(axis, small);
    }
    replot();
    describe();
    // The axes' numbers may need another width than before. Once more is enough: two shapes could make each other
    // needed.
    updateLayout();
    isSecond = !isSecond && !cells.empty() && canvas()->contentsRect().size() != size;
    if (isSecond)
        QMetaObject::invokeMethod(this, "resized", Qt::QueuedConnection);
}

/// What is seen at a glance, for who does not see it.
void PointsPlot::describe() {
    if (item->marks.isEmpty()) {
        setAccessibleDescription(PanelText::tr("The picture is empty."));
        return;
    }
    const auto count = [this](auto condition) {
        return QString::number(std::count_if(item->marks.begin(), item->marks.end(), condition));
    };
    const auto text = [](double number) { return QString::number(number, 'f', 0); };
    QStringList sentences{
        PanelText::tr("Points drawn: %1, beyond the tolerance: %2, left out: %3.")
            .arg(count([](const Mark&) { return true; }), count([](const Mark& mark) { return mark.isBeyond; }),
                 count([](const Mark& mark) { return !mark.isUsed; })),
        PanelText::tr("The picture: easting %1 to %2, northing %3 to %4, in %5.")
            .arg(text(axisInterval(xBottom).minValue()), text(axisInterval(xBottom).maxValue()),
                 text(axisInterval(yLeft).minValue()), text(axisInterval(yLeft).maxValue()), LengthUnit::symbol())};
    if (item->factor > 0.0)
        sentences << PanelText::tr("Largest difference: %1 %2; differences are drawn %3.")
                         .arg(LengthUnit::text(longest), LengthUnit::symbol(), magnification(item->factor));
    setAccessibleDescription(PanelText::joined(sentences));
}

void PointsPlot::setSelected(const GridPoint& place) {
    item->selected.reset();
    if (!std::isnan(place.easting) && !std::isnan(place.northing))
        item->selected = place;
    replot();
}

/// The row of the point nearest to a pixel of the canvas, -1 where there is none.
int PointsPlot::rowAt(const QPoint& pixel) const {
    const QwtScaleMap xMap = canvasMap(xBottom), yMap = canvasMap(yLeft);
    int row = -1;
    double nearest = double(reach);
    for (const Mark& mark : qAsConst(item->marks)) {
        const QPointF away = item->pixel(mark.place, xMap, yMap) - pixel;
        const double distance = std::hypot(away.x(), away.y());
        if (distance <= nearest) {
            nearest = distance;
            row = int(mark.row);
        }
    }
    return row;
}

bool PointsPlot::eventFilter(QObject* object, QEvent* event) {
    if (object == canvas()) {
        if (event->type() == QEvent::MouseMove)
            Q_EMIT pointed(rowAt(static_cast<QMouseEvent*>(event)->pos()));
        else if (event->type() == QEvent::Leave)
            Q_EMIT pointed(-1);
        else if (event->type() == QEvent::MouseButtonPress) {
            const int row = rowAt(static_cast<QMouseEvent*>(event)->pos());
            if (row >= 0)
                Q_EMIT clicked(row);
        }
    }
    return QwtPlot::eventFilter(object, event);
}

void PointsPlot::resizeEvent(QResizeEvent* event) {
    QwtPlot::resizeEvent(event);
    Q_EMIT resized();
}

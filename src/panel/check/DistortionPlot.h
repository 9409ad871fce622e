#pragma once

#include "panel/computing/DistortionLines.h"

#include <QVector>
#include <qwt_plot.h>

#include <optional>

class QwtPlotCurve;
class QwtPlotMarker;
class QwtPlotSpectrogram;

/// The picture of a system's linear distortion: a map coloured by ppm with labelled contours, axes in kilometres or
/// thousands of feet, the central meridian, standard parallels, origin, checked point and the area to design for. White
/// is no distortion, blue is grid shorter than ground, red longer.
class DistortionPlot : public QwtPlot {
    Q_OBJECT

public:
    explicit DistortionPlot(QWidget* parent = nullptr);

    /// The least area of the canvas's shape that has all of `area` and its centre.
    DistortionArea fitted(const DistortionArea& area) const;

    /// How many nodes a picture of the canvas's size needs.
    QSize nodeCount() const;

    /// Shows the values of `grid` over `area`. The axes' numbers may need another width than before; then the canvas's
    /// shape changes.
    void showDistortion(const DistortionGrid& grid, const DistortionArea& area);
    void showLines(const DistortionLines& lines);

    /// Marks the origin, the checked point (unless there is none), and the outline of the area to design for.
    void showPlaces(const GridPoint& origin, const std::optional<GridPoint>& checked,
                    const DistortionLines::Line& designed);

    /// No picture and no scales.
    void clear();

Q_SIGNALS:
    /// The mouse is over this place of the grid (metres), or the map under it has changed.
    void pointed(double easting, double northing);
    void left();

    /// The plot has another size.
    void resized();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setUpAxes();
    void showUnits();
    void enableAxes(bool enable);
    void pointAgain();
    void showLabels(const QList<double>& levels);
    void setColours(const DistortionGrid& grid);
    void addLabel(double level, const QPointF& place);
    QwtPlotCurve* newLine(const QString& title, Qt::PenStyle style);
    void drawLine(QwtPlotCurve* curve, const DistortionLines::Line& line);

    QwtPlotSpectrogram* spectrogram;
    QwtPlotCurve* meridian;
    QVector<QwtPlotCurve*> parallels;
    QwtPlotMarker* originMarker;
    QwtPlotMarker* checkedMarker;
    QwtPlotCurve* designOutline;
    std::optional<QPoint> mouse; ///< over the canvas
    QVector<QwtPlotMarker*> labels;
};

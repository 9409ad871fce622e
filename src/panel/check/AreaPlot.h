#pragma once

#include "panel/computing/DistortionLines.h"

#include <QVector>
#include <qwt_plot.h>

#include <optional>

class QwtPlotCurve;
class QwtPlotMarker;
class QwtPlotSpectrogram;

/// The picture of values over an area of a system's grid: a coloured map with labelled contours, axes in kilometres or
/// thousands of feet, the central meridian, standard parallels, origin, checked point and an outline. White is 0, blue
/// below it, red above. Where the mouse points, the arrow keys lead to as well; a screen reader is told in words what
/// there is to see.
class AreaPlot : public QwtPlot {
    Q_OBJECT

public:
    /// What the values are measured in.
    struct Unit {
        QString symbol;
        double noise; ///< of the computation: what differs by less counts as the same
    };

    explicit AreaPlot(const QString& accessibleName, QWidget* parent = nullptr);

    /// The least area of the canvas's shape that has all of `area` and its centre.
    GridArea fitted(const GridArea& area) const;

    /// How many nodes a picture of the canvas's size needs.
    QSize nodeCount() const;

    /// Shows `values` over `area`. The axes' numbers may need another width than before; then the canvas's shape
    /// changes.
    void showValues(const AreaValues& values, const GridArea& area, const Unit& unit);
    void showLines(const DistortionLines& lines);

    /// Marks the origin, the checked point (unless there is none), and the outline of an area.
    void showPlaces(const GridPoint& origin, const std::optional<GridPoint>& checked,
                    const DistortionLines::Line& outline);

    /// No picture and no scales.
    void clear();

    /// What is under the mouse or the arrow keys' mark, in words.
    void describePlace(const QString& text);

Q_SIGNALS:
    /// The mouse, or the arrow keys' mark, is over this place of the grid (metres), or the map under it has changed.
    void pointed(double easting, double northing);
    void left();

    /// The plot has another size.
    void resized();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void setUpAxes();
    void showTitles(const QString& unit);
    void enableAxes(bool enable);
    void point(const std::optional<QPoint>& pixel, bool byKeys);
    void pointAgain();
    void describe(const AreaValues& values, const GridArea& area, const QString& unit);
    void showLabels(const QList<double>& levels);
    void setColours(const AreaValues& values, double noise);
    void addLabel(double level, const QPointF& place);
    QwtPlotCurve* newLine(const QString& title, Qt::PenStyle style);
    void drawLine(QwtPlotCurve* curve, const DistortionLines::Line& line);

    QwtPlotSpectrogram* spectrogram;
    QwtPlotCurve* meridian;
    QVector<QwtPlotCurve*> parallels;
    QwtPlotMarker* originMarker;
    QwtPlotMarker* checkedMarker;
    QwtPlotCurve* areaOutline;
    QwtPlotMarker* keyMark;      ///< where the arrow keys have led
    std::optional<QPoint> mouse; ///< over the canvas, or the mark
    QString summary;             ///< of the map, in words
    QVector<QwtPlotMarker*> labels;
};

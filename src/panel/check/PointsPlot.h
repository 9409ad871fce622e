#pragma once

#include "panel/computing/PointTable.h"

#include <QVector>
#include <qwt_plot.h>

#include <optional>

class ResidualItem;

/// The picture of a table of points: where they lie on the grid, with the vector from each given place towards the
/// computed one, made longer by a round factor that a scale bar tells. Points beyond the tolerance are red
/// squares, those left out grey rings. Of points closer together than a few pixels only the one that is off most is
/// drawn, so that a million cost no more than some thousands.
class PointsPlot : public QwtPlot {
    Q_OBJECT

public:
    /// A drawn point, in metres.
    struct Mark {
        std::size_t row;
        GridPoint place;
        GridPoint difference; ///< NaN where there is none
        bool isUsed;
        bool isBeyond;
    };

    explicit PointsPlot(QWidget* parent = nullptr);

    /// Begins a new picture, of points that lie between two corners of the grid; `tolerance` in metres. The one shown
    /// stays until finish().
    void begin(const GridPoint& lowest, const GridPoint& highest, double tolerance);

    /// Adds the rows from `first` to before `last`.
    void add(const PointTable& table, std::size_t first, std::size_t last);

    void finish();

    /// Rings a place of the grid, in metres; none where it has none (NaN).
    void setSelected(const GridPoint& place);

    /// How much longer vectors are than at the map's own scale; nothing where there are none.
    std::optional<double> exaggeration() const;
    const QVector<Mark>& marks() const;

    /// The place with the ring.
    const std::optional<GridPoint>& selected() const;

Q_SIGNALS:
    /// The mouse is over this row's point, or over none: -1.
    void pointed(int row);
    void clicked(int row);

    /// The plot, or its canvas, has another size.
    void resized();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int rowAt(const QPoint& pixel) const;
    void describe();

    ResidualItem* item;
    bool isSecond = false; ///< the next picture is drawn for a canvas that the one before has changed

    // Of the picture that is being made:
    QSize size;      ///< of the canvas
    GridPoint lower; ///< the canvas's south-western corner
    double metresPerPixel = 0.0;
    double tolerance = 0.0;
    double longest = 0.0;      ///< residual of a point in use
    double longestSound = 0.0; ///< of one within the tolerance
    std::vector<Mark> cells;
    std::vector<double> weights; ///< of the cells' points; negative where there is none
};

#pragma once

#include "panel/computing/PointTable.h"

#include <QVector>
#include <qwt_plot.h>

#include <optional>

class ResidualItem;

/// The picture of a table of points: where they lie on the grid, with the vector from each given place towards the
/// computed one, made longer by a round factor that a scale bar tells. Points beyond the tolerance are red, those left
/// out grey. Of points closer together than a few pixels only the one that is off most is drawn, so that a million cost
/// no more than some thousands.
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

    /// Draws the points of `table`; `tolerance` in metres.
    void showPoints(const PointTable& table, double tolerance);

    /// Rings one row's point, or none for -1.
    void setSelected(int row);

    /// How much longer vectors are than at the map's own scale; nothing where there are none.
    std::optional<double> exaggeration() const;
    const QVector<Mark>& marks() const;

Q_SIGNALS:
    /// The mouse is over this row's point, or over none: -1.
    void pointed(int row);
    void clicked(int row);

    /// The plot has another size.
    void resized();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int rowAt(const QPoint& pixel) const;

    ResidualItem* item;
};

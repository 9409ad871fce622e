#pragma once

#include <QWidget>

#include <array>

class QLabel;
struct PointStatistics;

/// Mean, RMS and largest difference of the control points, in the unit of length chosen now, and how many there are.
class PointFigures : public QWidget {
    Q_OBJECT

public:
    explicit PointFigures(QWidget* parent = nullptr);

    /// `rows` is the length of the table.
    void setStatistics(const PointStatistics& statistics, std::size_t rows);

private:
    enum Column { Mean, Rms, Largest, ColumnCount };
    enum Line { East, North, Total, LineCount };

    std::array<std::array<QLabel*, ColumnCount>, LineCount> figures;
    QLabel* counts;
};

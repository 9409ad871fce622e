#pragma once

#include "panel/computing/FitToPoints.h"

#include <QWidget>

#include <array>
#include <memory>
#include <vector>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class ShownSystem;

/// "Fit": which false origin, scale factor and line would meet the control points best, what that leaves, and the
/// button that takes it over. Lengths are in the unit chosen now.
class FitBox : public QWidget {
    Q_OBJECT

public:
    explicit FitBox(bool readOnly, QWidget* parent = nullptr);

    /// Fits the system `shown` to points that are known on the own datum and on the grid.
    void setPoints(const std::shared_ptr<const ShownSystem>& shown, const QVector<KnownPoint>& known);

    /// As shown.
    const FitToPoints& fit() const { return result; }

    /// What the fit leaves, in metres, computed minus given, at each of the first `rows` rows of the table that the
    /// points are of; NaN where it knows none. Empty without a fit.
    std::vector<GridPoint> residuals(std::size_t rows) const;

Q_SIGNALS:
    /// fit() is another.
    void fitChanged();

    /// The user takes fit() over.
    void accepted();

private Q_SLOTS:
    void _onChoiceChanged();
    void _onAcceptClicked();

private:
    enum Value { Line, Factor, East, North, ValueCount };

    /// One value that can be estimated or held.
    struct Row {
        QCheckBox* box;
        QLabel* before;
        QLabel* after;
    };

    void buildRow(QGridLayout* grid, Value value, const QString& title);
    bool isChosen(Value value) const;
    void showFit();
    void showValues();
    QString remainderText() const;

    bool readOnly;
    std::shared_ptr<const ShownSystem> system;
    QVector<KnownPoint> points;
    FitToPoints result;
    std::array<Row, ValueCount> values{};
    QLabel* misfitBefore;
    QLabel* misfitAfter;
    QLabel* problemLabel;
    QLabel* remainderLabel;
    QLabel* diagnosisLabel;
    QPushButton* acceptButton;
};

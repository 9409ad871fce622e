#pragma once

#include "panel/computing/FitToPoints.h"

#include <QWidget>

#include <memory>

class QCheckBox;
class QLabel;
class QPushButton;
class ShownSystem;

/// "Fit": which false origin, scale factor and line would meet the control points best, what that leaves, and the
/// button that takes it over.
class FitBox : public QWidget {
    Q_OBJECT

public:
    explicit FitBox(bool readOnly, QWidget* parent = nullptr);

    /// Fits the system `shown` to points that are known on the own datum and on the grid.
    void setPoints(const std::shared_ptr<const ShownSystem>& shown, const QVector<KnownPoint>& known);

    /// As shown.
    const FitToPoints& fit() const { return result; }

Q_SIGNALS:
    /// The user takes fit() over.
    void accepted();

private Q_SLOTS:
    void _onChoiceChanged();
    void _onAcceptClicked();

private:
    void showFit();
    QString effectText() const;

    bool readOnly;
    std::shared_ptr<const ShownSystem> system;
    QVector<KnownPoint> points;
    FitToPoints result;
    QCheckBox* eastingBox;
    QCheckBox* northingBox;
    QCheckBox* factorBox;
    QCheckBox* lineBox;
    QLabel* changesLabel;
    QLabel* effectLabel;
    QLabel* diagnosisLabel;
    QPushButton* acceptButton;
};

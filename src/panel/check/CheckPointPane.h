#pragma once

#include "panel/computing/CheckPoint.h"

#include <QWidget>

#include <array>
#include <memory>

class CheckField;
class ChoiceBox;
class MessageLine;
class QGridLayout;
class QLabel;
class CopyButton;
class ShownSystem;

/// A point in latitude and longitude and on the grid, each computed from the other while the user types, with scale
/// factor, convergence and the closing error of the round trip.
class CheckPointPane : public QWidget {
    Q_OBJECT

public:
    explicit CheckPointPane(QWidget* parent = nullptr);

    /// Computes the shown point through the system `shown`. While the user has typed no point, it is the system's
    /// origin.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown);

    /// Shows angles and lengths anew in the notation and the unit chosen now.
    void showNotation();

    /// Keeps a point that was typed on the grid where it is on the ground, whatever becomes of the grid.
    void keepPlace();

    /// The point on the own datum, or nothing while there is none.
    std::optional<GeographicPoint> place() const;

private Q_SLOTS:
    void _onPlaceEdited();
    void _onGridEdited();
    void _onDatumChanged();
    void _onCopy();

private:
    enum class Source { Origin, Place, Grid };
    enum Result { ScaleFactor, Convergence, CombinedFactor, OtherDatum, ClosingError, ResultCount };

    void addPlaceFields(QGridLayout* grid);
    void addGridFields(QGridLayout* grid);
    void addResults(QGridLayout* grid);
    CheckPoint::Datum datum() const;
    const IProjectedSystem* projection() const;
    std::optional<CheckPoint> compute() const;
    void recompute();
    bool isComplete() const;
    void showResults();
    void showConvergence();
    void showClosingError();
    QString unknownShiftText() const;
    QString placeText(const GeographicPoint& place) const;

    std::shared_ptr<const ShownSystem> system;
    Source source = Source::Origin;
    std::optional<CheckPoint> point;

    ChoiceBox* datumBox;
    CheckField* latitude;
    CheckField* longitude;
    CheckField* height;
    CheckField* easting;
    CheckField* northing;
    MessageLine* placeMessage;
    MessageLine* gridMessage;
    std::array<QLabel*, ResultCount> labels;
    std::array<QLabel*, ResultCount> results;
    CopyButton* copyButton;
};

#pragma once

#include "panel/computing/AreaValues.h"
#include "panel/computing/DesignArea.h"
#include "panel/computing/DistortionLines.h"

#include <QWidget>

#include <memory>
#include <optional>

class ChoiceBox;
class ShownSystem;

/// Chooses the area that a map of a system shows: a square on the ground around one of its places.
class AreaBox : public QWidget {
    Q_OBJECT

public:
    enum Centre { Origin, Parallels, CheckedPoint, DesignedArea };

    explicit AreaBox(QWidget* parent = nullptr);

    /// `shown` and the point that the user checks, on its datum, from now on; tells nobody.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown);
    void setCheckedPlace(const std::optional<GeographicPoint>& place);
    const std::optional<GeographicPoint>& checkedPlace() const { return checked; }

    /// Greys what the system does not have; chosen all the same, it stands for the origin.
    void offerCentres();

    Centre chosenCentre() const;

    /// Goes on around `place`, wherever the system's own places go.
    void stayAround(const GeographicPoint& place);

    // What follows needs a system with a projection.
    GridPoint centre() const;

    /// Of the square, in metres.
    double side() const;

    /// Nothing where the projection ends.
    std::optional<DesignArea> square() const;
    DistortionLines::Line outline() const;

    /// All of the square and a little around it, however it is turned on the grid.
    GridArea gridArea(const DistortionLines::Line& outline) const;

Q_SIGNALS:
    /// The user chose another area.
    void areaChanged();

private:
    const IProjectedSystem* projection() const;

    std::shared_ptr<const ShownSystem> system;
    std::optional<GeographicPoint> checked;
    std::optional<GeographicPoint> designed; ///< what stayAround() was last called with
    ChoiceBox* centreBox;
    ChoiceBox* widthBox;
};

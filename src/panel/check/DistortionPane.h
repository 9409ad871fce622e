#pragma once

#include "panel/computing/DesignProposal.h"

#include <QWidget>

#include <memory>

class AreaBox;
class AreaPlot;
class DesignBox;
class NumberBox;
class QLabel;
class ShownSystem;

/// The linear distortion of the system over an area at a mean height: the picture, the value under the mouse, and the
/// scale factor that would make it smallest. Computed and drawn only while it is visible.
class DistortionPane : public QWidget {
    Q_OBJECT

public:
    explicit DistortionPane(bool readOnly, QWidget* parent = nullptr);

    /// Shows the system `shown`. `place` is the point that the user checks, on the system's datum: another place to
    /// look around.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown, const std::optional<GeographicPoint>& place);

    void setCheckedPlace(const std::optional<GeographicPoint>& place);

    /// Shows lengths anew in the unit chosen now, and angles.
    void showUnits();

    /// The proposal that the user takes over.
    const std::optional<DesignProposal>& proposal() const { return designProposal; }

Q_SIGNALS:
    /// The user takes the proposal over.
    void proposalAccepted();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void _onSettingsChanged();
    void _onPlotResized();
    void _onPointed(double easting, double northing);
    void _onLeft();
    void _onAccepted();

private:
    const IProjectedSystem* projection() const;
    void draw();
    void drawOnce();
    void propose();
    double meanHeight() const;
    QVector<GeographicPoint> designPoints() const;

    std::shared_ptr<const ShownSystem> system;
    std::optional<DesignProposal> designProposal;

    AreaBox* areaBox;
    NumberBox* heightBox;
    double shownUnit = 1.0; ///< metres in one of the height's
    AreaPlot* plot;
    QLabel* readout;
    DesignBox* design;
};

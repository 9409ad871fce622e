#pragma once

#include "panel/computing/DesignProposal.h"
#include "panel/computing/DistortionGrid.h"

#include <QByteArray>
#include <QWidget>

class ChoiceBox;
class DesignBox;
class DistortionPlot;
class IDictionary;
class QLabel;
class QSpinBox;

/// The linear distortion of the system over an area at a mean height: the picture, the value under the mouse, and the
/// scale factor that would make it smallest. Computed and drawn only while it is visible.
class DistortionPane : public QWidget {
    Q_OBJECT

public:
    explicit DistortionPane(bool readOnly, QWidget* parent = nullptr);

    /// The system to show: `record`, and `system` which it defines; both stay the caller's until the next call. Null
    /// for none. `checkedPlace` is the point that the user checks, on the system's datum: the other place to look
    /// around.
    void setSystem(const IDictionary* record, const IProjectedSystem* system,
                   const std::optional<GeographicPoint>& checkedPlace);

    void setCheckedPlace(const std::optional<GeographicPoint>& place);

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

private:
    enum Centre { Origin, Parallels, CheckedPoint };

    void draw();
    void drawOnce();
    void propose();
    void offerCentres();
    GridPoint centre() const;
    QVector<GeographicPoint> designPoints() const;

    const IDictionary* record = nullptr;
    const IProjectedSystem* system = nullptr;
    std::optional<GeographicPoint> checkedPlace;
    DistortionArea area{{0.0, 0.0}, 0.0, 0.0};
    std::optional<DesignProposal> designProposal;

    ChoiceBox* centreBox;
    ChoiceBox* widthBox;
    QSpinBox* heightBox;
    DistortionPlot* plot;
    QLabel* readout;
    DesignBox* design;
};

#pragma once

#include "panel/computing/SystemDifference.h"

#include <QWidget>

#include <array>
#include <memory>

class AreaBox;
class AreaPlot;
class IDictionary;
class MessageLine;
class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class ShownSystem;
class SystemNameLine;

/// The system against another one: what its coordinates are more at the same place on the ground, as a map of an area,
/// under the mouse, at the checked point, and in the mean. Computed and drawn only while it is visible.
class ComparePane : public QWidget {
    Q_OBJECT

public:
    explicit ComparePane(QWidget* parent = nullptr);

    /// Shows the system `shown`; the other one stays. `place` is the point that the user checks, on the system's datum.
    void setSystem(const std::shared_ptr<const ShownSystem>& shown, const std::optional<GeographicPoint>& place);

    void setCheckedPlace(const std::optional<GeographicPoint>& place);

    /// Compares with the system of `record` as it is now; `name` is what the user knows it by.
    void setOther(const IDictionary& record, const QString& name);

    /// Shows lengths anew in the unit chosen now.
    void showUnits();

Q_SIGNALS:
    /// The user wants to choose the other system: setOther() is to follow.
    void catalogueWanted();
    void registryWanted();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void _onSettingsChanged();
    void _onPointed(double easting, double northing);
    void _onLeft();

private:
    enum Row { Mouse, Checked, Mean, Largest, RowCount };
    enum Column { Easting, Northing, Distance, ColumnCount };

    void addResults(QGridLayout* grid);
    std::optional<SystemDifference> difference() const;
    void summarize();
    void draw();
    void drawOnce(const SystemDifference& compared);
    QString remark() const;
    void showOffset(Row row, const std::optional<GridOffset>& offset);
    void showLengths(Row row, const std::array<double, ColumnCount>& metres);

    std::shared_ptr<const ShownSystem> system;
    std::shared_ptr<const ShownSystem> other;
    QString otherName;
    std::optional<SystemDifference::Summary> summary; ///< over the area

    SystemNameLine* nameLine;
    QPushButton* catalogueButton;
    QPushButton* registryButton;
    AreaBox* areaBox;
    QCheckBox* shiftBox;
    QCheckBox* meanBox;
    MessageLine* remarkLine;
    AreaPlot* plot;
    std::array<std::array<QLabel*, ColumnCount>, RowCount> results;
};

#pragma once

#include "panel/computing/DesignProposal.h"

#include <QWidget>

#include <optional>

class ChoiceBox;
class QCheckBox;
class QLabel;
class QPushButton;

/// "Design": what the scale factor (and the line) should be for the least distortion, before and after in ppm, and the
/// button that takes it over.
class DesignBox : public QWidget {
    Q_OBJECT

public:
    explicit DesignBox(bool readOnly, QWidget* parent = nullptr);

    /// Whether to propose for the checked point, rather than for the area of the map.
    bool isForPoint() const;

    /// Whether to propose the line as well.
    bool placesLine() const;

    /// Shows a proposal, or that there is none. `possible` says whether the method has a scale factor to choose, `line`
    /// which line it can place (may be null).
    void showProposal(bool possible, const ParamField* line, const std::optional<DesignProposal>& proposal);

    /// Shows that there is no system to propose for.
    void clear();

Q_SIGNALS:
    /// The user wants a proposal for something else.
    void goalChanged();

    /// The user takes the proposal over.
    void accepted();

private Q_SLOTS:
    void _onAcceptClicked();

private:
    bool readOnly;
    ChoiceBox* goalBox;
    QCheckBox* lineBox;
    QLabel* changesLabel;
    QLabel* effectLabel;
    QPushButton* acceptButton;
};

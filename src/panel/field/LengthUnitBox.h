#pragma once

#include "panel/field/ChoiceBox.h"
#include "panel/record/LengthUnit.h"

/// Chooses the unit of length of the tab "Check", for all panels while the tool runs.
class LengthUnitBox : public ChoiceBox {
    Q_OBJECT

public:
    explicit LengthUnitBox(QWidget* parent = nullptr);

    /// Shows the unit chosen now, here or elsewhere.
    void showUnit();

Q_SIGNALS:
    /// The user chose a unit; it is LengthUnit::chosen() already.
    void unitChosen();

private Q_SLOTS:
    void _onActivated(int index);
};

#pragma once

#include "panel/field/ChoiceBox.h"

/// Chooses how angles are shown, for all panels while the tool runs.
class AngleNotationBox : public ChoiceBox {
    Q_OBJECT

public:
    explicit AngleNotationBox(QWidget* parent = nullptr);

    /// Shows the notation chosen now, here or elsewhere.
    void showNotation();

Q_SIGNALS:
    /// The user chose a notation; it is AngleText::notation() already.
    void notationChosen();

private Q_SLOTS:
    void _onActivated(int index);
};

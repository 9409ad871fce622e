#pragma once

#include "panel/computing/PointLayout.h"
#include "panel/record/LengthUnit.h"
#include "platform/desktop/Dialog.h"

#include <QVector>

class ChoiceBox;
class QCheckBox;
class QLabel;
class QPushButton;
class QTableWidget;

/// Asks how a text holds points: the first lines, and above each column what it is, as guessed.
class PointColumnsDialog : public Dialog {
    Q_OBJECT

public:
    /// `head` is the beginning of the text, in UTF-8.
    PointColumnsDialog(const QByteArray& head, QWidget* parent);

    const PointLayout& pointLayout() const { return chosen; }

    /// The unit that lengths in the text are in; at first the one that is chosen for the tab.
    LengthUnit::Kind unit() const;

private Q_SLOTS:
    void _onTextChanged();
    void _onColumnsChanged();

private:
    void showLines();
    void check();

    QByteArray head;
    PointLayout chosen;
    ChoiceBox* separatorBox;
    QCheckBox* commaBox;
    QCheckBox* headingBox;
    ChoiceBox* unitBox;
    QTableWidget* table;
    QVector<ChoiceBox*> columnBoxes;
    QLabel* problem;
    QPushButton* okButton;
};

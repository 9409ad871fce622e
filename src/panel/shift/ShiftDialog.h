#pragma once

#include "panel/computing/ShiftFromPoints.h"
#include "platform/desktop/Dialog.h"

#include <array>

class ChoiceBox;
class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QTableView;
class QVBoxLayout;
class ShiftPointsModel;

/// "From points": the shift to WGS 84 from points known on both datums, computed while they are typed.
class ShiftDialog : public Dialog {
    Q_OBJECT

public:
    /// `points` and `record`, whose shift is the one before, outlive the dialog.
    ShiftDialog(ShiftPointsModel& points, const IDictionary& record, QWidget* parent);

    /// What the user took over.
    const ShiftFromPoints& shift() const { return solution; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void _onFormChosen();
    void _onPointsChanged();
    void _onPaste();
    void _onRemove();
    void _onClear();

private:
    void buildChoices(QVBoxLayout* layout);
    void buildTable(QVBoxLayout* layout);
    void buildResult(QVBoxLayout* layout);
    void makeRoomForHeadings();
    void showResult();
    void editCell();
    QString summary() const;

    ShiftPointsModel& points;
    const IDictionary& record;
    ShiftFromPoints solution;
    ChoiceBox* ownBox;
    ChoiceBox* wgs84Box;
    ChoiceBox* kindBox;
    QTableView* table;
    std::array<QLabel*, 7> values;
    QLabel* summaryLabel;
    QLabel* adviceLabel;
    QDialogButtonBox* buttons;
};

#pragma once

#include "panel/ParamTab.h"

#include <QVector>

class ChoiceBox;
class FieldRow;
class MessageLine;
class QLabel;
class QPushButton;
class SearchBox;
class ShiftPointsModel;
class TextField;

/// The tab "Datum shift": the name of the system's datum, and its shift to WGS 84: none, or the seven parameters.
class DatumShiftTab : public ParamTab {
    Q_OBJECT

public:
    DatumShiftTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void build() override;
    void showRecord() override;

private Q_SLOTS:
    void _onListNeeded();
    void _onDatumEdited();
    void _onKindActivated(int index);
    void _onReverseClicked();
    void _onFromPointsClicked();
    void _onEdited();

private:
    void showKind();
    void showRemarks();

    SearchBox* datumBox = nullptr;
    TextField* datumField = nullptr;
    ChoiceBox* kindBox = nullptr;
    QVector<FieldRow*> rows;
    QLabel* kindRemark = nullptr;
    QLabel* convention = nullptr;
    QPushButton* reverseButton = nullptr;
    MessageLine* reverseMessage = nullptr;
    QPushButton* fromPointsButton = nullptr;
    ShiftPointsModel* points = nullptr; ///< as last typed or pasted, for all systems
};

#pragma once

#include "panel/ParamTab.h"

#include <QVector>

class ChoiceBox;
class FieldRow;
class MessageLine;
class QLabel;
class QPushButton;

/// The tab "Datum shift": none, or the seven parameters from the system's datum to WGS 84.
class DatumShiftTab : public ParamTab {
    Q_OBJECT

public:
    DatumShiftTab(CoordParamEditor& editor, bool readOnly, QWidget* parent);

    QString title() const override;

protected:
    void showRecord() override;

private Q_SLOTS:
    void _onKindActivated(int index);
    void _onReverseClicked();
    void _onEdited();

private:
    void showKind();
    void showRemarks();

    ChoiceBox* kindBox;
    QVector<FieldRow*> rows;
    QLabel* convention;
    QPushButton* reverseButton;
    MessageLine* reverseMessage;
};

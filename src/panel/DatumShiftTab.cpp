#include "panel/DatumShiftTab.h"

#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/CoordParamEditor.h"
#include "panel/DatumFields.h"
#include "panel/DlgCoordParam.h"
#include "panel/FieldRow.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

DatumShiftTab::DatumShiftTab(CoordParamEditor& editor, bool readOnly, QWidget* parent)
    : ParamTab(editor, readOnly, parent)
    , kindBox(new QComboBox)
    , convention(new QLabel)
    , reverseButton(new QPushButton(DlgCoordParam::tr("Reverse rotation signs"))) {
    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(1);
    auto* kindLabel = new QLabel(DlgCoordParam::tr("Shift to WGS 84"));
    kindLabel->setBuddy(kindBox);
    kindBox->setAccessibleName(kindLabel->text());
    kindBox->addItem(DlgCoordParam::tr("None"), false);
    kindBox->addItem(DlgCoordParam::tr("Seven parameters"), true);
    kindBox->setEnabled(!readOnly);
    grid->addWidget(kindLabel, 0, 0);
    grid->addWidget(kindBox, 0, 1, 1, 3, Qt::AlignLeft);

    int line = 1;
    for (const ParamField& field : DatumFields::shift()) {
        auto* row = new FieldRow(editor, readOnly, grid, line);
        row->setField(&field);
        connect(row, SIGNAL(edited()), this, SLOT(_onEdited()));
        rows.append(row);
        line += 2;
    }
    convention->setWordWrap(true);
    grid->addWidget(convention, line, 0, 1, 4);
    grid->addWidget(reverseButton, line + 1, 0, 1, 4, Qt::AlignLeft);
    grid->setRowStretch(line + 2, 1);
    reverseButton->setEnabled(!readOnly);

    connect(kindBox, SIGNAL(activated(int)), this, SLOT(_onKindActivated(int)));
    connect(reverseButton, SIGNAL(clicked()), this, SLOT(_onReverseClicked()));
}

QString DatumShiftTab::title() const {
    return DlgCoordParam::tr("Datum shift");
}

void DatumShiftTab::showRecord() {
    const double type = dictionary_number(record(), CoordParamKey::shiftType, 0.0);
    const bool isSeven = type == 2.0;
    kindBox->setCurrentIndex(isSeven || type == 0.0 ? kindBox->findData(isSeven) : -1);
    const auto& fields = DatumFields::shift();
    for (int i = 0; i < rows.size(); ++i) {
        rows[i]->setField(isSeven ? &fields[size_t(i)] : nullptr);
        rows[i]->showValue();
    }
    convention->setText(isSeven
                            ? DlgCoordParam::tr("Rotations in the position-vector convention (EPSG method 9606, PROJ "
                                                "towgs84). A three-parameter shift has zeros for the rest.\nFigures "
                                                "published in the coordinate-frame convention (EPSG method 9607) have "
                                                "the opposite rotation signs: type them as published, then reverse.")
                            : DlgCoordParam::tr("The system's datum counts as WGS 84."));
    reverseButton->setVisible(isSeven);
    showWarnings();
}

void DatumShiftTab::showWarnings() {
    for (FieldRow* row : qAsConst(rows)) {
        if (row->field())
            row->setWarning(DatumFields::warning(*row->field(), record()));
    }
}

void DatumShiftTab::_onKindActivated(int index) {
    const bool seven = kindBox->itemData(index).toBool();
    if (dictionary_number(record(), CoordParamKey::shiftType, 0.0) == (seven ? 2.0 : 0.0))
        return;
    editor().setShift(seven);
    showRecord();
    recordChanged();
}

void DatumShiftTab::_onReverseClicked() {
    editor().reverseRotations();
    showRecord();
    recordChanged();
}

void DatumShiftTab::_onEdited() {
    showWarnings();
    recordChanged();
}

#include "panel/field/LengthUnitBox.h"

#include "panel/record/PanelText.h"

LengthUnitBox::LengthUnitBox(QWidget* parent) : ChoiceBox(parent) {
    addItem("m", LengthUnit::Metre);
    addItem("ft", LengthUnit::InternationalFoot);
    addItem("ftUS", LengthUnit::UsSurveyFoot);
    setItemData(0, PanelText::tr("Metre"), Qt::ToolTipRole);
    setItemData(1, PanelText::tr("International foot, 0.3048 m"), Qt::ToolTipRole);
    setItemData(2, PanelText::tr("US survey foot, 1200/3937 m"), Qt::ToolTipRole);
    setAccessibleName(PanelText::tr("Lengths in"));
    setToolTip(PanelText::tr("Lengths in metres (m), international feet (ft) or US survey feet (ftUS)"));
    showUnit();
    connect(this, SIGNAL(activated(int)), this, SLOT(_onActivated(int)));
}

void LengthUnitBox::showUnit() {
    setCurrentIndex(findData(int(LengthUnit::chosen())));
}

void LengthUnitBox::_onActivated(int index) {
    LengthUnit::choose(LengthUnit::Kind(itemData(index).toInt()));
    Q_EMIT unitChosen();
}

#include "panel/AngleNotationBox.h"

#include "panel/AngleText.h"
#include "panel/DlgCoordParam.h"

AngleNotationBox::AngleNotationBox(QWidget* parent) : ChoiceBox(parent) {
    addItem(DlgCoordParam::tr("Decimal degrees"), int(AngleNotation::DecimalDegrees));
    addItem(DlgCoordParam::tr("Degrees, minutes, seconds"), int(AngleNotation::DegreesMinutesSeconds));
    showNotation();
    connect(this, SIGNAL(activated(int)), this, SLOT(_onActivated(int)));
}

void AngleNotationBox::showNotation() {
    setCurrentIndex(findData(int(AngleText::notation())));
}

void AngleNotationBox::_onActivated(int index) {
    AngleText::setNotation(AngleNotation(itemData(index).toInt()));
    Q_EMIT notationChosen();
}

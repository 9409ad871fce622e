#include "panel/field/AngleNotationBox.h"

#include "panel/record/AngleText.h"
#include "panel/record/PanelText.h"

AngleNotationBox::AngleNotationBox(QWidget* parent) : ChoiceBox(parent) {
    addItem(PanelText::tr("Decimal degrees"), int(AngleNotation::DecimalDegrees));
    addItem(PanelText::tr("Degrees, minutes, seconds"), int(AngleNotation::DegreesMinutesSeconds));
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

#include "panel/field/NumberBox.h"

#include <QRegularExpression>

NumberBox::NumberBox(QWidget* parent) : QDoubleSpinBox(parent) {
    setLocale(QLocale::c());
}

QValidator::State NumberBox::validate(QString& input, int& cursor) const {
    input.replace(',', '.');
    const QValidator::State state = QDoubleSpinBox::validate(input, cursor);
    static const QRegularExpression number("^-?[0-9]*\\.[0-9]*$");
    const bool isNumber = number.match(QString(input).remove(suffix()).trimmed()).hasMatch();
    return state == QValidator::Invalid && isNumber && decimals() == 0 ? QValidator::Intermediate : state;
}

#include "panel/field/CheckField.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

CheckField::CheckField(const ParamField& field, MessageLine* message, QGridLayout* grid, int line)
    : QObject(message)
    , field(field)
    , name(field.labelText())
    , edit(new FieldEdit)
    , unit(new QLabel(field.unitText(AngleText::notation())))
    , message(message) {
    auto* label = new QLabel(name);
    label->setBuddy(edit);
    edit->setAccessibleName(name);
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance("-179°59'59.123456\"") + 24);
    grid->addWidget(label, line, 0);
    grid->addWidget(edit, line, 1);
    grid->addWidget(unit, line, 2);
    connect(edit, SIGNAL(textEdited(QString)), this, SLOT(_onTextEdited(QString)));
    connect(edit, SIGNAL(cancelled()), this, SLOT(_onCancelled()));
    connect(edit, SIGNAL(returnPressed()), this, SLOT(_onEntered()));
    connect(edit, SIGNAL(left()), this, SLOT(_onLeft()));
}

QString CheckField::angleText(double degrees, int decimals) {
    return AngleText::rounded(degrees, decimals);
}

void CheckField::setValue(double value) {
    isTyping = false;
    number = value;
    edit->setText(field.isAngle() ? angleText(value) : QString::number(value, 'f', 4));
    edit->setCursorPosition(0);
    setError(QString());
}

void CheckField::clear() {
    isTyping = false;
    number.reset();
    edit->clear();
    setError(QString());
}

void CheckField::showNotation() {
    unit->setText(field.unitText(AngleText::notation()));
    if (field.isAngle() && number)
        setValue(*number);
}

QString CheckField::text() const {
    return edit->text();
}

QString CheckField::unitText() const {
    return field.isAngle() ? QString() : unit->text();
}

void CheckField::_onTextEdited(const QString& text) {
    if (!isTyping)
        numberBefore = number;
    isTyping = true;
    const FieldInput input = field.parse(text);
    number = input.valid ? std::optional<double>(input.value) : std::nullopt;
    setError(input.reason);
    Q_EMIT edited();
}

void CheckField::_onEntered() {
    isTyping = isTyping && !number;
}

void CheckField::_onLeft() {
    if (isTyping && !number)
        restore();
    isTyping = false;
}

void CheckField::_onCancelled() {
    if (isTyping)
        restore();
    edit->selectAll();
}

/// Shows the number from before the typing.
void CheckField::restore() {
    if (numberBefore)
        setValue(*numberBefore);
    else
        clear();
    Q_EMIT edited();
}

void CheckField::setError(const QString& reason) {
    edit->setMarked(!reason.isEmpty());
    edit->setToolTip(reason);
    message->setMessage(reason, MessageLine::Tone::Error);
}

#include "panel/field/CheckField.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QGridLayout>
#include <QLabel>

#include <cmath>

CheckField::CheckField(const ParamField& field, MessageLine* message, QGridLayout* grid, int line)
    : QObject(message), field(field), name(field.labelText()), edit(new FieldEdit), unit(new QLabel), message(message) {
    showUnit();
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
    edit->setText(field.isAngle() ? angleText(value) : QString::number(value / LengthUnit::metres(), 'f', 4));
    edit->setCursorPosition(0);
    setError(QString());
}

void CheckField::clear() {
    isTyping = false;
    number.reset();
    edit->clear();
    setError(QString());
}

void CheckField::showUnit() {
    unit->setText(field.isAngle() ? field.unitText(AngleText::notation()) : LengthUnit::symbol());
}

void CheckField::showNotation() {
    const QString before = unit->text();
    showUnit();
    if (number && (field.isAngle() || unit->text() != before))
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
    number = read(text);
    Q_EMIT edited();
}

/// The number of a typed text; says what is wrong with it.
std::optional<double> CheckField::read(const QString& text) {
    if (field.isAngle() || LengthUnit::chosen() == LengthUnit::Metre || text.trimmed().isEmpty()) {
        const FieldInput input = field.parse(text);
        setError(input.reason);
        return input.valid ? std::optional<double>(input.value) : std::nullopt;
    }
    double metres = 0.0;
    const bool isSound = LengthUnit::parse(text, &metres) && field.accepts(metres);
    setError(isSound ? QString() : PanelText::joined({field.rangeText(), LengthUnit::refusal()}));
    return isSound ? std::optional<double>(metres) : std::nullopt;
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
    edit->setAccessibleDescription(reason);
    message->setMessage(reason, MessageLine::Tone::Error);
}

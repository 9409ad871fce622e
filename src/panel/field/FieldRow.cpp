#include "panel/field/FieldRow.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/MessageLine.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"
#include "panel/record/ParamField.h"

#include <QGridLayout>
#include <QLabel>

FieldRow::FieldRow(CoordParamEditor& editor, bool readOnly, QGridLayout* grid, int line)
    : QObject(grid->parentWidget())
    , editor(editor)
    , label(new QLabel)
    , edit(new FieldEdit)
    , unit(new QLabel)
    , message(new MessageLine) {
    if (readOnly)
        edit->setShownOnly();
    label->setBuddy(edit);
    grid->addWidget(label, line, 0);
    grid->addWidget(edit, line, 1);
    grid->addWidget(unit, line, 2);
    message->setField(edit);
    grid->addWidget(message, line + 1, 0, 1, 4);
    grid->setColumnStretch(3, 1);
    connect(edit, SIGNAL(textEdited(QString)), this, SLOT(_onTextEdited(QString)));
    connect(edit, SIGNAL(returnPressed()), this, SLOT(_onEntered()));
    connect(edit, SIGNAL(left()), this, SLOT(_onLeft()));
    connect(edit, SIGNAL(cancelled()), this, SLOT(_onCancelled()));
    connect(edit, SIGNAL(focusChanged()), this, SLOT(_onFocusChanged()));
}

void FieldRow::setField(const ParamField* field) {
    shownField = field;
    for (QWidget* part : {static_cast<QWidget*>(label), static_cast<QWidget*>(edit), static_cast<QWidget*>(unit),
                          static_cast<QWidget*>(message)})
        part->setVisible(field != nullptr);
    if (!field)
        return;
    label->setText(field->labelText());
    edit->setAccessibleName(field->labelText());
    edit->setObjectName(QString::fromLatin1(field->key)); // tests find a value by its key
}

void FieldRow::showValue() {
    isTyping = false;
    if (!shownField)
        return;
    valueText = shownField->shownText(editor.record(), AngleText::notation());
    edit->setText(valueText);
    edit->setCursorPosition(0);
    unit->setText(shownField->unitText(AngleText::notation()));
    error = recordError();
    showState();
}

/// What is wrong with the value that the record holds.
QString FieldRow::recordError() const {
    if (shownField->isSound(editor.record()))
        return QString();
    const QString reason = shownField->parse(valueText).reason;
    // A comma that is understood where it is typed is no decimal mark of a record.
    return reason.isEmpty() ? PanelText::joined({shownField->rangeText(), NumberText::refusal(valueText)}) : reason;
}

void FieldRow::setWarning(const QString& text) {
    warning = text;
    showState();
}

void FieldRow::_onTextEdited(const QString& text) {
    if (!isTyping)
        editor.startTyping();
    isTyping = true;
    const FieldInput input = shownField->parse(text);
    // The text as it was shown is no edit: the record may hold more digits than it has.
    const bool isBack = text == valueText;
    const bool isChanged = isBack ? editor.cancelTyping() : editor.type(*shownField, input);
    error = isBack ? recordError() : input.reason;
    if (isChanged)
        Q_EMIT edited(); // before the state is shown: the form looks for warnings
    showState();
}

void FieldRow::_onEntered() {
    // A sound text takes the form in which the record's value is shown; a refused one stays to be mended.
    if (isTyping && error.isEmpty())
        showValue();
}

void FieldRow::_onLeft() {
    if (isTyping)
        showValue();
}

void FieldRow::_onCancelled() {
    const bool isChanged = isTyping && editor.cancelTyping();
    showValue();
    edit->selectAll();
    if (isChanged)
        Q_EMIT edited();
}

void FieldRow::_onFocusChanged() {
    showState();
}

/// An angle in the notation that the field does not show: what a text in degrees and minutes was taken for.
QString FieldRow::hint() const {
    double value;
    if (!shownField || !edit->hasFocus() || !shownField->isAngle() || !shownField->read(editor.record(), &value))
        return QString();
    const bool decimal = AngleText::notation() == AngleNotation::DecimalDegrees;
    return "= " +
           AngleText::format(value, decimal ? AngleNotation::DegreesMinutesSeconds : AngleNotation::DecimalDegrees) +
           (decimal ? "" : "°");
}

void FieldRow::showState() {
    edit->setMarked(!error.isEmpty());
    if (!error.isEmpty())
        message->setMessage(error, MessageLine::Tone::Error);
    else if (!warning.isEmpty())
        message->setMessage(warning, MessageLine::Tone::Warning);
    else
        message->setMessage(hint(), MessageLine::Tone::Hint);
    edit->setToolTip(message->tone() == MessageLine::Tone::Hint ? QString() : message->text());
    edit->setAccessibleDescription(message->text());
}

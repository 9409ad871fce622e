#include "panel/field/TextField.h"

#include "panel/field/FieldEdit.h"
#include "panel/field/SearchBox.h"
#include "panel/record/CoordParamEditor.h"

TextField::TextField(CoordParamEditor& editor, const char* key, QWidget* input, QLineEdit* edit)
    : QObject(input), editor(editor), key(key), edit(edit) {
    input->setObjectName(QString::fromLatin1(key)); // tests find a value by its key
    connect(edit, SIGNAL(textEdited(QString)), this, SLOT(_onTextEdited(QString)));
    connect(edit, SIGNAL(returnPressed()), this, SLOT(_onEntered()));
    connect(input, SIGNAL(left()), this, SLOT(_onEntered()));
    connect(input, SIGNAL(cancelled()), this, SLOT(_onCancelled()));
}

TextField::TextField(CoordParamEditor& editor, const char* key, FieldEdit* input)
    : TextField(editor, key, input, input) {
}

TextField::TextField(CoordParamEditor& editor, const char* key, SearchBox* input)
    : TextField(editor, key, input, input->lineEdit()) {
    input->setTakesAnyText();
    connect(input, SIGNAL(chosen(QString)), this, SLOT(_onChosen(QString)));
}

void TextField::showValue() {
    isTyping = false;
    shownText = QString::fromLocal8Bit(editor.record().getValue(key));
    edit->setText(shownText);
    edit->setCursorPosition(0);
}

void TextField::_onTextEdited(const QString& text) {
    if (!isTyping)
        editor.startTyping();
    isTyping = true;
    // The text as it was shown is no edit, whatever the record holds for it.
    if (text == shownText ? editor.cancelTyping() : editor.typeText(key, text))
        Q_EMIT edited();
}

void TextField::_onChosen(const QString& name) {
    const bool isChanged = editor.setText(key, name);
    showValue();
    if (isChanged)
        Q_EMIT edited();
}

void TextField::_onEntered() {
    if (isTyping)
        showValue();
}

void TextField::_onCancelled() {
    const bool isChanged = isTyping && editor.cancelTyping();
    showValue();
    edit->selectAll();
    if (isChanged)
        Q_EMIT edited();
}

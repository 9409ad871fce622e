#pragma once

#include "panel/record/PastedDefinition.h"
#include "platform/desktop/Dialog.h"

#include <memory>

class QDialogButtonBox;
class QPlainTextEdit;

/// Takes a definition that is pasted or typed, and shows what it is understood as before it is taken over, or why no
/// record can hold it.
class FromTextDialog : public Dialog {
    Q_OBJECT

public:
    /// `text` is what the dialog begins with, to be replaced by the next paste.
    FromTextDialog(const QString& text, QWidget* parent);

    /// See PastedDefinition::values(); empty while nothing is held.
    const IDictionary& values() const { return pasted->values(); }

private Q_SLOTS:
    void _onTextChanged();

private:
    void mark(int place);

    QPlainTextEdit* input;
    QPlainTextEdit* result;
    QDialogButtonBox* buttons;
    std::unique_ptr<PastedDefinition> pasted;
};

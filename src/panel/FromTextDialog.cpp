#include "panel/FromTextDialog.h"

#include "panel/field/MessageLine.h"
#include "panel/record/PanelText.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// A field for a text of many lines. Of what is pasted it takes no more than shows that it is too long: laying out
/// megabytes in one line would take minutes.
class InputEdit : public QPlainTextEdit {
protected:
    void insertFromMimeData(const QMimeData* source) override {
        constexpr int longest = 100001;
        if (source->hasText())
            insertPlainText(source->text().left(longest));
    }
};

} // namespace

FromTextDialog::FromTextDialog(const QString& text, QWidget* parent)
    : Dialog(parent), input(new InputEdit), result(new QPlainTextEdit), buttons(new QDialogButtonBox) {
    setWindowTitle(PanelText::tr("From text"));
    auto* inputLabel =
        new QLabel(PanelText::tr("Paste or type WKT, a PROJ definition, PROJJSON, or a code as EPSG:25832."));
    inputLabel->setBuddy(input);
    input->setAccessibleName(PanelText::tr("Definition"));
    result->setAccessibleName(PanelText::tr("Understood"));
    auto* resultLabel = new QLabel(PanelText::tr("Understood:"));
    resultLabel->setBuddy(result);
    for (QPlainTextEdit* const edit : {input, result})
        edit->setTabChangesFocus(true);
    input->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    result->setReadOnly(true);
    result->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(PanelText::tr("Take over"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(inputLabel);
    layout->addWidget(input, 2);
    layout->addWidget(resultLabel);
    layout->addWidget(result, 3);
    layout->addWidget(buttons);
    resize(620, 560);
    connect(input, SIGNAL(textChanged()), this, SLOT(_onTextChanged()));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    input->setPlainText(text);
    input->selectAll();
    input->setFocus();
    _onTextChanged();
}

void FromTextDialog::_onTextChanged() {
    pasted = std::make_unique<PastedDefinition>(input->toPlainText());
    QPalette colours = palette();
    if (!pasted->isHeld())
        colours.setColor(QPalette::Text, MessageLine::textColor(*this, MessageLine::Tone::Error));
    result->setPalette(colours);
    result->setPlainText(pasted->isHeld() ? pasted->understood().join('\n') : pasted->reason());
    buttons->button(QDialogButtonBox::Ok)->setEnabled(pasted->isHeld());
    mark(pasted->place());
}

/// Underlines the text from there to the end of the word, or what is before the end.
void FromTextDialog::mark(int place) {
    QList<QTextEdit::ExtraSelection> marks;
    if (place >= 0) {
        QTextEdit::ExtraSelection wrong{QTextCursor(input->document()), {}};
        wrong.cursor.setPosition(qMin(place, qMax(0, input->document()->characterCount() - 2)));
        wrong.cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        wrong.cursor.movePosition(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
        wrong.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        wrong.format.setUnderlineColor(MessageLine::textColor(*this, MessageLine::Tone::Error));
        marks << wrong;
    }
    input->setExtraSelections(marks);
}

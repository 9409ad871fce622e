#pragma once

#include <QObject>
#include <QString>

class CoordParamEditor;
class FieldEdit;
class QLineEdit;
class SearchBox;

/// A text of the record in an input of a form. Any text is sound, and every keystroke is in the record at once; Escape
/// brings back the text from before the typing, as in a FieldRow.
class TextField : public QObject {
    Q_OBJECT

public:
    /// The text of `key` in `input`. `editor` outlives the field.
    TextField(CoordParamEditor& editor, const char* key, FieldEdit* input);

    /// The same in a box that also offers names; the box takes any text then.
    TextField(CoordParamEditor& editor, const char* key, SearchBox* input);

    /// Shows the record's text anew.
    void showValue();

Q_SIGNALS:
    /// The user's typing or choice changed the record.
    void edited();

private Q_SLOTS:
    void _onTextEdited(const QString& text);
    void _onChosen(const QString& name);
    void _onEntered();
    void _onCancelled();

private:
    TextField(CoordParamEditor& editor, const char* key, QWidget* input, QLineEdit* edit);

    CoordParamEditor& editor;
    const char* key;
    QLineEdit* edit;
    QString shownText; ///< the record's as last shown
    bool isTyping = false;
};

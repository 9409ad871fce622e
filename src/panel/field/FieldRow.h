#pragma once

#include <QObject>

class CoordParamEditor;
class FieldEdit;
class MessageLine;
class QGridLayout;
class QLabel;
struct FieldInput;
struct ParamField;

/// One value of the record on a form: label, edit, unit, and a line below for what is wrong or worth knowing.
///
/// Every sound keystroke is in the record at once. While the text is refused, the record has the value from before the
/// typing; Escape brings that value back at any time, and so does leaving a field whose text is refused. The typing
/// begins with the first keystroke after the field got the keyboard, or after Enter.
class FieldRow : public QObject {
    Q_OBJECT

public:
    /// Adds the row's widgets to `grid` from line `line` on (two lines, four columns). `editor` outlives the row.
    FieldRow(CoordParamEditor& editor, bool readOnly, QGridLayout* grid, int line);

    /// Which value the row shows; null hides the row. `field` outlives the row.
    void setField(const ParamField* field);

    /// Shows the record's value anew, in place of whatever was typed.
    void showValue();

    /// A remark on the shown value, as long as the text is sound.
    void setWarning(const QString& text);

    const ParamField* field() const { return shownField; }

Q_SIGNALS:
    /// The user's typing changed the record.
    void edited();

private Q_SLOTS:
    void _onTextEdited(const QString& text);
    void _onEntered();
    void _onLeft();
    void _onCancelled();
    void _onFocusChanged();

private:
    QString recordError() const;
    void showState();
    QString hint() const;

    CoordParamEditor& editor;
    const ParamField* shownField = nullptr;
    QLabel* label;
    FieldEdit* edit;
    QLabel* unit;
    MessageLine* message;
    QString warning;
    QString error;     ///< why the text is refused; empty while it is sound
    QString valueText; ///< the record's value as last shown
    bool isTyping = false;
};

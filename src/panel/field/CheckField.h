#pragma once

#include "panel/record/ParamField.h"

#include <QObject>

#include <optional>

class FieldEdit;
class MessageLine;
class QGridLayout;
class QLabel;

/// One angle or length to compute with, on a form: label, edit, unit. It belongs to no record. What is wrong with a
/// text stands in a line that several fields share. As in a FieldRow, Escape brings back the number from before the
/// typing, and so does leaving a field whose text is refused.
class CheckField : public QObject {
    Q_OBJECT

public:
    /// Adds the field's widgets to line `line` of `grid` (three columns). `message` outlives the field.
    CheckField(const ParamField& field, MessageLine* message, QGridLayout* grid, int line);

    /// The typed or shown number, lengths in metres; 0 for an empty optional one; nothing for a refused text.
    std::optional<double> value() const { return number; }

    /// Shows `number` (a length in metres): angles to 1e-10 degrees or 1e-6 arc-seconds, lengths to four decimals of
    /// the unit chosen for them.
    void setValue(double value);

    /// Shows nothing: there is no result.
    void clear();

    /// Shows an angle anew in the notation chosen now, and a length in the unit.
    void showNotation();

    const QString& labelText() const { return name; }
    QString text() const;
    QString unitText() const;

    /// An angle in degrees as the form shows it: with at most that many decimals of a degree, or seconds with four
    /// fewer.
    static QString angleText(double degrees, int decimals = 10);

Q_SIGNALS:
    /// The user typed.
    void edited();

private Q_SLOTS:
    void _onTextEdited(const QString& text);
    void _onCancelled();
    void _onEntered();
    void _onLeft();

private:
    void restore();
    void showUnit();
    std::optional<double> read(const QString& text);
    void setError(const QString& reason);

    ParamField field;
    QString name;
    FieldEdit* edit;
    QLabel* unit;
    MessageLine* message;
    std::optional<double> number;
    std::optional<double> numberBefore; ///< the typing
    bool isTyping = false;
};

#pragma once

#include <QLineEdit>

/// A line edit for one value, as wide as the longest one. Escape cancels the typing and closes nothing.
class FieldEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit FieldEdit(QWidget* parent = nullptr);

    /// The value can be read and copied only, and looks like it.
    void setShownOnly();

    /// Takes the width that the form gives it: for words.
    void setWide();

    /// Marks a value that is refused.
    void setMarked(bool mark);
    bool isMarked() const { return marked; }

Q_SIGNALS:
    /// The user pressed Escape.
    void cancelled();

    /// The keyboard came or went.
    void focusChanged();

    /// The user went on to something else in the window. Another window and the edit's own menu do not count: what is
    /// typed half is still there when the user comes back.
    void left();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void showColours();

    bool marked = false;
    bool shownOnly = false;
};

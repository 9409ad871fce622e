#pragma once

#include <QLineEdit>

/// A line edit for one value: Escape cancels the typing and closes nothing; a value that is refused can be marked.
class FieldEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit FieldEdit(QWidget* parent = nullptr);

    void setMarked(bool mark);
    bool isMarked() const { return marked; }

Q_SIGNALS:
    /// The user pressed Escape.
    void cancelled();

    /// The keyboard came or went.
    void focusChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool marked = false;
};

#pragma once

#include <QPushButton>

/// Copies a text, and says for a moment that it did.
class CopyButton : public QPushButton {
    Q_OBJECT

public:
    /// `text` is what stands on the button; `name` says what it copies, where the text does not.
    explicit CopyButton(const QString& text, const QString& name = QString(), QWidget* parent = nullptr);

    /// Puts `copied` on the clipboard.
    void copy(const QString& copied);

private Q_SLOTS:
    void _onAnswered();

private:
    QString usualText;
};

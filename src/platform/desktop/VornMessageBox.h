#pragma once

class QString;
class QWidget;

/// Every message of the tool goes through one of these two.
class VornMessageBox {
public:
    /// Asks a question with Yes and No. Non-zero for Yes, 0 for No. No button is the default or has the focus at first,
    /// and Escape and the frame's close button answer nothing, so that no question is answered by accident.
    static int information(QWidget* parent, const QString& title, const QString& text);

    /// Shows a notice with Ok, which Enter and Escape press as well.
    static void information_ok(QWidget* parent, const QString& title, const QString& text);
};

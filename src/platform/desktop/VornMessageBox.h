#pragma once

class QString;
class QWidget;

/// Every message of the tool goes through one of these two.
class VornMessageBox {
public:
    /// Asks a question with Yes and No. Non-zero when the user confirms; 0 for No (the default) and Escape.
    static int information(QWidget* parent, const QString& title, const QString& text);

    /// Shows a notice with Ok.
    static void information_ok(QWidget* parent, const QString& title, const QString& text);
};

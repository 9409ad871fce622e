#include "panel/field/FieldEdit.h"

#include "panel/field/Colours.h"

#include <QKeyEvent>

FieldEdit::FieldEdit(QWidget* parent) : QLineEdit(parent) {
    constexpr int frame = 24;
    showColours();
    setFixedWidth(fontMetrics().horizontalAdvance("-179°59'59.12345678\"") + frame);
}

void FieldEdit::setShownOnly() {
    setReadOnly(true);
    shownOnly = true;
    showColours();
}

void FieldEdit::setWide() {
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
}

void FieldEdit::setMarked(bool mark) {
    if (mark == marked)
        return;
    marked = mark;
    showColours();
}

void FieldEdit::showColours() {
    QPalette colours; // the application's as it is now
    if (shownOnly)
        colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    if (marked) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            colours.setColor(group, QPalette::Base, Colours::refused(colours));
    }
    colours.setColor(QPalette::PlaceholderText, Colours::hint(colours));
    setPalette(colours);
}

bool FieldEdit::event(QEvent* event) {
    // Keeps Escape from being taken as a shortcut, of a dialog for example.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::ApplicationPaletteChange)
        showColours();
    return QLineEdit::event(event);
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    Q_EMIT cancelled();
}

void FieldEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT focusChanged();
}

void FieldEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        Q_EMIT left();
    Q_EMIT focusChanged();
}

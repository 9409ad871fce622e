#include "panel/field/FieldEdit.h"

#include <QKeyEvent>

FieldEdit::FieldEdit(QWidget* parent) : QLineEdit(parent) {
    constexpr int frame = 24;
    setFixedWidth(fontMetrics().horizontalAdvance("-179°59'59.12345678\"") + frame);
}

void FieldEdit::setShownOnly() {
    setReadOnly(true);
    QPalette colors;
    colors.setColor(QPalette::Base, colors.color(QPalette::Window));
    setPalette(colors);
}

void FieldEdit::setWide() {
    setMinimumWidth(0);
    setMaximumWidth(QWIDGETSIZE_MAX);
}

void FieldEdit::setMarked(bool mark) {
    if (mark == marked)
        return;
    marked = mark;
    QPalette colors;
    if (mark) {
        const bool dark = colors.color(QPalette::Base).lightness() < 128;
        const QColor red = dark ? QColor(0x5a, 0x1e, 0x22) : QColor(0xff, 0xe3, 0xe3);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            colors.setColor(group, QPalette::Base, red);
    }
    setPalette(colors);
}

bool FieldEdit::event(QEvent* event) {
    // Keeps Escape from being taken as a shortcut, of a dialog for example.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
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

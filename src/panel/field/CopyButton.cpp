#include "panel/field/CopyButton.h"

#include "panel/record/PanelText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>

CopyButton::CopyButton(const QString& text, const QString& name, QWidget* parent)
    : QPushButton(PanelText::tr("Copied"), parent), usualText(text) {
    setAccessibleName(name);
    // As wide as the wider text, so that nothing beside it moves.
    const int width = sizeHint().width();
    setText(usualText);
    setMinimumWidth(std::max(width, sizeHint().width()));
}

void CopyButton::copy(const QString& copied) {
    QGuiApplication::clipboard()->setText(copied);
    setText(PanelText::tr("Copied"));
    setAccessibleDescription(text()); // its name stays
    QTimer::singleShot(1500, this, SLOT(_onAnswered()));
}

void CopyButton::_onAnswered() {
    setText(usualText);
    setAccessibleDescription(QString());
}

#include "panel/field/ChoiceBox.h"

#include <QStylePainter>
#include <QWheelEvent>

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
}

QSize ChoiceBox::minimumSizeHint() const {
    const QSize whole = QComboBox::minimumSizeHint();
    return QSize(qMin(whole.width(), fontMetrics().averageCharWidth() * 20), whole.height());
}

void ChoiceBox::paintEvent(QPaintEvent* event) {
    if (currentIndex() >= 0) {
        QComboBox::paintEvent(event);
        return;
    }
    // QComboBox of Qt 5.15 does not paint its placeholder text.
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = placeholderText();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

#include "panel/field/MessageLine.h"

#include "panel/field/Colours.h"

#include <QPainter>
#include <QPalette>
#include <QStyle>

MessageLine::MessageLine(QWidget* parent) : QWidget(parent) {
    QFont small = font();
    if (small.pixelSize() > 0) // and no size in points
        small.setPixelSize(qRound(small.pixelSize() * 0.9));
    else
        small.setPointSizeF(small.pointSizeF() * 0.9);
    setFont(small);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MessageLine::setMessage(const QString& text, Tone tone) {
    if (text == message && tone == messageTone)
        return;
    message = text;
    messageTone = tone;
    setToolTip(text);
    setAccessibleName(text);
    update();
}

QColor MessageLine::textColor(const QWidget& widget, Tone tone) {
    const QPalette& palette = widget.palette();
    return tone == Tone::Error     ? Colours::error(palette)
           : tone == Tone::Warning ? Colours::warning(palette)
                                   : Colours::hint(palette);
}

QSize MessageLine::sizeHint() const {
    return minimumSizeHint(); // the text must not widen the form
}

QSize MessageLine::minimumSizeHint() const {
    return QSize(0, fontMetrics().height());
}

void MessageLine::paintEvent(QPaintEvent*) {
    if (message.isEmpty() || !isEnabled()) // a form that takes no input has nothing to complain about
        return;
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    int indent = 0;
    if (shownBelow)
        indent = leftToRight ? shownBelow->x() - x() : geometry().right() - shownBelow->geometry().right();
    indent = qBound(0, indent, qMax(0, width() - fontMetrics().horizontalAdvance(message) - 1));
    QPainter painter(this);
    painter.setPen(textColor(*this, messageTone));
    painter.drawText(leftToRight ? rect().adjusted(indent, 0, 0, 0) : rect().adjusted(0, 0, -indent, 0),
                     int(Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)),
                     fontMetrics().elidedText(message, Qt::ElideRight, width()));
}

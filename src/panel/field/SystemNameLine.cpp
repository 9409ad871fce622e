#include "panel/field/SystemNameLine.h"

#include <QPainter>
#include <QStyle>

SystemNameLine::SystemNameLine(QWidget* parent) : QWidget(parent) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SystemNameLine::setText(const QString& text) {
    if (text == shownText)
        return;
    shownText = text;
    setAccessibleName(text);
    update();
}

QSize SystemNameLine::sizeHint() const {
    return minimumSizeHint(); // a long name must not widen the window
}

QSize SystemNameLine::minimumSizeHint() const {
    return {0, fontMetrics().height()};
}

void SystemNameLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const QRect content = contentsRect();
    painter.drawText(content, int(Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)),
                     fontMetrics().elidedText(shownText.simplified(), Qt::ElideRight, content.width()));
}

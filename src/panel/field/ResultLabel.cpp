#include "panel/field/ResultLabel.h"

ResultLabel::ResultLabel(const QString& name, QWidget* parent) : QLabel(parent) {
    setAccessibleName(name);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

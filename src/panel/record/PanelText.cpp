#include "panel/record/PanelText.h"

QString PanelText::named(const QString& name, const QString& text) {
    //: A name, and what is said of it
    return tr("%1: %2").arg(name, text);
}

QString PanelText::joined(const QString& first, const QString& second) {
    //: Two sentences
    return second.isEmpty() ? first : tr("%1 %2").arg(first, second);
}

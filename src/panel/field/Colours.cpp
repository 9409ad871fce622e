#include "panel/field/Colours.h"

#include <QLineEdit>
#include <QPalette>

namespace {

QColor chosen(const QPalette& palette, QRgb onLight, QRgb onDark) {
    return palette.color(QPalette::Window).lightness() < 128 ? QColor(onDark) : QColor(onLight);
}

} // namespace

QColor Colours::error(const QPalette& palette) {
    return chosen(palette, 0xb00020, 0xffa79f);
}

QColor Colours::warning(const QPalette& palette) {
    return chosen(palette, 0x8a5500, 0xffc04d);
}

QColor Colours::hint(const QPalette& palette) {
    return chosen(palette, 0x606060, 0xb0b0b0);
}

QColor Colours::refused(const QPalette& palette) {
    return chosen(palette, 0xffe3e3, 0x5a1e22);
}

void Colours::setReadablePlaceholder(QLineEdit* edit) {
    QPalette colours = edit->palette();
    colours.setColor(QPalette::PlaceholderText, hint(colours));
    edit->setPalette(colours);
}

#pragma once

#include <QColor>

class QLineEdit;
class QPalette;

/// The panel's own colours. Each is readable in light palettes and in dark ones: texts have a contrast of 4.5 to what
/// they stand on, lines and marks one of 3 (WCAG 2.1, 1.4.3 and 1.4.11). None of them says alone what it says.
namespace Colours {

// Texts on a window's or a field's own background.
QColor error(const QPalette& palette);
QColor warning(const QPalette& palette);
QColor hint(const QPalette& palette); ///< also for what is of no use, but must be read

/// The background of a refused text.
QColor refused(const QPalette& palette);

/// Makes the text that stands in the empty field readable.
void setReadablePlaceholder(QLineEdit* edit);

// In pictures, which are white paper in every palette.
const QColor line(0x30, 0x30, 0x30);
const QColor gridLine(0x00, 0x40, 0x00); ///< a meridian, a parallel
const QColor sound(0x21, 0x66, 0xac);
const QColor beyond(0xb2, 0x18, 0x2b);
const QColor leftOut(0x70, 0x70, 0x70);

} // namespace Colours

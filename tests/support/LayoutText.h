#pragma once

#include <QString>

class QLayout;

/// A layout as one text: row, column or grid with its parts in brackets. A label or a button is its text, another
/// widget its class, a spacer "~"; a stretch factor (other than 0) or a place in the grid stands before its part.
QString layoutText(QLayout* layout);

#pragma once

#include <qwt_scale_draw.h>
#include <qwt_text.h>

/// Numbers without the grouping of the system's language: northings have no room for it.
class PlainScaleDraw : public QwtScaleDraw {
public:
    QwtText label(double value) const override { return QString::number(value, 'g', 10); }
};

#pragma once

#include "WktText.h"

#include <QVector>

#include <proj.h>

/// Compares what the tool makes of a text with the text's meaning, both computed by PROJ.
class Oracle {
public:
    Oracle();
    ~Oracle();

    Oracle(const Oracle&) = delete;
    Oracle& operator=(const Oracle&) = delete;

    /// The meaning's grid coordinates at four places around its origin, in metres; empty when PROJ can't compute them.
    QVector<PJ_COORD> gridOf(const Meaning& meaning) const;

    /// The largest deviation of a definition's from them, in metres; not a number when PROJ can't compute both.
    double deviation(const Meaning& meaning, const QByteArray& definition) const;

private:
    QVector<PJ_COORD> gridAt(const QVector<PJ_COORD>& places, QByteArray definition) const;

    PJ_CONTEXT* context;
};

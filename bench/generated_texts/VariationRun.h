#pragma once

#include "Judge.h"
#include "Random.h"

#include <QMap>

/// Texts that are damaged or varied, in all ways in turn.
class VariationRun {
public:
    explicit VariationRun(unsigned long long seed);

    /// Prints its tables. False when a text came out wrong.
    bool run(int count);

private:
    void next(int variation);

    Random random;
    Judge judge;
    QVector<Count> byVariation;
    QMap<QByteArray, Count> byMethod;
};

#pragma once

#include "panel/computing/PointReader.h"

#include <QIODevice>

/// Reads points from a file or from what was pasted, piece by piece.
class PointReading {
public:
    /// Lengths in the text are in units of `metresPerUnit`.
    PointReading(std::unique_ptr<QIODevice> source, const PointLayout& layout, double metresPerUnit);

    /// Reads the next piece, which takes some milliseconds, and says how much of all is done then: 1 at the end, also
    /// where there are too many points.
    double read();

    bool isTooMuch() const { return table.isFull(); }

    /// Why the source ended early; empty where it did not.
    QString error() const;

    /// To be taken when all is read.
    PointTable table;

private:
    std::unique_ptr<QIODevice> source;
    PointReader reader;
};

#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QVector>

/// One row of a system's block: "point", "scale", "turn", "radius" or "shift" with its numbers.
struct PublishedRow {
    int line;
    QByteArray what;
    QVector<double> numbers;
};

/// One system of the table of published values.
struct PublishedSystem {
    QByteArray name;
    QList<QPair<QByteArray, QByteArray>> record; ///< key and text, angles in decimal degrees
    QVector<PublishedRow> rows;
};

/// Reads the table. A line that can't be understood ends the program with a message that names it.
QVector<PublishedSystem> readPublishedValues(const QByteArray& path);

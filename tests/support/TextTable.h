#pragma once

#include "support/Files.h"
#include "support/RoomTest.h"

#include <QByteArrayList>
#include <QTest>

#include <algorithm>
#include <array>

/// The rows of a table in a text file of the test's folder: columns parted by "|", blanks around them dropped, "\t",
/// "\n",
/// "\r" and "\x7f" as in C++; empty lines and those that begin with "#" apart.
inline QList<QByteArrayList> textTable(const char* file) {
    QList<QByteArrayList> rows;
    for (const QByteArray& line : contentOf(RoomTest::dataPath(file)).split('\n')) {
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        QByteArrayList columns;
        for (QByteArray column : line.split('|')) {
            column = column.trimmed().replace("\\t", "\t").replace("\\n", "\n").replace("\\r", "\r");
            for (int at = 0; (at = column.indexOf("\\x", at)) >= 0; ++at)
                column.replace(at, 4, QByteArray::fromHex(column.mid(at + 2, 2)));
            columns.append(column);
        }
        rows.append(columns);
    }
    return rows;
}

/// Makes such a table the rows of a test, each with its first column as title. The test takes its row with textRow().
inline void textRows(const char* file) {
    QTest::addColumn<QByteArrayList>("columns");
    const QList<QByteArrayList> table = textTable(file);
    QVERIFY2(!table.isEmpty(), file);
    for (const QByteArrayList& columns : table)
        QTest::newRow(columns.first()) << columns;
}

/// The columns of the test's row:
///
///     const auto [text, degrees] = textRow<2>();
template <int count> std::array<QByteArray, count> textRow() {
    QFETCH(QByteArrayList, columns);
    if (columns.size() != count)
        qFatal("%s: not %d columns", columns.first().constData(), count);
    std::array<QByteArray, count> row;
    std::copy(columns.begin(), columns.end(), row.begin());
    return row;
}

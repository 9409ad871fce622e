#pragma once

#include <QByteArrayList>

#include <algorithm>
#include <array>

/// The rows of a table in a text file of the test's folder: columns parted by "|", blanks around them dropped, "\t",
/// "\n", "\r" and "\x7f" as in C++; empty lines and those that begin with "#" apart.
QList<QByteArrayList> textTable(const char* file);

/// Makes such a table the rows of a test, each with its first column as title. The test takes its row with textRow().
void textRows(const char* file);

/// The columns of the test's row, as many as it must have.
QByteArrayList textColumns(int count);

/// The same to be taken apart:
///
///     const auto [text, degrees] = textRow<2>();
template <int count> std::array<QByteArray, count> textRow() {
    const QByteArrayList columns = textColumns(count);
    std::array<QByteArray, count> row;
    std::copy(columns.begin(), columns.end(), row.begin());
    return row;
}

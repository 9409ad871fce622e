#pragma once

#include "panel/computing/PointTable.h"

#include <QByteArray>

/// How a text holds points: what parts the columns of a line, and what each column is.
struct PointLayout {
    char separator = '\t'; ///< tab, comma or semicolon; a blank stands for any number of blanks and tabs
    bool decimalComma = false;
    bool hasHeading = false;
    std::vector<PointColumn> columns; ///< several of one kind belong together: degrees, minutes and seconds

    /// The layout that `head`, the beginning of a text, seems to have: separator and decimal comma by what its lines
    /// have in common, the columns by the words of a heading (English, German, French, Spanish, Chinese), else by what
    /// fits the numbers.
    static PointLayout guess(const QByteArray& head);

    /// The same, with the separator and the decimal comma as they are here.
    PointLayout withGuessedColumns(const QByteArray& head) const;

    /// Whether there are columns for at least one pair of coordinates, and no half of one.
    bool isComplete() const;

    /// The fields of a line without blanks around them. A field may stand in quotes.
    void split(std::string_view line, std::vector<std::string_view>& fields, std::string& unquoted) const;

    /// The first lines of a text that are not empty, split.
    std::vector<std::vector<std::string>> firstLines(const QByteArray& head, std::size_t count) const;
};

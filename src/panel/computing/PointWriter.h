#pragma once

#include "panel/computing/PointTable.h"

#include <QByteArray>

/// Writes points as a text with a heading: CSV, or with tabs for a spreadsheet.
class PointWriter {
public:
    enum class Digits {
        AsShown, ///< 0.1 mm, 1e-10 degrees, in the notation and the unit of length chosen now
        Full     ///< as many as read back to the same number, decimal degrees
    };

    /// `table` outlives the writer. Lengths are written in units of `metresPerUnit`; a tolerance marks no point here.
    PointWriter(const PointTable& table, char separator, Digits digits, double metresPerUnit);

    QByteArray heading() const;

    /// Appends one row and its end of line to `text`, UTF-8.
    void write(std::size_t row, std::string& text) const;

private:
    void writeLength(double metres, std::string& text) const;
    void writeAngle(double degrees, std::string& text) const;
    void writeText(std::string_view field, std::string& text) const;

    const PointTable& table;
    char separator;
    Digits digits;
    double metresPerUnit;
};

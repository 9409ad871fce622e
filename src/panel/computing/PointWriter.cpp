#include "panel/computing/PointWriter.h"

#include "panel/record/AngleText.h"
#include "panel/record/LengthUnit.h"
#include "panel/record/PanelText.h"

#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>

namespace {

/// Takes zeros behind the decimal point off the number that begins at `start`.
void dropZeros(std::string& text, std::size_t start) {
    if (text.find('.', start) == std::string::npos)
        return;
    text.resize(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    if (text.compare(start, std::string::npos, "-0") == 0)
        text.erase(start, 1);
}

/// Decimals of a length as shown: a tenth of a millimetre.
constexpr int lengthDecimals = 4;

template <typename... Format> void writeNumber(std::string& text, double value, Format... format) {
    std::array<char, 64> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format...).ptr;
    text.append(digits.data(), std::size_t(end - digits.data()));
}

} // namespace

PointWriter::PointWriter(const PointTable& table, char separator, Digits digits, double metresPerUnit)
    : table(table), separator(separator), digits(digits), metresPerUnit(metresPerUnit) {
}

QByteArray PointWriter::heading() const {
    const QString unit = " [" + LengthUnit::symbol() + ']';
    const QStringList names{PanelText::tr("Name"),
                            PanelText::tr("Latitude"),
                            PanelText::tr("Longitude"),
                            PanelText::tr("Height") + unit,
                            PanelText::tr("Easting") + unit,
                            PanelText::tr("Northing") + unit,
                            "ΔE" + unit,
                            "ΔN" + unit,
                            PanelText::tr("Distance") + unit,
                            PanelText::tr("Used"),
                            PanelText::tr("Remark")};
    return names.join(separator).toUtf8() + '\n';
}

void PointWriter::write(std::size_t row, std::string& text) const {
    writeText(table.name(row), text);
    for (const PointColumn column : {PointColumn::Latitude, PointColumn::Longitude}) {
        text += separator;
        writeAngle(table.shown(row, column), text);
    }
    for (const PointColumn column : {PointColumn::Height, PointColumn::Easting, PointColumn::Northing}) {
        text += separator;
        writeLength(table.shown(row, column), text);
    }
    const GridPoint difference = table.difference(row);
    for (const double metres :
         {difference.easting, difference.northing, std::hypot(difference.easting, difference.northing)}) {
        text += separator;
        writeLength(metres, text);
    }
    text += separator;
    text += table.isUsed(row) ? "yes" : "no";
    text += separator;
    writeText(table.remark(row).toStdString(), text);
    text += '\n';
}

void PointWriter::writeLength(double metres, std::string& text) const {
    if (std::isnan(metres))
        return;
    const double value = metres / metresPerUnit;
    if (digits == Digits::Full)
        writeNumber(text, value, std::chars_format::fixed);
    else if (std::abs(value) < 0.00005)
        text += "0.0000"; // without a minus sign
    else
        writeNumber(text, value, std::chars_format::fixed, lengthDecimals);
}

void PointWriter::writeAngle(double degrees, std::string& text) const {
    if (std::isnan(degrees))
        return;
    if (digits == Digits::Full)
        writeNumber(text, degrees, std::chars_format::fixed);
    else if (AngleText::notation() == AngleNotation::DecimalDegrees) {
        const std::size_t start = text.size();
        writeNumber(text, degrees, std::chars_format::fixed, AngleText::pointDecimals);
        dropZeros(text, start);
    } else
        writeText(AngleText::rounded(degrees, AngleText::pointDecimals).toStdString(), text);
}

/// In quotes where the text would else end early or look like more than one.
void PointWriter::writeText(std::string_view field, std::string& text) const {
    if (field.find_first_of("\",;\t\r\n") == std::string_view::npos) {
        text += field;
        return;
    }
    text += '"';
    for (const char c : field) {
        if (c == '"')
            text += '"';
        text += c == '\r' || c == '\n' ? ' ' : c;
    }
    text += '"';
}

// Any text as a table of points: no line is lost, what is no point says why, and what is written reads back.

#include "panel/computing/PointReader.h"
#include "panel/computing/PointWriter.h"
#include "support/Support.h"

#include <QByteArrayList>

#include <algorithm>
#include <cmath>

namespace {

PointTable readPoints(const QByteArray& bytes, const PointLayout& layout, int piece) {
    PointTable table;
    PointReader reader(layout, 1.0, table);
    for (int at = 0; at < bytes.size(); at += piece)
        reader.add(bytes.mid(at, piece));
    reader.finish();
    return table;
}

bool isSame(double left, double right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

/// How many lines of a text have anything on them.
std::size_t countLines(QByteArray text) {
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    std::size_t count = 0;
    for (const QByteArray& line : text.replace('\r', '\n').split('\n')) {
        const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\f'; };
        count += !std::all_of(line.begin(), line.end(), isBlank);
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    PointReader::refusal(bytes);
    const PointLayout layout = PointLayout::guess(PointReader::decodedHead(bytes));
    const PointTable table = readPoints(bytes, layout, 1 << 20);
    const PointTable pieces = readPoints(bytes, layout, 3);
    require(table.size() == pieces.size(), "pieces make no difference");
    const bool isUtf16 = bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
    const std::size_t lines = countLines(bytes);
    if (!isUtf16)
        require(table.size() == (layout.hasHeading && lines > 0 ? lines - 1 : lines), "every line is a row");
    const PointWriter writer(table, ',', PointWriter::Digits::Full, 1.0);
    std::string text = writer.heading().toStdString();
    for (std::size_t row = 0; row < table.size(); ++row) {
        require(table.isSound(row) == table.problem(row).isEmpty(), "what is no point says why");
        require(table.isSound(row) || !table.line(row).empty(), "what is no point has its line");
        require(table.name(row) == pieces.name(row) && table.line(row) == pieces.line(row), "texts are the same");
        for (std::size_t i = 0; i < PointTable::numberCount; ++i) {
            const double value = table.given(row, PointColumn(i));
            require(isSame(value, pieces.given(row, PointColumn(i))), "numbers are the same");
            require(std::isnan(value) || PointTable::accepts(PointColumn(i), value), "numbers are in range");
        }
        writer.write(row, text);
    }
    const QByteArray written = QByteArray::fromStdString(text);
    PointLayout csv;
    csv.separator = ',';
    csv.hasHeading = true;
    csv.columns = {PointColumn::Name,   PointColumn::Latitude, PointColumn::Longitude,
                   PointColumn::Height, PointColumn::Easting,  PointColumn::Northing};
    const PointTable back = readPoints(written, csv, 1 << 20);
    require(back.size() == table.size(), "every row is written on a line");
    for (std::size_t row = 0; row < table.size(); ++row) {
        for (std::size_t i = 0; i < PointTable::numberCount && table.isSound(row); ++i)
            require(isSame(back.given(row, PointColumn(i)), table.given(row, PointColumn(i))),
                    "what is saved reads back");
    }
    return 0;
}

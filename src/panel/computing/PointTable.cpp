#include "panel/computing/PointTable.h"

#include "panel/record/PanelText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace {

constexpr char endOfName = '\x1f';
constexpr char endOfText = '\0';

std::uint8_t bit(PointColumn column) {
    return std::uint8_t(1U << unsigned(column));
}

QString columnNames(std::uint8_t bits) {
    static const char* const names[] = {
        QT_TRANSLATE_NOOP("DlgCoordParam", "latitude"), QT_TRANSLATE_NOOP("DlgCoordParam", "longitude"),
        QT_TRANSLATE_NOOP("DlgCoordParam", "height"), QT_TRANSLATE_NOOP("DlgCoordParam", "easting"),
        QT_TRANSLATE_NOOP("DlgCoordParam", "northing")};
    QStringList texts;
    for (std::size_t i = 0; i < PointTable::numberCount; ++i) {
        if (bits & bit(PointColumn(i)))
            texts << PanelText::tr(names[i]);
    }
    return texts.join(", ");
}

/// A text with "?" for the two characters that end one in the table; hardly any text file has them.
void appendClean(std::string& texts, std::string_view added) {
    const std::size_t start = texts.size();
    texts.append(added);
    const auto isEnd = [](char c) { return c == endOfName || c == endOfText; };
    std::replace_if(texts.begin() + std::ptrdiff_t(start), texts.end(), isEnd, '?');
}

} // namespace

bool PointTable::accepts(PointColumn column, double value) {
    switch (column) {
    case PointColumn::Latitude:
        return std::abs(value) <= 90.0;
    case PointColumn::Longitude:
        return std::abs(value) <= 360.0;
    case PointColumn::Height:
        return value >= -20000.0 && value <= 100000.0;
    default:
        return std::abs(value) <= 1e9;
    }
}

std::size_t PointTable::append(std::string_view name, std::string_view line) {
    for (auto* columns : {&numbers[0], &numbers[1], &numbers[2], &numbers[3], &numbers[4], &computed[0], &computed[1]})
        columns->push_back(nothing);
    states.push_back(0);
    unread.push_back(0);
    outOfRange.push_back(0);
    textStarts.push_back(0);
    const std::size_t row = size() - 1;
    setText(row, name, line);
    return row;
}

bool PointTable::join(const PointTable& first, const PointTable& second, std::size_t part) {
    const auto joined = [](auto& to, const auto& left, const auto& right) {
        to.reserve(left.size() + right.size());
        to.insert(to.end(), left.begin(), left.end());
        to.insert(to.end(), right.begin(), right.end());
    };
    if (part < numberCount) {
        joined(numbers[part], first.numbers[part], second.numbers[part]);
        return true;
    }
    part -= numberCount;
    if (part < computed.size()) {
        joined(computed[part], first.computed[part], second.computed[part]);
        return true;
    }
    part -= computed.size();
    if (part == 0) {
        joined(unread, first.unread, second.unread);
        joined(outOfRange, first.outOfRange, second.outOfRange);
        joined(states, first.states, second.states);
        return true;
    }
    if (part == 1) {
        joined(textStarts, first.textStarts, second.textStarts);
        const auto shift = std::uint32_t(first.texts.size());
        std::for_each(textStarts.begin() + std::ptrdiff_t(first.size()), textStarts.end(),
                      [&](std::uint32_t& start) { start += shift; });
        return true;
    }
    joined(texts, first.texts, second.texts);
    return false;
}

PointTable PointTable::picked(const std::vector<bool>& marked, bool mark) const {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < size(); ++row) {
        if ((row < marked.size() && marked[row]) == mark)
            rows.push_back(row);
    }
    PointTable table;
    const auto pick = [&rows](auto& to, const auto& from) {
        to.reserve(rows.size());
        for (const std::size_t row : rows)
            to.push_back(from[row]);
    };
    for (std::size_t i = 0; i < numberCount; ++i)
        pick(table.numbers[i], numbers[i]);
    for (std::size_t i = 0; i < computed.size(); ++i)
        pick(table.computed[i], computed[i]);
    pick(table.states, states);
    pick(table.unread, unread);
    pick(table.outOfRange, outOfRange);
    table.textStarts.reserve(rows.size());
    for (const std::size_t row : rows) {
        const std::string_view whole = text(row);
        table.textStarts.push_back(std::uint32_t(table.texts.size()));
        table.texts.append(whole.data(), whole.size() + 1); // with its end
    }
    table.texts.shrink_to_fit();
    return table;
}

PointTable PointTable::take(const std::vector<bool>& marked) {
    PointTable taken = picked(marked, true);
    *this = picked(marked, false);
    return taken;
}

void PointTable::putBack(const PointTable& taken, const std::vector<bool>& marked) {
    const auto insert = [&](auto& to, const auto& from) {
        std::remove_reference_t<decltype(to)> all;
        all.reserve(to.size() + from.size());
        auto kept = to.begin();
        auto next = from.begin();
        for (const bool isTaken : marked)
            all.push_back(isTaken ? *next++ : *kept++);
        all.insert(all.end(), kept, to.end());
        to = std::move(all);
    };
    for (std::size_t i = 0; i < numberCount; ++i)
        insert(numbers[i], taken.numbers[i]);
    for (std::size_t i = 0; i < computed.size(); ++i)
        insert(computed[i], taken.computed[i]);
    insert(states, taken.states);
    insert(unread, taken.unread);
    insert(outOfRange, taken.outOfRange);
    std::vector<std::uint32_t> starts = taken.textStarts;
    for (std::uint32_t& start : starts)
        start += std::uint32_t(texts.size());
    insert(textStarts, starts);
    texts += taken.texts;
}

std::string_view PointTable::text(std::size_t row) const {
    return texts.data() + textStarts[row];
}

std::string_view PointTable::name(std::size_t row) const {
    const std::string_view whole = text(row);
    return whole.substr(0, whole.find(endOfName));
}

std::string_view PointTable::line(std::size_t row) const {
    const std::string_view whole = text(row);
    const std::size_t end = whole.find(endOfName);
    return end == std::string_view::npos ? std::string_view() : whole.substr(end + 1);
}

void PointTable::setName(std::size_t row, std::string_view name) {
    setText(row, name, std::string(line(row)));
}

void PointTable::setText(std::size_t row, std::string_view name, std::string_view line) {
    textStarts[row] = std::uint32_t(texts.size());
    appendClean(texts, name);
    if (!line.empty()) {
        texts += endOfName;
        appendClean(texts, line);
    }
    texts += endOfText;
}

void PointTable::setGiven(std::size_t row, PointColumn column, double value) {
    numbers[std::size_t(column)][row] = value;
    unread[row] = std::uint8_t(unread[row] & ~bit(column));
    outOfRange[row] = std::uint8_t(outOfRange[row] & ~bit(column));
}

void PointTable::setUnread(std::size_t row, PointColumn column) {
    unread[row] |= bit(column);
}

void PointTable::setOutOfRange(std::size_t row, PointColumn column) {
    outOfRange[row] |= bit(column);
}

void PointTable::setTooLong(std::size_t row) {
    setState(row, TooLong, true);
}

void PointTable::setState(std::size_t row, State state, bool on) {
    states[row] = std::uint8_t(on ? states[row] | state : states[row] & ~state);
}

void PointTable::setUsed(std::size_t row, bool used) {
    setState(row, LeftOut, !used);
}

bool PointTable::hasPlace(std::size_t row) const {
    return !std::isnan(given(row, PointColumn::Latitude)) && !std::isnan(given(row, PointColumn::Longitude));
}

bool PointTable::hasGrid(std::size_t row) const {
    return !std::isnan(given(row, PointColumn::Easting)) && !std::isnan(given(row, PointColumn::Northing));
}

bool PointTable::isSound(std::size_t row) const {
    const bool isHalf =
        std::isnan(given(row, PointColumn::Latitude)) != std::isnan(given(row, PointColumn::Longitude)) ||
        std::isnan(given(row, PointColumn::Easting)) != std::isnan(given(row, PointColumn::Northing));
    return !isHalf && (hasPlace(row) || hasGrid(row)) && unread[row] == 0 && outOfRange[row] == 0 &&
           (states[row] & TooLong) == 0;
}

void PointTable::compute(std::size_t first, std::size_t last, const IProjectedSystem* system, CheckPoint::Datum datum) {
    const bool isShiftMissing = system && datum == CheckPoint::Datum::Wgs84 && !system->hasDatumShift();
    for (std::size_t row = first; row < last; ++row) {
        computed[0][row] = computed[1][row] = nothing;
        const bool isSoundRow = isSound(row);
        states[row] = std::uint8_t(states[row] & ~(NotReached | NoShift));
        if (!system || !isSoundRow)
            continue;
        if (isShiftMissing)
            setState(row, NoShift, true);
        else
            computeRow(row, *system, datum);
    }
}

std::optional<GeographicPoint> PointTable::ownPlace(std::size_t row, const IProjectedSystem& system,
                                                    CheckPoint::Datum datum) const {
    if (!hasPlace(row))
        return std::nullopt;
    const GeographicPoint place{given(row, PointColumn::Latitude), given(row, PointColumn::Longitude), height(row)};
    if (datum == CheckPoint::Datum::Own)
        return place;
    return system.hasDatumShift() ? system.fromWgs84(place) : std::nullopt;
}

double PointTable::height(std::size_t row) const {
    const double value = given(row, PointColumn::Height);
    return std::isnan(value) ? 0.0 : value;
}

void PointTable::computeRow(std::size_t row, const IProjectedSystem& system, CheckPoint::Datum datum) {
    if (hasPlace(row)) {
        const auto own = ownPlace(row, system, datum);
        if (const auto point = own ? system.toGrid(*own) : std::nullopt) {
            computed[0][row] = point->easting;
            computed[1][row] = point->northing;
        }
    } else {
        auto place =
            system.toGeographic({given(row, PointColumn::Easting), given(row, PointColumn::Northing)}, height(row));
        if (place && datum == CheckPoint::Datum::Wgs84) {
            // The height is one on WGS 84; the shift changes heights by much the same everywhere near.
            const auto first = system.toWgs84(*place);
            if (first)
                place->height += height(row) - first->height;
            place = first ? system.toWgs84(*place) : std::nullopt;
        }
        if (place) {
            computed[0][row] = place->latitude;
            computed[1][row] = place->longitude;
        }
    }
    setState(row, NotReached, std::isnan(computed[0][row]));
}

GridPoint PointTable::computedGrid(std::size_t row) const {
    return hasPlace(row) ? GridPoint{computed[0][row], computed[1][row]} : GridPoint{nothing, nothing};
}

GeographicPoint PointTable::computedPlace(std::size_t row) const {
    return hasPlace(row) ? GeographicPoint{nothing, nothing, nothing}
                         : GeographicPoint{computed[0][row], computed[1][row], given(row, PointColumn::Height)};
}

double PointTable::shown(std::size_t row, PointColumn column) const {
    const double value = given(row, column);
    if (!std::isnan(value) || !isSound(row))
        return value;
    switch (column) {
    case PointColumn::Latitude:
        return computedPlace(row).latitude;
    case PointColumn::Longitude:
        return computedPlace(row).longitude;
    case PointColumn::Easting:
        return computedGrid(row).easting;
    case PointColumn::Northing:
        return computedGrid(row).northing;
    default:
        return value;
    }
}

GridPoint PointTable::grid(std::size_t row) const {
    return {shown(row, PointColumn::Easting), shown(row, PointColumn::Northing)};
}

GridPoint PointTable::difference(std::size_t row) const {
    const GridPoint point = computedGrid(row);
    return {point.easting - given(row, PointColumn::Easting), point.northing - given(row, PointColumn::Northing)};
}

QString PointTable::problem(std::size_t row) const {
    QStringList texts;
    if (states[row] & TooLong)
        texts << PanelText::tr("The line is too long for a point; its beginning is kept.");
    if (unread[row] != 0)
        texts << PanelText::tr("Can't be read: %1.").arg(columnNames(unread[row]));
    if (outOfRange[row] != 0)
        texts << PanelText::tr("Out of range: %1.").arg(columnNames(outOfRange[row]));
    if (texts.isEmpty() && !isSound(row)) {
        std::uint8_t present = 0, missing = 0;
        for (const PointColumn column :
             {PointColumn::Latitude, PointColumn::Longitude, PointColumn::Easting, PointColumn::Northing})
            (std::isnan(given(row, column)) ? missing : present) |= bit(column);
        if (present == 0)
            texts << PanelText::tr("There are no coordinates.");
        else
            texts << PanelText::tr("Missing: %1.").arg(columnNames([&] {
                // Of a pair that is half there.
                const std::uint8_t place = bit(PointColumn::Latitude) | bit(PointColumn::Longitude);
                const std::uint8_t grid = bit(PointColumn::Easting) | bit(PointColumn::Northing);
                return std::uint8_t((present & place ? missing & place : 0) | (present & grid ? missing & grid : 0));
            }()));
    }
    if (states[row] & NoShift)
        texts << PanelText::tr("The system defines no datum shift.");
    if (states[row] & NotReached)
        texts << PanelText::tr("The projection gives no result for this point.");
    return PanelText::joined(texts);
}

QString PointTable::remark(std::size_t row) const {
    QStringList texts;
    if (hasProblem(row))
        texts << problem(row);
    if (isDuplicate(row))
        texts << PanelText::tr("The name occurs more than once.");
    const std::string_view unreadLine = isSound(row) ? std::string_view() : line(row);
    if (!unreadLine.empty())
        texts << PanelText::tr("Line: %1").arg(QString::fromUtf8(unreadLine.data(), int(unreadLine.size())));
    return PanelText::joined(texts);
}

std::size_t PointTable::bytes() const {
    std::size_t sum = texts.capacity() + textStarts.capacity() * sizeof(std::uint32_t);
    for (const auto& column : numbers)
        sum += column.capacity() * sizeof(double);
    for (const auto& column : computed)
        sum += column.capacity() * sizeof(double);
    return sum + states.capacity() + unread.capacity() + outOfRange.capacity();
}

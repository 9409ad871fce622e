#pragma once

#include "panel/computing/CheckPoint.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

/// What a column of a text, or of the table, holds of a point.
enum class PointColumn : std::uint8_t { Latitude, Longitude, Height, Easting, Northing, Name, None };

/// Control points, row by row: what was given, and what a system makes of it. Lengths are metres, angles degrees, and
/// what is not there is NaN. A line that could not be read is a row, too, with all that could be read of it.
///
/// Columns lie apart and as plain numbers: a million points of two numbers and a name take some 70 MB.
class PointTable {
public:
    static constexpr std::size_t numberCount = 5;
    static constexpr double nothing = std::numeric_limits<double>::quiet_NaN(); ///< what is not there

    /// Whether a column of numbers may hold a value: latitudes to 90, longitudes to 360 degrees, heights of -20 to
    /// 100 km, a grid to 1e9 m.
    static bool accepts(PointColumn column, double value);

    std::size_t size() const { return states.size(); }
    bool isEmpty() const { return states.empty(); }

    /// Adds a row of no numbers, and gives its number; `line` as line() gives it.
    std::size_t append(std::string_view name = {}, std::string_view line = {});
    /// Makes this empty table one of the rows of two others, with nothing in reserve. One part of the work for each
    /// `part` from 0 until it returns false: all at once may take too long with a window open.
    bool join(const PointTable& first, const PointTable& second, std::size_t part);

    /// Removes the rows that are marked, and gives them; `marked` has one value for each row.
    PointTable take(const std::vector<bool>& marked);

    /// Puts rows back where take() found them; others may have been added behind the end meanwhile.
    void putBack(const PointTable& taken, const std::vector<bool>& marked);

    /// A table of the rows whose mark is `mark`; rows behind the last mark are not marked.
    PointTable picked(const std::vector<bool>& marked, bool mark) const;

    /// The name as UTF-8.
    std::string_view name(std::size_t row) const;

    /// The line that this row could not be read from, as UTF-8; empty where it could.
    std::string_view line(std::size_t row) const;
    void setName(std::size_t row, std::string_view name);

    /// What was given, NaN where nothing was. `column` is one of the numbers.
    double given(std::size_t row, PointColumn column) const { return numbers[std::size_t(column)][row]; }

    /// Also takes back that the column was unreadable.
    void setGiven(std::size_t row, PointColumn column, double value);

    /// What of a row is the trouble; each can go with any other.
    void setUnread(std::size_t row, PointColumn column);
    void setOutOfRange(std::size_t row, PointColumn column);
    void setTooLong(std::size_t row);

    bool hasPlace(std::size_t row) const;
    bool hasGrid(std::size_t row) const;

    /// Whether the row is a point with nothing left open: at least one pair, and no half of one nor anything unread.
    bool isSound(std::size_t row) const;

    /// Computes the rows from `first` to before `last`: easting and northing wherever there are latitude and longitude,
    /// else those two, all on `datum` (a height that was not given counts as 0). `system` may be null.
    void compute(std::size_t first, std::size_t last, const IProjectedSystem* system, CheckPoint::Datum datum);

    /// The given latitude, longitude and height (0 where there is none), which are on `datum`, on the system's own
    /// datum. Nothing where there are none, or the system can't bring them there.
    std::optional<GeographicPoint> ownPlace(std::size_t row, const IProjectedSystem& system,
                                            CheckPoint::Datum datum) const;

    /// What was computed, on the datum of compute(); NaN where nothing was.
    GridPoint computedGrid(std::size_t row) const;
    GeographicPoint computedPlace(std::size_t row) const;

    /// Given or else computed.
    double shown(std::size_t row, PointColumn column) const;
    GridPoint grid(std::size_t row) const;

    /// Computed minus given, in metres of the grid; NaN unless both pairs were given.
    GridPoint difference(std::size_t row) const;

    bool isUsed(std::size_t row) const { return (states[row] & LeftOut) == 0; }
    void setUsed(std::size_t row, bool used);

    /// Whether the name occurs more than once; DuplicateNames finds out.
    void setDuplicate(std::size_t row, bool duplicate) { setState(row, Duplicate, duplicate); }
    bool isDuplicate(std::size_t row) const { return (states[row] & Duplicate) != 0; }

    /// Whether there is no point of use in this row, and why: whole sentences, translated; empty where it is.
    bool hasProblem(std::size_t row) const { return !isSound(row) || (states[row] & (NotReached | NoShift)) != 0; }
    QString problem(std::size_t row) const;

    /// The problem and the line behind it, and whether the name is another row's, too.
    QString remark(std::size_t row) const;

    /// More would not fit the places of the texts, nor any list.
    bool isFull() const { return size() >= 10000000 || texts.size() > 4000000000U; }

    /// What the table takes in memory.
    std::size_t bytes() const;

private:
    enum State : std::uint8_t { LeftOut = 1, Duplicate = 2, TooLong = 4, NotReached = 8, NoShift = 16 };

    std::string_view text(std::size_t row) const;
    void setText(std::size_t row, std::string_view name, std::string_view line);
    void setState(std::size_t row, State state, bool on);
    double height(std::size_t row) const;
    void computeRow(std::size_t row, const IProjectedSystem& system, CheckPoint::Datum datum);

    std::array<std::vector<double>, numberCount> numbers; ///< by PointColumn
    std::array<std::vector<double>, 2> computed;          ///< easting and northing, or latitude and longitude
    std::vector<std::uint8_t> states;
    std::vector<std::uint8_t> unread;      ///< bits by PointColumn
    std::vector<std::uint8_t> outOfRange;  ///< bits by PointColumn
    std::vector<std::uint32_t> textStarts; ///< in `texts`
    std::string texts;                     ///< each row's name, the line behind it if there is one, and an end
};

#pragma once

#include <cstdint>
#include <vector>

class PointTable;

/// Finds names that a table has more than once. Goes through the rows piece by piece: a million take longer than a
/// window may hang.
class DuplicateNames {
public:
    /// `table` outlives the object and keeps its rows and names meanwhile.
    explicit DuplicateNames(PointTable& table);

    /// Marks the next `count` rows, and those before them with the same names. False when there are no more.
    bool mark(std::size_t count);

private:
    PointTable& table;
    std::size_t next = 0;
    std::vector<std::uint32_t> firstRows; ///< by hash of the name, plus one; 0 where there is none
};

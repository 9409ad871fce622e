#include "panel/computing/DuplicateNames.h"

#include "panel/computing/PointTable.h"

#include <algorithm>
#include <functional>

DuplicateNames::DuplicateNames(PointTable& table) : table(table) {
    std::size_t places = 16;
    while (places < 2 * table.size())
        places *= 2;
    firstRows.resize(places);
}

bool DuplicateNames::mark(std::size_t count) {
    const std::size_t last = std::min(table.size(), next + count);
    for (; next < last; ++next) {
        const std::string_view name = table.name(next);
        table.setDuplicate(next, false);
        if (name.empty())
            continue;
        std::size_t place = std::hash<std::string_view>()(name) & (firstRows.size() - 1);
        while (firstRows[place] != 0 && table.name(firstRows[place] - 1) != name)
            place = (place + 1) & (firstRows.size() - 1);
        if (firstRows[place] == 0) {
            firstRows[place] = std::uint32_t(next) + 1;
        } else {
            table.setDuplicate(firstRows[place] - 1, true);
            table.setDuplicate(next, true);
        }
    }
    return next < table.size();
}

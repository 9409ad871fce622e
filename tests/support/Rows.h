#pragma once

#include <QTest>

#include <tuple>
#include <utility>

/// The table of a test, with a column of each type: `_data()` makes one and calls it for every row, and the test takes
/// its row apart, as in `const auto [text, number] = Table::current()`.
template <typename... Columns> class Rows {
public:
    Rows() { addColumns(std::index_sequence_for<Columns...>()); }

    void operator()(const QByteArray& title, const Columns&... values) const {
        (QTest::newRow(title) << ... << values);
    }

    static std::tuple<Columns...> current() { return current(std::index_sequence_for<Columns...>()); }

private:
    static constexpr const char* names[] = {"1", "2", "3", "4", "5", "6", "7"};

    template <size_t... I> static void addColumns(std::index_sequence<I...>) {
        (QTest::addColumn<Columns>(names[I]), ...);
    }

    template <size_t... I> static std::tuple<Columns...> current(std::index_sequence<I...>) {
        return {*static_cast<Columns*>(QTest::qData(names[I], qMetaTypeId<Columns>()))...};
    }
};

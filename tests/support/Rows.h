#pragma once

#include <QTest>

#include <utility>

/// The table of a test: `_data()` makes one, whose columns have names and types, and calls it for every row. The test
/// takes its row with QFETCH.
///
///     const Rows<QByteArray, double> row({"text", "degrees"});
///     row("with a sign", "-0:45", -0.75);
template <typename... Columns> class Rows {
public:
    using Names = const char* const (&)[sizeof...(Columns)];

    explicit Rows(Names names) { addColumns(names, std::index_sequence_for<Columns...>()); }

    void operator()(const QByteArray& title, const Columns&... values) const {
        (QTest::newRow(title) << ... << values);
    }

private:
    template <size_t... I> static void addColumns(Names names, std::index_sequence<I...>) {
        (QTest::addColumn<Columns>(names[I]), ...);
    }
};

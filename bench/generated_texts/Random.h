#pragma once

#include <random>

/// Draws that are the same on every platform.
class Random {
public:
    explicit Random(unsigned long long seed) : engine(seed) {}

    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(engine() % static_cast<unsigned long long>(count)); }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename List> const auto& pick(const List& list) {
        return *(std::begin(list) + below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937_64 engine;
};

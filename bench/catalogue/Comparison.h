#pragma once

#include <QElapsedTimer>

#include <ctime>
#include <vector>

/// What a piece of work costs, in milliseconds.
struct Cost {
    double passed; ///< what somebody waits
    double worked; ///< what the process has the processor do, which others on the machine disturb less
};

template <class Work> Cost costOf(Work work) {
    QElapsedTimer timer;
    timer.start();
    const std::clock_t before = std::clock();
    work();
    const double worked = 1000.0 * double(std::clock() - before) / CLOCKS_PER_SEC;
    return {double(timer.nsecsElapsed()) / 1e6, worked};
}

/// Costs of one thing beside those of another, measured by turns.
class Comparison {
public:
    void add(const Cost& cost, const Cost& reference) { rounds.push_back({cost, reference}); }

    /// The medians over the rounds, and the ratios with the least and the greatest of them.
    void print(const char* title, const char* reference) const;

private:
    struct Round {
        Cost cost, reference;
    };

    void printRatios(double Cost::*kind) const;

    std::vector<Round> rounds;
};

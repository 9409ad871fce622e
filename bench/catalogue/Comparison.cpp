#include "Comparison.h"

#include <algorithm>
#include <cstdio>

/// Of at least one number.
static double median(std::vector<double> numbers) {
    std::sort(numbers.begin(), numbers.end());
    return numbers[numbers.size() / 2];
}

void Comparison::printRatios(double Cost::*kind) const {
    std::vector<double> ratios, costs, references;
    for (const Round& round : rounds) {
        ratios.push_back(round.cost.*kind / round.reference.*kind);
        costs.push_back(round.cost.*kind);
        references.push_back(round.reference.*kind);
    }
    const auto [least, greatest] = std::minmax_element(ratios.begin(), ratios.end());
    std::printf("%6.2f (%.2f to %.2f) = %.1f / %.1f ms", median(ratios), *least, *greatest, median(costs),
                median(references));
}

void Comparison::print(const char* title, const char* reference) const {
    std::printf("  %-26s %-12s", title, reference);
    printRatios(&Cost::passed);
    std::printf("  processor");
    printRatios(&Cost::worked);
    std::printf("\n");
    std::fflush(stdout);
}

// SPDX-License-Identifier: MIT
#include "bench/paired_timing.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace quillon::bench {

namespace {

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

PairedTiming comparePairs(const std::function<double()>& ours,
                          const std::function<double()>& reference, int pairs)
{
    ours();
    reference();
    std::vector<double> ourTimes;
    std::vector<double> referenceTimes;
    std::vector<double> ratios;
    for (int pair = 0; pair < pairs; ++pair) {
        ourTimes.push_back(ours());
        referenceTimes.push_back(reference());
        ratios.push_back(ourTimes.back() / referenceTimes.back());
    }
    return PairedTiming{median(ourTimes), median(referenceTimes), median(ratios)};
}

double millisecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

} // namespace quillon::bench

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quillon::bench {

// What a comparison gives. Times in milliseconds.
struct PairedTiming {
    double ours = 0;
    double reference = 0;
    // The median of the pairs' ratios, ours to the reference's.
    double ratio = 0;
};

// Runs both, one right after the other, `pairs` times (at least 9) after one warm-up, so that
// whatever else the machine is doing meets both alike. Each function gives the milliseconds that
// its measured part took.
PairedTiming comparePairs(const std::function<double()>& ours,
                          const std::function<double()>& reference, int pairs = 9);

// The milliseconds that the work takes.
double millisecondsOf(const std::function<void()>& work);

} // namespace quillon::bench

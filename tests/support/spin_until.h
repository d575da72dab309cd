// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace quillon {

// Lets the event loop run until the predicate holds. False when it still does not after the
// timeout, which is there to end a broken test, not to measure anything.
[[nodiscard]] bool spinUntil(const std::function<bool()>& predicate,
                             std::chrono::milliseconds timeout = std::chrono::seconds(30));

// Lets the event loop run until a timer of that length, started now, has fired. For showing that
// something does not happen: choose a length that gives it every occasion to.
void spinFor(std::chrono::milliseconds duration);

} // namespace quillon

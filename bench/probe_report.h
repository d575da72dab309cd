// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace quillon::bench {

// Resident memory of this process in bytes.
qint64 residentBytes();

// Prints the time of std::chrono::steady_clock in nanoseconds, which is the same clock in all
// processes, and the resident memory, and ends the process, the window having been painted: what
// becomes of it then is none of the measurement.
[[noreturn]] void reportAndExit();

} // namespace quillon::bench

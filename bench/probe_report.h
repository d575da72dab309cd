// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace quillon::bench {

// Resident memory of this process in bytes.
qint64 residentBytes();

// Prints the resident memory and ends the process, the window having been painted: what it would
// do on its way out is none of the measurement.
[[noreturn]] void reportAndExit();

} // namespace quillon::bench

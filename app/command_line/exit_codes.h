// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

// The program's exit statuses.
inline constexpr int kExitSuccess = 0;
// The file cannot be opened, the output not be written or the window not be shown.
inline constexpr int kExitFailure = 1;
// The arguments make no sense.
inline constexpr int kExitUsage = 2;
// Ended by a signal, whose number is added.
inline constexpr int kExitSignalBase = 128;

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace quillon {

// The menu command "Ouvrir un log…" was chosen; the main window answers with the open dialog.
inline constexpr QLatin1StringView kCmdOpenLog{"Quillon.cmdOpenLog"};

// The preferences window has gone away; the view model takes the display defaults over.
inline constexpr QLatin1StringView kPrefsDidClose{"Quillon.prefsDidClose"};

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include "model/log_severity.h"
#include "render/color.h"

#include <array>

namespace quillon {

class UserDefaults;

// The user's colour for a severity, read from the defaults now; a fixed system colour where the
// stored text means none. Unknown lines have the text colour and no preference.
Color colorForSeverity(LogSeverity severity, const UserDefaults& defaults);

// Every highlight colour as the defaults give it at one moment. One pass over the lines runs
// without interruption, so reading once per pass shows what reading per row would.
struct HighlightColors {
    std::array<Color, kAllSeverities.size()> severity;
    Color date;
    Color arrayDump;

    static HighlightColors read(const UserDefaults& defaults);
};

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include "render/highlight_preferences.h"

#include <array>

namespace quillon {

class UserDefaults;

// The user's colour for a severity, read from the defaults now; a fixed system colour where the
// stored text means none. Unknown lines have the text colour and no preference.
Color colorForSeverity(LogSeverity severity, const UserDefaults& defaults);

// Every highlight colour as the defaults give it at one moment. One pass over the lines runs
// without interruption, so reading once per pass shows what reading per row would.
struct HighlightColors {
    // In the order of the roles.
    std::array<Color, kHighlightPreferences.size()> ofRole;

    [[nodiscard]] const Color& operator[](HighlightRole role) const
    {
        return ofRole[static_cast<std::size_t>(role)];
    }

    static HighlightColors read(const UserDefaults& defaults);
};

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include "render/highlight_colors.h"

namespace quillon {

// Colours of which no two are alike, so that a test sees which one a character has.
inline HighlightColors distinctColors()
{
    const auto shade = [](int i) {
        return Color::rgb(0.1 * i, 0.2, 0.3);
    };
    return HighlightColors{{shade(0), shade(1), shade(2), shade(3), shade(4), shade(5), shade(6),
                            Color::system(SystemColor::Text), shade(8), shade(9)}};
}

} // namespace quillon

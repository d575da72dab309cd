// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

#include <array>

namespace quillon {

// A role that texts are drawn in, and the one that they are drawn on.
struct TextOnSurface {
    QPalette::ColorRole text;
    QPalette::ColorRole surface;
};

inline constexpr std::array kTextsOnSurfaces{
    TextOnSurface{QPalette::WindowText, QPalette::Window},
    TextOnSurface{QPalette::Text, QPalette::Base},
    TextOnSurface{QPalette::Text, QPalette::AlternateBase},
    TextOnSurface{QPalette::ButtonText, QPalette::Button},
    TextOnSurface{QPalette::ToolTipText, QPalette::ToolTipBase},
    TextOnSurface{QPalette::PlaceholderText, QPalette::Base},
    TextOnSurface{QPalette::HighlightedText, QPalette::Highlight},
    TextOnSurface{QPalette::Link, QPalette::Window},
    TextOnSurface{QPalette::LinkVisited, QPalette::Window},
};

} // namespace quillon

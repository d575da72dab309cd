// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/log_text_layout.h"

#include <optional>

class QKeyEvent;

namespace quillon {

// A caret as keys move it.
struct Caret {
    TextPosition position;
    // Where in the frame (points from its left edge) moves from line to line lead, however short
    // the lines between are; none when the last move was another, and the position itself counts.
    std::optional<double> x;
};

// The caret after a key; none for keys that do not move it. `pageLines` is how far the page keys
// go.
std::optional<Caret> movedBy(const QKeyEvent& event, const LogTextLayout& layout,
                             const Caret& caret, int pageLines);

} // namespace quillon

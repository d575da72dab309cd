// SPDX-License-Identifier: MIT
#pragma once

#include "render/attributed_string.h"

#include <compare>

namespace quillon {

// A place in the text, before the UTF-16 unit `offset` of a row; the row's length is the place
// after its line feed.
struct TextPosition {
    qsizetype row = 0;
    qsizetype offset = 0;
    // clang-tidy 14 takes the 0 inside a defaulted comparison for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    auto operator<=>(const TextPosition&) const = default;
};

// The places one character before and after a place, across the ends of rows; a character is what a
// reader takes for one, marks and joined emoji included. The same place where the text ends.
TextPosition positionBefore(const AttributedString& text, TextPosition position);
TextPosition positionAfter(const AttributedString& text, TextPosition position);

} // namespace quillon

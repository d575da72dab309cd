// SPDX-License-Identifier: MIT
#pragma once

#include "platform/displayed_character.h"

#include <QString>

namespace quillon {

class AttributedRow;

// The row as it is drawn, character by character (the pictures are spelled out by MonospaceMetrics
// where no font has them), without its line feed: the number, a tab and the line's text. As many
// UTF-16 units as the row has before its line feed, so that offsets in one are offsets in the
// other.
QString displayedText(const AttributedRow& row);

// Whether the character's place in a line depends on its neighbours (combining marks, emoji,
// scripts that join or run from right to left), so that only a full text layout can tell it. All
// others stand side by side, each as wide as its own advance.
bool needsShaping(char16_t character);

// White space that a line may end in: it may reach past the line's width, and the next line begins
// after it.
constexpr bool isBreakableSpace(char16_t character)
{
    return character == u' ' || character == u'\t';
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quillon {

class AttributedRow;

// The character drawn for a character of the log: a control character shows as its picture
// (U+2400 and on, which MonospaceMetrics spells out where no font has it), so that nothing in a log
// is invisible; all others show as themselves. Tabs stay.
char16_t displayedCharacter(char16_t character);

// The row as it is drawn, without its line feed: the number, a tab and the line's text. As many
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

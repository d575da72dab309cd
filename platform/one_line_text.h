// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace quillon {

// Whether the character is one of the embeddings, overrides and isolates (U+202A to U+202E, U+2066
// to U+2069) that turn round the text that follows them, on a terminal also beyond their line.
constexpr bool isDirectionControl(char16_t character)
{
    return (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

// A text from outside, such as a file's name, as part of a message: one line that drives no
// terminal and turns nothing round. What would do so becomes a picture (U+2400 and on) where there
// is one and U+FFFD elsewhere; tabs and all line ends count, too.
QString oneLineText(QStringView text);

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

#include <cstdint>

namespace quillon {

class AttributedRow;

// What becomes of control characters in a log's text. A terminal obeys them (they move the cursor,
// change its title, or worse), so there they are shown as the window shows them (see
// displayedCharacter()). Those that override or isolate the writing direction, which could turn
// round the row's own number and what comes after it, become U+FFFD. A pipe or a file gets them all
// as they are.
enum class ControlCharacters : std::uint8_t { AsTheyAre, AsPictures };

// Whether a row begins with its number and a tab.
enum class RowNumber : std::uint8_t { Shown, LeftOut };

// Appends the text in UTF-8.
void appendUtf8(QStringView text, QByteArray& out);

// Appends the text in UTF-8. Tabs and line feeds are never made pictures.
void appendText(QStringView text, ControlCharacters controls, QByteArray& out);

// Appends the whole row without any colour: number and tab, text and line feed.
void appendPlainRow(const AttributedRow& row, ControlCharacters controls, RowNumber number,
                    QByteArray& out);

} // namespace quillon

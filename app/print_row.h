// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

#include <cstdint>

namespace quillon {

class AttributedRow;

// What becomes of control characters in a log's text. A terminal obeys them (they move the cursor,
// change its title, or worse), so there they are shown as pictures: U+241B for ESC, and so on. A
// pipe or a file gets them as they are.
enum class ControlCharacters : std::uint8_t { AsTheyAre, AsPictures };

// Appends the text in UTF-8.
void appendUtf8(QStringView text, QByteArray& out);

// Appends the text in UTF-8. Tabs and line feeds are never made pictures.
void appendText(QStringView text, ControlCharacters controls, QByteArray& out);

// Appends the whole row without any colour: number, tab, text and line feed.
void appendPlainRow(const AttributedRow& row, ControlCharacters controls, QByteArray& out);

} // namespace quillon

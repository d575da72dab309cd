// SPDX-License-Identifier: MIT
#pragma once

#include "ui/layout/text_position.h"

#include <QString>

#include <cstdint>
#include <utility>

namespace quillon {

enum class SelectionGranularity : std::uint8_t { Character, Word, Row };

// What is selected of a text: everything between an anchor, which stays, and a caret, which moves.
// With a coarser granularity both ends are widened to whole words or rows, the word or row first
// chosen always included.
class LogTextSelection {
public:
    // Starts an empty selection (or one word or row) at a place.
    void begin(const AttributedString& text, TextPosition position,
               SelectionGranularity granularity = SelectionGranularity::Character);
    // Moves the caret.
    void extendTo(const AttributedString& text, TextPosition position);
    void selectAll(const AttributedString& text);
    // Puts the anchor at `start` and the caret at `end`, which may be the one before the other.
    void select(TextPosition start, TextPosition end);
    void clear() { *this = LogTextSelection(); }

    [[nodiscard]] bool isEmpty() const { return m_start == m_end; }
    // In the order of the text, the end excluded.
    [[nodiscard]] TextPosition start() const { return m_start; }
    [[nodiscard]] TextPosition end() const { return m_end; }
    [[nodiscard]] TextPosition caret() const { return m_caret; }

    // The selected text, rows ending in line feeds.
    [[nodiscard]] QString textIn(const AttributedString& text) const;
    // The lines of the file of which anything is selected, whole, a line feed after each.
    [[nodiscard]] QString linesIn(const AttributedString& text) const;

private:
    using Span = std::pair<TextPosition, TextPosition>;
    [[nodiscard]] Span widened(const AttributedString& text, TextPosition position) const;

    SelectionGranularity m_granularity = SelectionGranularity::Character;
    Span m_anchor; // what was first chosen
    TextPosition m_caret;
    TextPosition m_start;
    TextPosition m_end;
};

} // namespace quillon

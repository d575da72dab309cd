// SPDX-License-Identifier: MIT
#include "ui/log_text/word_movement.h"

#include "ui/log_text/log_text_selection.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cstdint>

namespace quillon {

namespace {

// The farthest that a caret goes at once, so that a key in a line of two million characters without
// a space does not read it all.
constexpr qsizetype kReach = 1024;

enum class CharacterKind : std::uint8_t { Space, Punctuation, Letter };

CharacterKind kindOf(QChar character)
{
    if (character.isSpace()) {
        return CharacterKind::Space;
    }
    const bool isLetter = character.isLetterOrNumber() || character.isMark() ||
                          character.isSurrogate() || character == u'_';
    return isLetter ? CharacterKind::Letter : CharacterKind::Punctuation;
}

// Whether a word begins at a place where words are separate.
bool isWordStart(const QString& text, qsizetype at)
{
    if (at >= text.size()) {
        return false;
    }
    switch (kindOf(text[at])) {
    case CharacterKind::Space:
        return false;
    case CharacterKind::Punctuation:
        return at == 0 || kindOf(text[at - 1]) != CharacterKind::Punctuation;
    case CharacterKind::Letter:
        break;
    }
    return true;
}

// A part of a row around a place, with the places in it where words are separate.
struct Surroundings {
    Surroundings(const AttributedString& text, TextPosition position)
        : rowEnd(text.rows()[position.row].length() - 1),
          start(std::max<qsizetype>(0, position.offset - kReach)),
          end(std::min(rowEnd, position.offset + kReach)),
          part(text.rows()[position.row].string().sliced(start, end - start)),
          finder(QTextBoundaryFinder::Word, part)
    {
        finder.setPosition(position.offset - start);
    }

    const qsizetype rowEnd;
    const qsizetype start;
    const qsizetype end;
    const QString part;
    QTextBoundaryFinder finder;
};

} // namespace

TextPosition wordStartBefore(const AttributedString& text, TextPosition position)
{
    if (position.offset == 0) {
        return positionBefore(text, position);
    }
    Surroundings around(text, position);
    while (around.finder.toPreviousBoundary() > 0) {
        if (isWordStart(around.part, around.finder.position())) {
            return TextPosition{position.row, around.start + around.finder.position()};
        }
    }
    // No character is cut here: what is left of one is separate from the word after it.
    return TextPosition{position.row, around.start};
}

TextPosition wordStartAfter(const AttributedString& text, TextPosition position)
{
    const auto& rows = text.rows();
    if (position.row >= rows.size() || position.offset >= rows[position.row].length() - 1) {
        return positionAfter(text, position);
    }
    Surroundings around(text, position);
    while (around.finder.toNextBoundary() >= 0) {
        if (isWordStart(around.part, around.finder.position())) {
            return TextPosition{position.row, around.start + around.finder.position()};
        }
    }
    const TextPosition end{position.row, around.end};
    // The part may have ended within what a reader takes for one character.
    return around.end == around.rowEnd ? end : positionBefore(text, positionAfter(text, end));
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#include "ui/layout/text_position.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace quillon {

namespace {

// As far as a single character goes: the longest family of joined emoji, or a tower of marks.
constexpr qsizetype kCharacterReach = 64;

} // namespace

TextPosition positionBefore(const AttributedString& text, TextPosition position)
{
    const auto& rows = text.rows();
    if (position.offset == 0) {
        const qsizetype row = position.row - 1;
        return row < 0 ? position : TextPosition{row, rows[row].length() - 1};
    }
    const qsizetype start = std::max<qsizetype>(0, position.offset - kCharacterReach);
    const QString before = rows[position.row].string().sliced(start, position.offset - start);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, before);
    finder.toEnd();
    return TextPosition{position.row, start + finder.toPreviousBoundary()};
}

TextPosition positionAfter(const AttributedString& text, TextPosition position)
{
    const auto& rows = text.rows();
    if (position.row >= rows.size()) {
        return position;
    }
    const qsizetype rowEnd = rows[position.row].length() - 1;
    if (position.offset >= rowEnd) {
        return TextPosition{position.row + 1, 0};
    }
    const qsizetype count = std::min(kCharacterReach, rowEnd - position.offset);
    const QString after = rows[position.row].string().sliced(position.offset, count);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, after);
    return TextPosition{position.row, position.offset + finder.toNextBoundary()};
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#pragma once

#include "search/text_range.h"
#include "search/text_search.h"

#include <QString>

#include <vector>

namespace quillon {

class RegularExpression;
class SearchExpression;

// What a search marks in one row: every match, in order and without overlap, in UTF-16 units. Empty
// matches are left out, having nothing to show. A literal's occurrences are those in the
// lower-cased row; where lower-casing has changed the length, they are clipped to the row.
//
// Worked out from the row's beginning as far as somebody asks, within a budget that depends on the
// row alone. Where the row as a whole costs too much, the matches found by then; where none was
// found by then, those of the line's text, which took no more to be decided; where that was decided
// by a shortcut, what the shortcut finds. So a row that is shown for a match has a mark.
class RowMarks {
public:
    // `text` is where in the row the line's text stands. The search must outlive the object.
    RowMarks(const SearchExpression& search, QString row, TextRange text);

    // All marks that begin before `end`, and perhaps some behind.
    const std::vector<TextRange>& upTo(qsizetype end);

private:
    void markWord(qsizetype end);
    void markMatches(qsizetype end);
    // False once there are no more.
    bool markOne(std::optional<TextSearch>& search);
    void markTextAlone();
    // The expression that finds the next match; null where there is none.
    const RegularExpression* expressionForNext();
    [[nodiscard]] bool hasRequiredWord();
    void add(const TextRange& match, qsizetype offset = 0);

    const SearchExpression& m_search;
    const QString m_row;
    const TextRange m_text;
    const bool m_canCompareLetters;
    std::vector<TextRange> m_marks;
    bool m_isOver = false;
    qsizetype m_reach = 0;

    SearchPoint m_point;
    const RegularExpression* m_current = nullptr;
    // Where the required word stands next.
    qsizetype m_wordAt = -1;
    // Where what follows a leading wildcard matches next, in all of the row where it is not known.
    SearchPoint m_behindPoint;
    qsizetype m_behindAt = -1;
    bool m_isBehindOver = false;
};

} // namespace quillon

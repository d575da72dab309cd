// SPDX-License-Identifier: MIT
#pragma once

#include "search/text_range.h"
#include "search/text_search.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace quillon {

class AsciiSearch;
class RegularExpression;
class SearchExpression;

// What a search marks in one row: every match, in order and without overlap, in UTF-16 units. Empty
// matches are left out, having nothing to show. A literal's occurrences are those in the
// lower-cased row; where lower-casing has changed the length, they are clipped to the row.
//
// Matches are looked for from the row's beginning, within a budget that depends on the row alone.
// Where the row as a whole costs too much, the matches found by then; where none was found by then,
// those of the line's text, which took no more to be decided; where that was decided by a shortcut,
// what the shortcut finds. So a row that is shown for a match has a mark.
class RowMarks {
public:
    // `text` is where in the row the line's text stands. The search must outlive the object.
    RowMarks(const SearchExpression& search, QString row, TextRange text);

    // Goes on looking, for a span of the search at most (see MatchingBudget), unless all marks
    // that begin before `end` are known. Whether they are now.
    bool advance(qsizetype end);

    // The marks known by now that have a unit in the range.
    [[nodiscard]] std::vector<TextRange> in(const TextRange& range) const;

private:
    // Where matches are looked for, and with which expression.
    enum class Phase : std::uint8_t { Row, TextAlone, TextByShortcut, Over };
    // There can be one for each unit of a row of two million.
    struct Mark {
        quint32 start;
        quint32 length;
    };

    [[nodiscard]] bool isKnown(qsizetype end) const;
    void goOn();
    void markLiteral();
    void markMatches();
    void endPhase(bool isDecided);
    // The expression that finds the next match; null where there is none.
    const RegularExpression* expressionForNext();
    [[nodiscard]] bool hasRequiredWord();
    [[nodiscard]] bool isLookBehindDue() const;
    void lookBehind();
    [[nodiscard]] QStringView searched() const;
    void add(const TextRange& match);

    const SearchExpression& m_search;
    const QString m_row;
    const TextRange m_text;
    const bool m_canCompareLetters;
    // The word whose occurrences the marks are, where they are, which can be found anywhere without
    // having been looked for before.
    const AsciiSearch* m_word = nullptr;
    std::vector<Mark> m_marks;

    Phase m_phase = Phase::Row;
    SearchPoint m_point;
    // Where the required word stands next.
    qsizetype m_wordAt = -1;
    // Where what follows a leading wildcard matches next, in all of the row where it is not known.
    SearchPoint m_behindPoint;
    qsizetype m_behindAt = -1;
    bool m_isLookingBehind = false;
    bool m_isBehindOver = false;
};

} // namespace quillon

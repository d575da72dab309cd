// SPDX-License-Identifier: MIT
#pragma once

#include "search/matching_budget.h"
#include "search/piecewise_text.h"
#include "search/text_range.h"

#include <QStringView>

#include <cstdint>
#include <optional>

namespace quillon {

class CompiledPattern;

// Where a search through a text stands, for going on with it later.
struct SearchPoint {
    // Where the last match ended, and where the next may begin.
    qsizetype previousEnd = 0;
    qsizetype start = 0;
    // What is left of it.
    MatchingBudget budget;

    static SearchPoint beginningOf(QStringView text)
    {
        return SearchPoint{0, 0, MatchingBudget::forText(text.size())};
    }
};

// Finds the matches of a pattern in a text one after the other. A pattern can be used by one
// search at a time; it, the text's units and the point must outlive the search.
class TextSearch {
public:
    // Unfinished: there is no match in this span of a long text; the next step goes on from
    // there, with this search or with another one from the same point.
    enum class Step : std::uint8_t { Match, NoMatch, Undecided, Unfinished };

    // `point` is kept up to date.
    TextSearch(const CompiledPattern& pattern, QStringView text, SearchPoint& point);
    ~TextSearch();
    TextSearch(const TextSearch&) = delete;
    TextSearch& operator=(const TextSearch&) = delete;

    // Looks for the next match, in a long text for a span at most.
    [[nodiscard]] Step next();
    // As next(), but goes on to the end of the text.
    [[nodiscard]] Step nextToEnd();
    // The match that the last step found.
    [[nodiscard]] const TextRange& match() const { return m_match; }

private:
    static UBool U_CALLCONV report(const void* context, int32_t steps);
    static UBool U_CALLCONV attempt(const void* context, int64_t start);

    [[nodiscard]] bool find();

    const CompiledPattern& m_pattern;
    QStringView m_text;
    SearchPoint& m_point;
    std::optional<PiecewiseText> m_pieces;
    TextRange m_match;
    qsizetype m_spanEnd = 0;
    // Whether the engine itself still knows where it is.
    bool m_isGoingOn = false;
    UErrorCode m_status = U_ZERO_ERROR;
};

} // namespace quillon

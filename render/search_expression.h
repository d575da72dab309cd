// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ascii_search.h"
#include "platform/regular_expression.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

// What the user searches for, ready to be looked for in many texts: the query as a regular
// expression without regard to case (the slashes of "/pattern/" taken off), or, where that is not
// a valid one or costs too much, the lower-cased query as it was typed.
class SearchExpression {
public:
    // Null for an empty query, which searches for nothing.
    static std::shared_ptr<const SearchExpression> make(const QString& query);

    // The literal search for the query, whether or not it is a valid expression.
    static std::shared_ptr<const SearchExpression> makeLiteral(const QString& query);

    // True once matches() has used up what one expression may cost in a pass; what it says from
    // then on is not to be relied on.
    [[nodiscard]] bool isExhausted() const { return m_expression && filter().isExhausted(); }

    // Whether a line's text has a match anywhere.
    [[nodiscard]] bool matches(const QString& text) const;

    // Every match in a row, in order and without overlap, in UTF-16 units. Empty matches are left
    // out, having nothing to show. A literal's occurrences are those in the lower-cased row; where
    // lower-casing has changed the length, they are clipped to the row. Of a row that costs too
    // much, the matches found by then.
    [[nodiscard]] std::vector<TextRange> rangesIn(const QString& row) const;

private:
    SearchExpression(const QString& query, std::unique_ptr<RegularExpression> expression);

    [[nodiscard]] const RegularExpression& filter() const
    {
        return m_filter ? *m_filter : *m_expression;
    }

    QString m_lowerCasedQuery;
    std::unique_ptr<RegularExpression> m_expression;
    // Set where another expression says sooner whether there is a match at all. In a log of 2 MiB
    // ".*a|b" took longer than one expression may.
    std::unique_ptr<RegularExpression> m_filter;
    // Set where the pattern is a plain ASCII word, for which comparing letters gives the same and
    // is much faster.
    std::optional<AsciiSearch> m_plainWord;
    // Set where every match contains this word, so that only lines that have it need the
    // expression. Measured on 2 MiB of log with an expression that a sixth of the lines match: 5 ms
    // instead of 10.
    std::optional<AsciiSearch> m_requiredWord;
};

} // namespace quillon

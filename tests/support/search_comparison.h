// SPDX-License-Identifier: MIT
#pragma once

#include "search/row_marks.h"
#include "search/search_expression.h"
#include "tests/support/bare_icu.h"

#include <algorithm>

namespace quillon {

// All marks of a row; its line's text is all of it where nothing else is said.
inline std::vector<TextRange> marksOf(const SearchExpression& search, const QString& row,
                                      const TextRange& text)
{
    RowMarks marks(search, row, text);
    while (!marks.advance(row.size())) {
    }
    return marks.in(TextRange{0, row.size()});
}

inline std::vector<TextRange> marksOf(const SearchExpression& search, const QString& row)
{
    return marksOf(search, row, TextRange{0, row.size()});
}

// What a search says of one line, beside what ICU says of it when it may take more steps.
struct SearchComparison {
    // One of them could not tell all.
    bool isUndecided = false;
    // What is not alike, although it could be told; null where all is.
    const char* difference = nullptr;
};

class SearchComparer {
public:
    // The query must be a valid expression without slashes around it. A short line has a hundred
    // thousand steps of our own search, and so many times ten thousand of ICU.
    explicit SearchComparer(const QString& query, int mostReports = 100)
        : m_icu(query, mostReports), m_search(SearchExpression::make(query))
    {
    }

    [[nodiscard]] SearchComparison compare(const QString& text)
    {
        const Verdict verdict = m_search->decide(text);
        const BareIcu::Answer answer =
            verdict == Verdict::Undecided ? BareIcu::Answer{} : m_icu.firstMatch(text);
        if (verdict == Verdict::Undecided || !answer.isComplete) {
            return {.isUndecided = true};
        }
        if ((verdict == Verdict::Match) == answer.matches.empty()) {
            return {.difference = "another verdict"};
        }
        return compareMarks(text, verdict == Verdict::Match && answer.matches.front().length > 0);
    }

private:
    // More than so many a row's marks may not always take.
    static constexpr int kReportsForMarks = 2;

    static bool areAlike(const std::vector<TextRange>& some, const std::vector<TextRange>& others)
    {
        const auto count = static_cast<std::ptrdiff_t>(std::min(some.size(), others.size()));
        return std::equal(some.begin(), some.begin() + count, others.begin());
    }

    [[nodiscard]] SearchComparison compareMarks(const QString& text, bool needsMark)
    {
        static const QString number = QStringLiteral("17\t");
        const std::vector<TextRange> marks =
            marksOf(*m_search, number + text + u'\n', TextRange{number.size(), text.size()});
        BareIcu::Answer answer = m_icu.allMatches(QString(number + text + u'\n'));
        std::erase_if(answer.matches, [](const TextRange& match) { return match.length == 0; });
        if (answer.isComplete && marks == answer.matches) {
            return {};
        }
        if (answer.reports <= kReportsForMarks) {
            return {.difference = "other marks"};
        }
        if (marks.empty() && needsMark) {
            return {.difference = "no mark"};
        }
        return {.isUndecided = true,
                .difference = areAlike(marks, answer.matches) || isOfText(text, number, marks)
                                  ? nullptr
                                  : "marks that belong nowhere"};
    }

    // Where the row costs too much the marks are those of the text, or what a shortcut finds there.
    [[nodiscard]] bool isOfText(const QString& text, const QString& number,
                                const std::vector<TextRange>& marks)
    {
        return std::all_of(marks.begin(), marks.end(), [&](const TextRange& mark) {
            return mark.start >= number.size() && mark.end() <= number.size() + text.size();
        });
    }

    BareIcu m_icu;
    std::shared_ptr<const SearchExpression> m_search;
};

} // namespace quillon

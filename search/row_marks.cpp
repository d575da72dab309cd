// SPDX-License-Identifier: MIT
#include "search/row_marks.h"

#include "search/search_expression.h"

#include <limits>

namespace quillon {

namespace {

constexpr qsizetype kEverywhere = std::numeric_limits<qsizetype>::max();

} // namespace

RowMarks::RowMarks(const SearchExpression& search, QString row, TextRange text)
    : m_search(search), m_row(std::move(row)), m_text(text),
      m_canCompareLetters((search.m_plainWord || search.m_requiredWord) &&
                          SearchExpression::canCompareLetters(m_row)),
      m_point{0, 0, MatchingBudget::forMarks(m_row.size())},
      m_behindPoint(SearchPoint::beginningOf(m_row))
{
}

// In strides of a stretch each, whatever is asked for, as what is found must not depend on it.
const std::vector<TextRange>& RowMarks::upTo(qsizetype end)
{
    while (!m_isOver && m_reach < end) {
        m_reach += MatchingBudget::kStretchLength;
        if (m_search.m_literal) {
            m_marks = m_search.m_literal->rangesIn(m_row);
            m_isOver = true;
        } else if (m_search.m_plainWord && m_canCompareLetters) {
            markWord(m_reach);
        } else {
            markMatches(m_reach);
        }
    }
    return m_marks;
}

void RowMarks::markWord(qsizetype end)
{
    const AsciiSearch& word = *m_search.m_plainWord;
    while (!m_isOver && m_point.start < end) {
        const qsizetype at = word.find(m_row, m_point.start);
        m_isOver = at < 0;
        if (!m_isOver) {
            add(TextRange{at, word.length()});
            m_point.start = at + word.length();
        }
    }
}

void RowMarks::markMatches(qsizetype end)
{
    std::optional<TextSearch> search;
    m_current = nullptr;
    while (!m_isOver && m_point.start < end) {
        m_isOver = !markOne(search);
    }
}

bool RowMarks::markOne(std::optional<TextSearch>& search)
{
    const RegularExpression* const expression = hasRequiredWord() ? expressionForNext() : nullptr;
    if (expression == nullptr) {
        return false;
    }
    if (m_current != expression) {
        m_current = expression;
        search.reset();
        search.emplace(expression->compiled(), m_row, m_point);
    }
    switch (search->nextToEnd()) {
    case TextSearch::Step::Match:
        add(search->match());
        return true;
    case TextSearch::Step::NoMatch:
        return false;
    default:
        search.reset();
        if (m_marks.empty()) {
            markTextAlone();
        }
        return false;
    }
}

void RowMarks::markTextAlone()
{
    const QStringView text = QStringView(m_row).sliced(m_text.start, m_text.length);
    const auto markWith = [&](const RegularExpression& expression) {
        SearchPoint point = SearchPoint::beginningOf(text);
        TextSearch search(expression.compiled(), text, point);
        while (search.nextToEnd() == TextSearch::Step::Match) {
            add(search.match(), m_text.start);
        }
    };
    markWith(*m_search.m_expression);
    if (m_marks.empty() && m_search.m_wildcards) {
        markWith(*m_search.m_wildcards->shorter);
    }
}

// Behind the last place where what follows a wildcard matches, an alternative that begins with one
// would be tried in vain at each place, and each time to the row's end.
const RegularExpression* RowMarks::expressionForNext()
{
    if (!m_search.m_wildcards) {
        return m_search.m_expression.get();
    }
    if (!m_isBehindOver && m_behindAt < m_point.start) {
        m_behindPoint.previousEnd = m_point.previousEnd;
        m_behindPoint.start = m_point.start;
        TextSearch behind(m_search.m_wildcards->behind->compiled(), m_row, m_behindPoint);
        const TextSearch::Step step = behind.nextToEnd();
        m_isBehindOver = step == TextSearch::Step::NoMatch;
        m_behindAt = step == TextSearch::Step::Match ? behind.match().start : kEverywhere;
    }
    return m_isBehindOver ? m_search.m_wildcards->others.get() : m_search.m_expression.get();
}

bool RowMarks::hasRequiredWord()
{
    if (!m_search.m_requiredWord || !m_canCompareLetters) {
        return true;
    }
    if (m_wordAt < m_point.start) {
        m_wordAt =
            m_point.start < m_row.size() ? m_search.m_requiredWord->find(m_row, m_point.start) : -1;
    }
    return m_wordAt >= 0;
}

void RowMarks::add(const TextRange& match, qsizetype offset)
{
    if (match.length > 0) {
        m_marks.push_back(TextRange{match.start + offset, match.length});
    }
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#include "search/row_marks.h"

#include "search/search_expression.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr qsizetype kEverywhere = std::numeric_limits<qsizetype>::max();

} // namespace

RowMarks::RowMarks(const SearchExpression& search, QString row, TextRange text)
    : m_search(search), m_row(std::move(row)), m_text(text),
      m_canCompareLetters((search.m_plainWord || search.m_requiredWord) &&
                          search.canCompareLetters(m_row)),
      m_point{0, 0, MatchingBudget::forMarks(m_row.size())},
      m_behindPoint(SearchPoint::beginningOf(m_row))
{
    if (search.m_literal) {
        m_word = search.m_literal->lettersFor(m_row);
    } else if (search.m_plainWord && m_canCompareLetters) {
        m_word = &*search.m_plainWord;
    }
}

// Until the first mark is found, all of them may turn out to be those of the text alone.
bool RowMarks::isKnown(qsizetype end) const
{
    const qsizetype before = m_phase == Phase::Row ? 0 : m_text.start;
    return m_word != nullptr || m_phase == Phase::Over ||
           (!m_marks.empty() && before + m_point.start >= end);
}

bool RowMarks::advance(qsizetype end)
{
    if (!isKnown(end)) {
        goOn();
    }
    return isKnown(end);
}

std::vector<TextRange> RowMarks::in(const TextRange& range) const
{
    if (m_word != nullptr) {
        return m_word->occurrencesIn(m_row, range);
    }
    std::vector<TextRange> marks;
    const auto endOf = [](const Mark& mark) {
        return qsizetype{mark.start} + mark.length;
    };
    auto mark = std::partition_point(m_marks.begin(), m_marks.end(),
                                     [&](const Mark& each) { return endOf(each) <= range.start; });
    for (; mark != m_marks.end() && mark->start < range.end(); ++mark) {
        marks.push_back(TextRange{mark->start, mark->length});
    }
    return marks;
}

// Always as far, whatever is asked for, as what is found must not depend on it.
void RowMarks::goOn()
{
    if (m_search.m_literal) {
        markLiteral();
    } else if (isLookBehindDue()) {
        lookBehind();
    } else {
        markMatches();
    }
}

void RowMarks::markLiteral()
{
    for (const TextRange& range : m_search.m_literal->rangesIn(m_row)) {
        add(range);
    }
    m_phase = Phase::Over;
}

void RowMarks::markMatches()
{
    const qsizetype end = m_point.start + MatchingBudget::kSpanLength;
    const RegularExpression* asked = nullptr;
    std::optional<TextSearch> search;
    do {
        const RegularExpression* const next = hasRequiredWord() ? expressionForNext() : nullptr;
        if (next == nullptr) {
            m_phase = Phase::Over;
            return;
        }
        if (asked != next) {
            search.reset();
            search.emplace(next->compiled(), searched(), m_point);
            asked = next;
        }
        const TextSearch::Step step = search->next();
        if (step == TextSearch::Step::Unfinished) {
            return;
        }
        if (step != TextSearch::Step::Match) {
            search.reset();
            endPhase(step == TextSearch::Step::NoMatch);
            return;
        }
        add(search->match());
    } while (m_point.start < end && !m_point.budget.isSpanOver() && !isLookBehindDue());
}

void RowMarks::endPhase(bool isDecided)
{
    const bool isShortcutLeft = m_phase == Phase::TextAlone && m_search.m_wildcards;
    if (m_marks.empty() && m_phase == Phase::Row && !isDecided) {
        m_phase = Phase::TextAlone;
    } else if (m_marks.empty() && isShortcutLeft) {
        m_phase = Phase::TextByShortcut;
    } else {
        m_phase = Phase::Over;
    }
    m_point = SearchPoint::beginningOf(searched());
}

QStringView RowMarks::searched() const
{
    const QStringView row = m_row;
    return m_phase == Phase::Row ? row : row.sliced(m_text.start, m_text.length);
}

const RegularExpression* RowMarks::expressionForNext()
{
    if (m_phase == Phase::TextByShortcut) {
        return m_search.m_wildcards->shorter.get();
    }
    return m_phase == Phase::Row && m_isBehindOver ? m_search.m_wildcards->others.get()
                                                   : m_search.m_expression.get();
}

// Behind the last place where what follows a wildcard matches, an alternative that begins with one
// would be tried in vain at each place, and each time to the row's end.
bool RowMarks::isLookBehindDue() const
{
    return m_phase == Phase::Row && m_search.m_wildcards && !m_isBehindOver &&
           m_behindAt < m_point.start;
}

void RowMarks::lookBehind()
{
    if (!std::exchange(m_isLookingBehind, true)) {
        m_behindPoint.previousEnd = m_point.previousEnd;
        m_behindPoint.start = m_point.start;
    }
    TextSearch behind(m_search.m_wildcards->behind->compiled(), m_row, m_behindPoint);
    const TextSearch::Step step = behind.next();
    if (step != TextSearch::Step::Unfinished) {
        m_isLookingBehind = false;
        m_isBehindOver = step == TextSearch::Step::NoMatch;
        m_behindAt = step == TextSearch::Step::Match ? behind.match().start : kEverywhere;
    }
}

bool RowMarks::hasRequiredWord()
{
    if (m_phase != Phase::Row || !m_search.m_requiredWord || !m_canCompareLetters) {
        return true;
    }
    if (m_wordAt < m_point.start) {
        m_wordAt =
            m_point.start < m_row.size() ? m_search.m_requiredWord->find(m_row, m_point.start) : -1;
    }
    return m_wordAt >= 0;
}

void RowMarks::add(const TextRange& match)
{
    if (match.length > 0) {
        const qsizetype before = m_phase == Phase::Row ? 0 : m_text.start;
        m_marks.push_back(
            Mark{static_cast<quint32>(before + match.start), static_cast<quint32>(match.length)});
    }
}

} // namespace quillon

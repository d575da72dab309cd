// SPDX-License-Identifier: MIT
#include "search/text_search.h"

#include "search/compiled_pattern.h"

#include <unicode/uregex.h>

namespace quillon {

namespace {

bool isShort(QStringView text)
{
    return text.size() <= MatchingBudget::kLongestShortText;
}

qsizetype afterCharacterAt(QStringView text, qsizetype at)
{
    const bool isPair =
        at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
    return at + (isPair ? 2 : 1);
}

} // namespace

TextSearch::TextSearch(const CompiledPattern& pattern, QStringView text, SearchPoint& point)
    : m_pattern(pattern), m_text(text), m_point(point)
{
    URegularExpression* const handle = m_pattern.handle();
    const bool isLimited = pattern.isLimited();
    if (isLimited && !isShort(text)) {
        m_pieces.emplace(text, point.budget);
        uregex_setUText(handle, m_pieces->handle(), &m_status);
        uregex_setFindProgressCallback(handle, &TextSearch::attempt, this, &m_status);
    } else {
        const char16_t* const units = text.isEmpty() ? u"" : text.utf16();
        uregex_setText(handle, units, static_cast<int32_t>(text.size()), &m_status);
    }
    if (isLimited) {
        uregex_setMatchCallback(handle, &TextSearch::report, this, &m_status);
    }
}

TextSearch::~TextSearch()
{
    UErrorCode status = U_ZERO_ERROR;
    uregex_setMatchCallback(m_pattern.handle(), nullptr, nullptr, &status);
    if (m_pieces) {
        uregex_setFindProgressCallback(m_pattern.handle(), nullptr, nullptr, &status);
        // The engine is not left with a text that goes away.
        uregex_setText(m_pattern.handle(), u"", 0, &status);
    }
}

UBool TextSearch::report(const void* context, int32_t /*steps*/)
{
    return static_cast<const TextSearch*>(context)->m_point.budget.takeReport();
}

UBool TextSearch::attempt(const void* context, int64_t start)
{
    // ICU gives back as constant what it was given.
    auto& search = *const_cast<TextSearch*>(static_cast<const TextSearch*>(context));
    search.m_point.start = start;
    const MatchingBudget& budget = search.m_point.budget;
    return start < search.m_spanEnd && !budget.isSpanOver() && !budget.isSpent();
}

// The engine knows by itself where to go on behind a match. Where it was stopped it is told, and
// where the last match ended, which expressions can ask for.
bool TextSearch::find()
{
    if (m_isGoingOn) {
        return uregex_findNext(m_pattern.handle(), &m_status);
    }
    if (m_point.start > m_text.size()) {
        return false;
    }
    if (m_point.start > 0) {
        uregex_useAnchoringBounds(m_pattern.handle(), false, &m_status);
        uregex_useTransparentBounds(m_pattern.handle(), true, &m_status);
        uregex_setRegionAndStart(m_pattern.handle(), m_point.previousEnd, m_text.size(),
                                 m_point.start, &m_status);
    }
    m_isGoingOn = true;
    return uregex_findNext(m_pattern.handle(), &m_status);
}

TextSearch::Step TextSearch::next()
{
    // Matches that are found soon one after the other share a span.
    if (!m_isGoingOn || m_point.budget.isSpanOver()) {
        m_point.budget.beginSpan();
        m_spanEnd = m_point.start + MatchingBudget::kSpanLength;
    }
    const bool isFound = find();
    if (m_point.budget.isSpent()) {
        return Step::Undecided;
    }
    if (isFound) {
        const auto start = uregex_start64(m_pattern.handle(), 0, &m_status);
        const auto end = uregex_end64(m_pattern.handle(), 0, &m_status);
        m_match = TextRange{start, end - start};
        m_point.previousEnd = end;
        m_point.start = start == end ? afterCharacterAt(m_text, end) : end;
        return Step::Match;
    }
    if (m_status == U_REGEX_STOPPED_BY_CALLER) {
        m_status = U_ZERO_ERROR;
        m_isGoingOn = false;
        return Step::Unfinished;
    }
    return U_SUCCESS(m_status) ? Step::NoMatch : Step::Undecided;
}

TextSearch::Step TextSearch::nextToEnd()
{
    Step step = next();
    while (step == Step::Unfinished) {
        step = next();
    }
    return step;
}

} // namespace quillon

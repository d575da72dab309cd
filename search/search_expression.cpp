// SPDX-License-Identifier: MIT
#include "search/search_expression.h"

#include "platform/ascii.h"
#include "search/case_folding.h"
#include "search/leading_wildcard.h"
#include "search/required_word.h"

#include <algorithm>

namespace quillon {

namespace {

QString patternOf(const QString& query)
{
    if (query.size() >= 2 && query.startsWith(u'/') && query.endsWith(u'/')) {
        return query.sliced(1, query.size() - 2);
    }
    return query;
}

// Of printable ASCII, with no character that means something in an expression. White space does
// not: free-spacing mode is off unless a pattern turns it on, for which it needs a parenthesis.
bool isPlainWord(const QString& pattern)
{
    static constexpr QLatin1StringView kMeta("\\^$.|?*+()[]{}");
    return !pattern.isEmpty() && std::all_of(pattern.begin(), pattern.end(), [](QChar character) {
        return isPrintableAscii(character) && !kMeta.contains(character);
    });
}

} // namespace

SearchExpression::SearchExpression(const QString& query)
    : m_expression(RegularExpression::compile(patternOf(query), CaseSensitivity::Insensitive))
{
    if (m_expression) {
        takeShortcuts(patternOf(query));
    } else {
        m_literal.emplace(query);
    }
}

void SearchExpression::takeShortcuts(const QString& pattern)
{
    const auto searchFor = [this](const QString& word) {
        const QByteArray letters = word.toLatin1();
        m_isWordFoldedTo = isFoldedTo(QLatin1StringView(letters));
        return AsciiSearch(QLatin1StringView(letters));
    };
    if (isPlainWord(pattern)) {
        m_plainWord = searchFor(pattern);
        return;
    }
    if (const QString word = requiredWordOf(pattern); !word.isEmpty()) {
        m_requiredWord = searchFor(word);
    }
    if (const auto parts = leadingWildcardsOf(pattern)) {
        const auto compiled = [](const QString& part) {
            return RegularExpression::compile(part, CaseSensitivity::Insensitive);
        };
        Wildcards wildcards{compiled(parts->shorter), compiled(parts->behind),
                            compiled(parts->others)};
        if (wildcards.shorter && wildcards.behind &&
            (wildcards.others || parts->others.isEmpty())) {
            m_wildcards = std::move(wildcards);
        }
    }
}

std::shared_ptr<const SearchExpression> SearchExpression::make(const QString& query)
{
    if (query.isEmpty()) {
        return nullptr;
    }
    return std::shared_ptr<const SearchExpression>(new SearchExpression(query));
}

bool SearchExpression::canCompareLetters(QStringView text) const
{
    return !m_isWordFoldedTo || !hasCharacterFoldingToAscii(text);
}

Verdict SearchExpression::decide(const QString& text) const
{
    DecisionPoint point;
    std::optional<Verdict> verdict = decideSome(text, point);
    while (!verdict) {
        verdict = decideSome(text, point);
    }
    return *verdict;
}

std::optional<Verdict> SearchExpression::decideSome(const QString& text, DecisionPoint& point) const
{
    const auto verdictOf = [](bool isMatch) {
        return isMatch ? Verdict::Match : Verdict::NoMatch;
    };
    if (m_literal) {
        return verdictOf(m_literal->isIn(text));
    }
    const bool isBeginning = !point.search && !point.isShortcutOver;
    if (isBeginning && (m_plainWord || m_requiredWord) && canCompareLetters(text)) {
        if (m_plainWord) {
            return verdictOf(m_plainWord->find(text) >= 0);
        }
        if (m_requiredWord->find(text) < 0) {
            return Verdict::NoMatch;
        }
    }
    if (!point.search) {
        point.search = SearchPoint::beginningOf(text);
    }
    const bool isShortcut = m_wildcards && !point.isShortcutOver;
    const RegularExpression& asked = isShortcut ? *m_wildcards->shorter : *m_expression;
    switch (TextSearch(asked.compiled(), text, *point.search).next()) {
    case TextSearch::Step::Match:
        return Verdict::Match;
    case TextSearch::Step::NoMatch:
        return Verdict::NoMatch;
    case TextSearch::Step::Unfinished:
        return std::nullopt;
    case TextSearch::Step::Undecided:
        break;
    }
    if (!isShortcut) {
        return Verdict::Undecided;
    }
    point = DecisionPoint{std::nullopt, true};
    return std::nullopt;
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#include "search/regular_expression.h"

#include "search/text_search.h"

namespace quillon {

std::unique_ptr<RegularExpression> RegularExpression::compile(const QString& pattern,
                                                              CaseSensitivity caseSensitivity,
                                                              PatternSource source)
{
    auto compiled = CompiledPattern::compile(pattern, caseSensitivity, source);
    return compiled ? std::unique_ptr<RegularExpression>(new RegularExpression(std::move(compiled)))
                    : nullptr;
}

Verdict RegularExpression::decide(QStringView text) const
{
    SearchPoint point = SearchPoint::beginningOf(text);
    switch (TextSearch(*m_compiled, text, point).nextToEnd()) {
    case TextSearch::Step::Match:
        return Verdict::Match;
    case TextSearch::Step::NoMatch:
        return Verdict::NoMatch;
    default:
        return Verdict::Undecided;
    }
}

std::optional<TextRange> RegularExpression::firstMatch(QStringView text) const
{
    SearchPoint point = SearchPoint::beginningOf(text);
    TextSearch search(*m_compiled, text, point);
    return search.nextToEnd() == TextSearch::Step::Match ? std::optional(search.match())
                                                         : std::nullopt;
}

std::vector<TextRange> RegularExpression::allMatches(QStringView text) const
{
    std::vector<TextRange> matches;
    SearchPoint point = SearchPoint::beginningOf(text);
    TextSearch search(*m_compiled, text, point);
    while (search.nextToEnd() == TextSearch::Step::Match) {
        matches.push_back(search.match());
    }
    return matches;
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#include "render/search_expression.h"

#include "render/case_folding.h"
#include "render/leading_wildcard.h"
#include "render/required_word.h"

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

bool isPlainAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return character.unicode() >= 0x20 && character.unicode() < 0x7F;
    });
}

// No character that means something in an expression. White space does not: free-spacing mode is
// off unless a pattern turns it on, for which it needs a parenthesis.
bool isPlainWord(const QString& pattern)
{
    static constexpr QLatin1StringView kMeta("\\^$.|?*+()[]{}");
    return !pattern.isEmpty() && isPlainAscii(pattern) &&
           std::none_of(pattern.begin(), pattern.end(),
                        [](QChar character) { return kMeta.contains(character); });
}

std::vector<TextRange> plainRanges(const AsciiSearch& search, QStringView row)
{
    std::vector<TextRange> ranges;
    for (qsizetype at = search.find(row); at >= 0; at = search.find(row, ranges.back().end())) {
        ranges.push_back(TextRange{at, search.length()});
    }
    return ranges;
}

std::vector<TextRange> literalRanges(const QString& lowerCasedQuery, const QString& row)
{
    std::vector<TextRange> ranges;
    const QString lowered = row.toLower();
    qsizetype from = 0;
    while (from < lowered.size()) {
        const qsizetype found = lowered.indexOf(lowerCasedQuery, from);
        if (found < 0) {
            break;
        }
        from = found + lowerCasedQuery.size();
        const qsizetype end = std::min(from, row.size());
        if (found < end) {
            ranges.push_back(TextRange{found, end - found});
        }
    }
    return ranges;
}

} // namespace

SearchExpression::SearchExpression(const QString& query,
                                   std::unique_ptr<RegularExpression> expression)
    : m_lowerCasedQuery(query.toLower()), m_expression(std::move(expression))
{
    const QString pattern = m_expression ? patternOf(query) : QString();
    if (const QString shorter = withoutLeadingWildcards(pattern); shorter != pattern) {
        m_filter = RegularExpression::compile(shorter, CaseSensitivity::Insensitive);
    }
    if (isPlainWord(pattern)) {
        m_plainWord.emplace(QLatin1StringView(pattern.toLatin1()));
    } else if (const QString word = requiredWordOf(pattern); !word.isEmpty()) {
        m_requiredWord.emplace(QLatin1StringView(word.toLatin1()));
    }
}

std::shared_ptr<const SearchExpression> SearchExpression::make(const QString& query)
{
    if (query.isEmpty()) {
        return nullptr;
    }
    auto expression = RegularExpression::compile(patternOf(query), CaseSensitivity::Insensitive);
    return std::shared_ptr<const SearchExpression>(
        new SearchExpression(query, std::move(expression)));
}

std::shared_ptr<const SearchExpression> SearchExpression::makeLiteral(const QString& query)
{
    if (query.isEmpty()) {
        return nullptr;
    }
    return std::shared_ptr<const SearchExpression>(new SearchExpression(query, nullptr));
}

bool SearchExpression::matches(const QString& text) const
{
    if ((m_plainWord || m_requiredWord) && !hasCharacterFoldingToAscii(text)) {
        if (m_plainWord) {
            return m_plainWord->find(text) >= 0;
        }
        if (m_requiredWord->find(text) < 0) {
            return false;
        }
    }
    if (m_expression) {
        return filter().hasMatch(text);
    }
    return text.toLower().contains(m_lowerCasedQuery);
}

std::vector<TextRange> SearchExpression::rangesIn(const QString& row) const
{
    if (m_plainWord && !hasCharacterFoldingToAscii(row)) {
        return plainRanges(*m_plainWord, row);
    }
    if (m_expression) {
        std::vector<TextRange> ranges = m_expression->allMatches(row);
        std::erase_if(ranges, [](const TextRange& range) { return range.length == 0; });
        return ranges;
    }
    return literalRanges(m_lowerCasedQuery, row);
}

} // namespace quillon

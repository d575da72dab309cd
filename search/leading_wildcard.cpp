// SPDX-License-Identifier: MIT
#include "search/leading_wildcard.h"

#include "search/pattern_tokens.h"

#include <QStringList>

#include <algorithm>

namespace quillon {

namespace {

using Kind = PatternToken::Kind;
using Tokens = std::vector<PatternToken>;
using Place = Tokens::const_iterator;

// A part of a pattern, from token to token.
struct Part {
    Place begin;
    Place end;

    [[nodiscard]] bool has(std::ptrdiff_t index, Kind kind) const
    {
        return index < end - begin && begin[index].kind == kind;
    }
    // ".*" or ".+", lazy or not. A possessive one gives nothing back, which is another matter.
    [[nodiscard]] bool hasWildcard(std::ptrdiff_t index) const
    {
        if (!has(index, Kind::AnyCharacter) || !has(index + 1, Kind::Quantifier)) {
            return false;
        }
        const QStringView quantifier = begin[index + 1].text;
        return quantifier == u"*" || quantifier == u"*?" || quantifier == u"+" ||
               quantifier == u"+?";
    }
    [[nodiscard]] QString text() const
    {
        QString text;
        for (Place token = begin; token != end; ++token) {
            text += token->text;
        }
        return text;
    }
};

// How many tokens the wildcard at the beginning takes, with the parentheses around it; 0 where the
// part begins otherwise.
std::ptrdiff_t wildcardLength(const Part& part)
{
    if (part.hasWildcard(0)) {
        return 2;
    }
    const bool isGroup = part.has(0, Kind::GroupOpen) && part.begin->text == u"(" &&
                         part.hasWildcard(1) && part.has(3, Kind::GroupClose) &&
                         !part.has(4, Kind::Quantifier);
    return isGroup ? 4 : 0;
}

// Each alternative has a match or not whatever the others are.
std::vector<Part> alternativesOf(const Tokens& tokens)
{
    std::vector<Part> alternatives;
    Place start = tokens.begin();
    int depth = 0;
    for (Place token = tokens.begin(); token != tokens.end(); ++token) {
        switch (token->kind) {
        case Kind::GroupOpen:
        case Kind::Ahead:
        case Kind::Assertion:
            ++depth;
            break;
        case Kind::GroupClose:
            --depth;
            break;
        case Kind::Alternative:
            if (depth == 0) {
                alternatives.push_back({start, token});
                start = token + 1;
            }
            break;
        default:
            break;
        }
    }
    alternatives.push_back({start, tokens.end()});
    return alternatives;
}

QString withoutWildcards(Part rest)
{
    QString atLeast;
    for (auto length = wildcardLength(rest); length > 0; length = wildcardLength(rest)) {
        if (Part{rest.begin, rest.begin + length}.text().contains(u'+')) {
            atLeast += u'.';
        }
        rest.begin += length;
    }
    return atLeast + rest.text();
}

} // namespace

std::optional<LeadingWildcards> leadingWildcardsOf(const QString& pattern)
{
    const auto tokens = tokensOf(pattern);
    if (!tokens) {
        return std::nullopt;
    }
    QStringList shorter;
    QStringList behind;
    QStringList others;
    for (const Part& alternative : alternativesOf(*tokens)) {
        const QString whole = alternative.text();
        const QString rest = withoutWildcards(alternative);
        // An alternative of nothing else matches at once, and an empty pattern is none.
        const bool isShorter = !rest.isEmpty() && rest != whole;
        shorter.append(isShorter ? rest : whole);
        (isShorter ? behind : others).append(shorter.back());
    }
    if (behind.isEmpty()) {
        return std::nullopt;
    }
    return LeadingWildcards{shorter.join(u'|'), behind.join(u'|'), others.join(u'|')};
}

} // namespace quillon

// SPDX-License-Identifier: MIT
#include "render/leading_wildcard.h"

#include <QLatin1StringView>
#include <QStringList>
#include <QStringView>

#include <optional>
#include <vector>

namespace quillon {

namespace {

bool isQuantifier(QStringView pattern, qsizetype at)
{
    return at < pattern.size() && QLatin1StringView("*+?{").contains(pattern[at]);
}

// The length of ".*", ".+", either with "?" behind it, at the beginning; 0 where there is none.
// A possessive one gives nothing back, which is another matter.
qsizetype wildcardLength(QStringView pattern)
{
    if (!pattern.startsWith(u".*") && !pattern.startsWith(u".+")) {
        return 0;
    }
    const qsizetype length = pattern.size() > 2 && pattern[2] == u'?' ? 3 : 2;
    return isQuantifier(pattern, length) ? 0 : length;
}

// Where the wildcard ends, with the parenthesis around it; 0 where the pattern begins otherwise.
qsizetype leadingWildcardEnd(QStringView pattern)
{
    if (!pattern.startsWith(u'(')) {
        return wildcardLength(pattern);
    }
    const qsizetype length = wildcardLength(pattern.sliced(1));
    const qsizetype close = 1 + length;
    const bool isGroup = length > 0 && close < pattern.size() && pattern[close] == u')' &&
                         !isQuantifier(pattern, close + 1);
    return isGroup ? close + 1 : 0;
}

// Whether an escape says more than what one character is to be: what a group held, where the last
// match ended, or that what follows is quoted.
bool isFarReaching(QChar escaped)
{
    return escaped.isDigit() || escaped == u'k' || escaped == u'G' || escaped == u'Q';
}

// The place of the bracket that closes a set, which begins at `at`; none where the set is not
// simple.
std::optional<qsizetype> setEnd(QStringView pattern, qsizetype at)
{
    const qsizetype first = at + (pattern.sliced(at + 1).startsWith(u'^') ? 2 : 1);
    for (qsizetype end = first; end < pattern.size(); ++end) {
        if (pattern[end] == u']' && end > first) {
            return end;
        }
        if (QLatin1StringView("[]\\").contains(pattern[end])) {
            break;
        }
    }
    return std::nullopt;
}

// The alternatives that a pattern consists of, each of which has a match or not whatever the others
// are. None where that is not sure.
std::vector<QStringView> alternativesOf(QStringView pattern)
{
    std::vector<QStringView> alternatives;
    qsizetype start = 0;
    int depth = 0;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        switch (pattern[at].unicode()) {
        case u'\\':
            ++at;
            if (at == pattern.size() || isFarReaching(pattern[at])) {
                return {};
            }
            break;
        case u'(':
            ++depth;
            break;
        case u')':
            --depth;
            break;
        case u'[':
            if (const auto end = setEnd(pattern, at)) {
                at = *end;
                break;
            }
            return {};
        case u'|':
            if (depth == 0) {
                alternatives.push_back(pattern.sliced(start, at - start));
                start = at + 1;
            }
            break;
        default:
            break;
        }
    }
    alternatives.push_back(pattern.sliced(start));
    return alternatives;
}

// Parentheses and bars in comments are none; what may begin one is left alone.
bool mayHaveComment(QStringView pattern)
{
    return pattern.contains(u'#') && pattern.contains(QLatin1StringView("(?"));
}

QString withoutLeadingWildcard(QStringView alternative)
{
    QStringView rest = alternative;
    QString atLeast;
    for (qsizetype end = leadingWildcardEnd(rest); end > 0; end = leadingWildcardEnd(rest)) {
        if (rest.first(end).contains(u'+')) {
            atLeast += u'.';
        }
        rest = rest.sliced(end);
    }
    const QString shorter = atLeast + rest.toString();
    // An alternative of nothing else matches at once, and an empty pattern is none.
    return shorter.isEmpty() ? alternative.toString() : shorter;
}

} // namespace

QString withoutLeadingWildcards(const QString& pattern)
{
    if (mayHaveComment(pattern)) {
        return pattern;
    }
    QStringList shorter;
    for (const QStringView alternative : alternativesOf(pattern)) {
        shorter.append(withoutLeadingWildcard(alternative));
    }
    return shorter.isEmpty() ? pattern : shorter.join(u'|');
}

} // namespace quillon

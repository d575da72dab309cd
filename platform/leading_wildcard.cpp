// SPDX-License-Identifier: MIT
#include "platform/leading_wildcard.h"

#include <QLatin1StringView>

#include <algorithm>

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

// Whether the rest of a pattern is one alternative, all of it behind the wildcard, and does not
// depend on where the wildcard began.
bool isPlainRest(QStringView rest)
{
    // Parentheses are not counted right in sets and comments, which matters for alternatives only.
    bool isCountable = true;
    bool hasAlternative = false;
    int depth = 0;
    for (qsizetype at = 0; at < rest.size(); ++at) {
        switch (rest[at].unicode()) {
        case u'\\':
            ++at;
            if (at == rest.size() || isFarReaching(rest[at])) {
                return false;
            }
            break;
        case u'(':
            ++depth;
            break;
        case u')':
            --depth;
            break;
        case u'|':
            hasAlternative = true;
            if (depth == 0) {
                return false;
            }
            break;
        case u'[':
        case u'#':
            isCountable = false;
            break;
        default:
            break;
        }
    }
    return isCountable || !hasAlternative;
}

} // namespace

bool hasLeadingWildcard(QStringView pattern)
{
    const qsizetype end = leadingWildcardEnd(pattern);
    return end > 0 && isPlainRest(pattern.sliced(end));
}

qsizetype nextWildcardStart(QStringView text, qsizetype from)
{
    const auto lineEnd = std::find_if(text.begin() + from, text.end(), [](QChar character) {
        const char16_t unit = character.unicode();
        return (unit >= u'\n' && unit <= u'\r') || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
    });
    return lineEnd - text.begin() + 1;
}

} // namespace quillon

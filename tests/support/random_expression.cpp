// SPDX-License-Identifier: MIT
#include "tests/support/random_expression.h"

namespace quillon {

namespace {

constexpr int kDeepest = 3;

} // namespace

template <std::size_t N>
QString RandomExpression::oneOf(const char16_t* const (&choices)[N])
{
    return QString::fromUtf16(choices[m_random.below(N)]);
}

QString RandomExpression::next()
{
    m_groups = 0;
    static constexpr const char16_t* kFlags[]{u"(?i)",  u"(?s)", u"(?m)", u"(?x)",
                                              u"(?-i)", u"(?w)", u"(?u)", u"(?ms-i)"};
    return (isOneIn(12) ? oneOf(kFlags) : QString()) + alternatives(0);
}

QString RandomExpression::alternatives(int depth)
{
    static constexpr const char16_t* kWildcards[]{u".*", u".+", u".*?", u"(.*)", u"(.+?)"};
    QString text;
    for (std::uint32_t left = isOneIn(3) ? 1 + m_random.below(2) : 0;; --left) {
        if (isOneIn(depth == 0 ? 6 : 15)) {
            const QString wildcard = oneOf(kWildcards);
            m_groups += wildcard.startsWith(u'(') ? 1 : 0;
            text += wildcard;
        }
        text += sequence(depth);
        if (left == 0) {
            return text;
        }
        text += u'|';
    }
}

QString RandomExpression::sequence(int depth)
{
    QString text;
    for (std::uint32_t left = 1 + m_random.below(3); left > 0; --left) {
        text += atom(depth);
        if (isOneIn(4)) {
            text += quantifier();
        }
    }
    return text;
}

QString RandomExpression::quantifier()
{
    static constexpr const char16_t* kCounts[]{u"*",   u"+",     u"?",    u"*",     u"+",    u"{2}",
                                               u"{0}", u"{1,3}", u"{2,}", u"{0,2}", u"{,2}", u"?"};
    static constexpr const char16_t* kManners[]{u"", u"", u"", u"?", u"+"};
    return oneOf(kCounts) + oneOf(kManners);
}

QString RandomExpression::atom(int depth)
{
    static constexpr const char16_t* kEscapes[]{
        u"\\d", u"\\w",        u"\\s",     u"\\b",    u"\\S",      u"\\W",        u"\\B",
        u"\\h", u"\\R",        u"\\X",     u"\\.",    u"\\(",      u"\\x41",      u"\\u0065",
        u"\\t", u"\\p{L}",     u"\\P{Lu}", u"\\pN",   u"\\p{Han}", u"\\x{1F31E}", u"\\N{COLON}",
        u"\\G", u"\\p{Greek}", u"\\cA",    u"\\0101", u"\\D"};
    static constexpr const char16_t* kSets[]{
        u"[a-z]", u"[^\"]",  u"[\\w.]",       u"[^\\s/]",    u"[[:alpha:]_]",
        u"[]|]",  u"[a|(]",  u"[a-z&&[^e]]",  u"[\\p{L}-]",  u"[^\\]]",
        u"[éßſ]", u"[0-9:]", u"[[a-f]--[c]]", u"[\\Q|]\\E]", u"[^e]"};
    static constexpr const char16_t* kPlaces[]{u"^", u"$", u"\\A", u"\\z", u"\\Z", u"\\b"};
    switch (m_random.below(depth < kDeepest ? 14 : 10)) {
    case 0:
        return oneOf(kEscapes);
    case 1:
        return oneOf(kSets);
    case 2:
        return isOneIn(3) ? oneOf(kPlaces) : QStringLiteral(".");
    case 3:
        return isOneIn(2) ? QStringLiteral("\\Q") + word() + QStringLiteral(".|\\E") : word();
    case 4:
        return isOneIn(3) ? QStringLiteral("(?#") + word() + QStringLiteral("|)") : word();
    case 5:
        if (m_groups > 0) {
            return u'\\' + QString::number(1 + m_random.below(std::uint32_t(m_groups)));
        }
        return word();
    case 6:
    case 7:
    case 8:
    case 9:
        return word();
    default:
        return group(depth);
    }
}

QString RandomExpression::group(int depth)
{
    static constexpr const char16_t* kOpenings[]{u"(?:",  u"(?>",    u"(?=", u"(?!",
                                                 u"(?i:", u"(?s-i:", u"(?:", u"(?:"};
    static constexpr const char16_t* kLookBehinds[]{u"(?<=", u"(?<!"};
    if (isOneIn(8)) {
        // What is behind must not be without end.
        return oneOf(kLookBehinds) + word() + QStringLiteral("|\\d{1,2})");
    }
    if (isOneIn(2)) {
        const QString inside = alternatives(depth + 1);
        ++m_groups;
        return u'(' + inside + u')';
    }
    return oneOf(kOpenings) + alternatives(depth + 1) + u')';
}

QString RandomExpression::word()
{
    static constexpr const char16_t* kWords[]{
        u"error", u"a",     u"e",  u"php",       u"line ", u"PHP W", u"in ",      u"/",
        u"fatal", u"s",     u"ss", u"ß",         u"-",     u"x",     u"1",        u": ",
        u"wp",    u"é",     u"日", u"k",         u"Stack", u"ing",   u"\"",       u"#",
        u"🌞",     u"array", u"0",  u"Array \\(", u"es",    u"o",     u"undefined"};
    return oneOf(kWords);
}

} // namespace quillon

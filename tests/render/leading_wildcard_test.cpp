// SPDX-License-Identifier: MIT
#include "platform/regular_expression.h"
#include "render/leading_wildcard.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

QString shortened(const char16_t* pattern)
{
    return withoutLeadingWildcards(QString::fromUtf16(pattern));
}

void expectKept(std::initializer_list<const char16_t*> patterns)
{
    for (const char16_t* pattern : patterns) {
        EXPECT_EQ(shortened(pattern), QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, IsLeftOut)
{
    for (const char16_t* pattern : {u".*a", u".*?a", u"(.*)a", u"(.*?)a", u".*.*a", u"(.*).*?a"}) {
        EXPECT_EQ(shortened(pattern), QStringLiteral("a"))
            << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, LeavesTheCharacterThatItAsksFor)
{
    EXPECT_EQ(shortened(u".+a"), QStringLiteral(".a"));
    EXPECT_EQ(shortened(u"(.+?)a"), QStringLiteral(".a"));
    EXPECT_EQ(shortened(u".+.*.+a"), QStringLiteral("..a"));
}

TEST(LeadingWildcard, IsLeftOutOfEachAlternative)
{
    EXPECT_EQ(shortened(u".*Fatal|Deprecated"), QStringLiteral("Fatal|Deprecated"));
    EXPECT_EQ(shortened(u"a|.*b|(.*)c"), QStringLiteral("a|b|c"));
    EXPECT_EQ(shortened(u".*(a|.*b)|[|(]|\\||.*c"), QStringLiteral("(a|.*b)|[|(]|\\||c"));
    EXPECT_EQ(shortened(u".*?\\s#\\d"), QStringLiteral("\\s#\\d"));
}

TEST(LeadingWildcard, StaysWhereThereIsNothingElse)
{
    expectKept({u".*", u"(.*)", u"a|.*", u".*|a"});
    EXPECT_EQ(shortened(u".*a|.*"), QStringLiteral("a|.*"));
}

TEST(LeadingWildcard, IsNothingElse)
{
    expectKept({u"", u".", u"a.*", u"..*", u"^.*a", u".?a", u".{2}a", u"[^a]*", u"(?:.*)a"});
}

TEST(LeadingWildcard, StaysIfItGivesNothingBackOrIsRepeated)
{
    expectKept({u".*+a", u".++a", u"(.*)*a", u"(.*)+a", u"(.*)?a", u"(.*){2}a"});
}

TEST(LeadingWildcard, StaysWhereThePatternIsTooInvolved)
{
    expectKept({u"(.*)a\\1", u".*\\Ga", u".*\\k<n>", u".*\\Q|\\E", u".*(?#|)a", u".*(?x)#|",
                u".*[]|]a", u".*[[a]|]b", u".*[\\]|]b", u".*\\"});
}

TEST(LeadingWildcardProperty, ChangesNoTextThatMatchesOrNot)
{
    const QStringList parts{
        QStringLiteral("a"),      QStringLiteral("b"),     QStringLiteral("."),
        QStringLiteral("*"),      QStringLiteral("?"),     QStringLiteral("^"),
        QStringLiteral("$"),      QStringLiteral("\\b"),   QStringLiteral("("),
        QStringLiteral(")"),      QStringLiteral("|"),     QStringLiteral("[ab]"),
        QStringLiteral("(?<=a)"), QStringLiteral("(?!b)"), QStringLiteral("\\1"),
        QStringLiteral("\\n"),    QStringLiteral("\\s"),   QStringLiteral("[^|]"),
        QStringLiteral("#"),      QStringLiteral("(?x)"),  QStringLiteral("(?#"),
        QStringLiteral("(?s)"),   QStringLiteral("+"),     QStringLiteral("[(]"),
        QStringLiteral(".*"),     QStringLiteral("|.*"),   QStringLiteral(".+"),
        QStringLiteral(".*?"),    QStringLiteral("(.*)"),  QStringLiteral("|(.+?)"),
    };
    const QStringList pieces{
        QStringLiteral("a"),  QStringLiteral("b"), QStringLiteral(" "),      QStringLiteral("\n"),
        QStringLiteral("\r"), QStringLiteral("🌞"), QStringLiteral("\u2029"), QString()};
    RandomText random(71);
    int compared = 0;
    while (compared < 20'000 && !testing::Test::HasFailure()) {
        const QString pattern = random.join(parts, 7);
        const QString shorter = withoutLeadingWildcards(pattern);
        const auto plain = RegularExpression::compile(pattern, CaseSensitivity::Sensitive);
        if (!plain || shorter == pattern) {
            continue;
        }
        const QString text = random.join(pieces, 10);
        const bool isFound = plain->hasMatch(text);
        if (plain->isExhausted()) {
            continue;
        }
        const auto filter = RegularExpression::compile(shorter, CaseSensitivity::Sensitive);
        ASSERT_NE(filter, nullptr) << qPrintable(pattern) << " as " << qPrintable(shorter);
        ASSERT_EQ(filter->hasMatch(text), isFound)
            << qPrintable(pattern) << " as " << qPrintable(shorter) << " in " << qPrintable(text);
        ++compared;
    }
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "search/leading_wildcard.h"
#include "search/regular_expression.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

QString shortened(const QString& pattern)
{
    const auto parts = leadingWildcardsOf(pattern);
    return parts ? parts->shorter : pattern;
}

QString shortened(const char16_t* pattern)
{
    return shortened(QString::fromUtf16(pattern));
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
    EXPECT_EQ(shortened(u".*[\\]|]b|.*c"), QStringLiteral("[\\]|]b|c"));
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
                u".*[]|]a", u".*[[a]|]b", u".*\\"});
}

TEST(LeadingWildcard, IsToldApartFromAlternativesThatBeginOtherwise)
{
    const auto parts = leadingWildcardsOf(QStringLiteral(".*a|b|(.+)c|.*"));
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->behind, QStringLiteral("a|.c"));
    EXPECT_EQ(parts->others, QStringLiteral("b|.*"));
    EXPECT_EQ(leadingWildcardsOf(QStringLiteral(".*a"))->others, QString());
    EXPECT_FALSE(leadingWildcardsOf(QStringLiteral("a|b")));
}

TEST(LeadingWildcard, IsNotLookedForInsideALongerEscape)
{
    expectKept(
        {u"a\\c|.*b", u".*\\x{7C}|b", u".*\\N{VERTICAL LINE}|b", u".*\\u007C|b", u".*\\p{L}|b"});
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
        const QString shorter = shortened(pattern);
        const auto plain = RegularExpression::compile(pattern, CaseSensitivity::Sensitive);
        if (!plain || shorter == pattern) {
            continue;
        }
        const QString text = random.join(pieces, 10);
        const Verdict verdict = plain->decide(text);
        if (verdict == Verdict::Undecided) {
            continue;
        }
        const auto filter = RegularExpression::compile(shorter, CaseSensitivity::Sensitive);
        ASSERT_NE(filter, nullptr) << qPrintable(pattern) << " as " << qPrintable(shorter);
        ASSERT_EQ(filter->decide(text), verdict)
            << qPrintable(pattern) << " as " << qPrintable(shorter) << " in " << qPrintable(text);
        ++compared;
    }
}

} // namespace
} // namespace quillon

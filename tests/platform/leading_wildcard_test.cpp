// SPDX-License-Identifier: MIT
#include "platform/leading_wildcard.h"
#include "platform/regular_expression.h"
#include "tests/support/printing.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(LeadingWildcard, IsAnyNumberOfAnyCharacters)
{
    for (const char16_t* pattern :
         {u".*", u".*a", u".+a", u".*?a", u".+?a", u"(.*)a", u"(.+?)a", u".*(a|b)", u".*?\\s#\\d",
          u".*(?#()a", u".*[a-z]+\\.php", u".*\\d\\|", u".*(?=a)$"}) {
        EXPECT_TRUE(hasLeadingWildcard(pattern)) << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, IsNothingElse)
{
    for (const char16_t* pattern : {u"", u".", u"a.*", u"..*", u"^.*", u".?a", u".{2}a", u"[^a]*",
                                    u"(?:.*)a", u"(.*", u"("}) {
        EXPECT_FALSE(hasLeadingWildcard(pattern)) << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, IsNoneThatGivesNothingBackOrIsRepeated)
{
    for (const char16_t* pattern :
         {u".*+a", u".++a", u"(.*)*a", u"(.*)+a", u"(.*)?a", u"(.*){2}a", u".**"}) {
        EXPECT_FALSE(hasLeadingWildcard(pattern)) << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, IsNoneBeforeWhatDependsOnItsPlace)
{
    for (const char16_t* pattern : {u".*a|b", u"(.*)a\\1", u".*\\Ga", u".*\\k<n>", u".*\\Q(\\E|a",
                                    u".*[(]|a", u".*(?#()|a", u".*\\"}) {
        EXPECT_FALSE(hasLeadingWildcard(pattern)) << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(LeadingWildcard, IsTriedBehindEachLineEnd)
{
    const QString text = QStringLiteral("ab\ncd\r\n\u2028");
    EXPECT_EQ(nextWildcardStart(text, 0), 3);
    EXPECT_EQ(nextWildcardStart(text, 2), 3);
    EXPECT_EQ(nextWildcardStart(text, 3), 6);
    EXPECT_EQ(nextWildcardStart(text, 6), 7);
    EXPECT_EQ(nextWildcardStart(text, 7), 8);
    EXPECT_EQ(nextWildcardStart(text, 8), 9);
    EXPECT_EQ(nextWildcardStart(QStringView(), 0), 1);
}

// An empty group before the pattern changes nothing, but has the engine try each place.
TEST(LeadingWildcardProperty, FindsWhatTryingEachPlaceFinds)
{
    const QStringList wildcards{QStringLiteral(".*"),   QStringLiteral(".+"),
                                QStringLiteral(".*?"),  QStringLiteral(".+?"),
                                QStringLiteral("(.*)"), QStringLiteral("(.+?)")};
    const QStringList parts{
        QStringLiteral("a"),      QStringLiteral("b"),     QStringLiteral("."),
        QStringLiteral("*"),      QStringLiteral("?"),     QStringLiteral("^"),
        QStringLiteral("$"),      QStringLiteral("\\b"),   QStringLiteral("("),
        QStringLiteral(")"),      QStringLiteral("|"),     QStringLiteral("[ab]"),
        QStringLiteral("(?<=a)"), QStringLiteral("(?!b)"), QStringLiteral("\\1"),
        QStringLiteral("\\n"),    QStringLiteral("\\s"),   QStringLiteral("\\Z"),
        QStringLiteral("#"),      QStringLiteral("(?x)"),  QStringLiteral("(?#"),
        QStringLiteral("(?m)"),   QStringLiteral("(?s)"),  QStringLiteral("\\X"),
    };
    const QStringList pieces{
        QStringLiteral("a"),  QStringLiteral("b"), QStringLiteral(" "),      QStringLiteral("\n"),
        QStringLiteral("\r"), QStringLiteral("🌞"), QStringLiteral("\u2029"), QString()};
    RandomText random(71);
    int compared = 0;
    while (compared < 30'000 && !testing::Test::HasFailure()) {
        const QString pattern =
            wildcards[random.below(std::uint32_t(wildcards.size()))] + random.join(parts, 5);
        const QString text = random.join(pieces, 10);
        const auto expression = RegularExpression::compile(pattern, CaseSensitivity::Sensitive);
        if (!expression || !hasLeadingWildcard(pattern)) {
            continue;
        }
        const auto plain = RegularExpression::compile(QStringLiteral("(?:)") + pattern,
                                                      CaseSensitivity::Sensitive);
        ASSERT_NE(plain, nullptr) << qPrintable(pattern);
        const auto expected = plain->firstMatch(text);
        if (plain->isExhausted()) {
            continue;
        }
        ASSERT_EQ(expression->firstMatch(text), expected)
            << qPrintable(pattern) << " in " << qPrintable(text);
        ASSERT_EQ(expression->allMatches(text), plain->allMatches(text))
            << qPrintable(pattern) << " in " << qPrintable(text);
        ++compared;
    }
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "platform/regular_expression.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

std::unique_ptr<RegularExpression> insensitive(const QString& pattern)
{
    return RegularExpression::compile(pattern, CaseSensitivity::Insensitive);
}

TEST(RegularExpression, FindsTheFirstMatch)
{
    const auto expression = insensitive(QStringLiteral("\\d+"));
    EXPECT_EQ(expression->firstMatch(u"ab 12 345"), (TextRange{3, 2}));
}

TEST(RegularExpression, GivesNothingWhereNothingMatches)
{
    const auto expression = insensitive(QStringLiteral("\\d+"));
    EXPECT_EQ(expression->firstMatch(u"abc"), std::nullopt);
    EXPECT_FALSE(expression->hasMatch(u"abc"));
    EXPECT_TRUE(expression->allMatches(u"abc").empty());
}

TEST(RegularExpression, FindsEveryMatchInOrder)
{
    const auto expression = insensitive(QStringLiteral("aa"));
    EXPECT_EQ(expression->allMatches(u"aaaaa"), (std::vector<TextRange>{{0, 2}, {2, 2}}));
}

TEST(RegularExpression, GivesEmptyMatchesToo)
{
    const auto expression = insensitive(QStringLiteral("x*"));
    EXPECT_EQ(expression->allMatches(u"axb"),
              (std::vector<TextRange>{{0, 0}, {1, 1}, {2, 0}, {3, 0}}));
}

TEST(RegularExpression, MatchesInAnEmptyText)
{
    EXPECT_EQ(insensitive(QStringLiteral("^$"))->firstMatch(QStringView()), (TextRange{0, 0}));
}

TEST(RegularExpression, CountsInUtf16Units)
{
    EXPECT_EQ(insensitive(QStringLiteral("b"))->firstMatch(u"a🌞b"), (TextRange{3, 1}));
}

TEST(RegularExpression, TellsCapitalsApartOnlyWhereAsked)
{
    const QString pattern = QStringLiteral("é");
    EXPECT_TRUE(insensitive(pattern)->hasMatch(u"É"));
    EXPECT_FALSE(RegularExpression::compile(pattern, CaseSensitivity::Sensitive)->hasMatch(u"É"));
}

TEST(RegularExpression, DoesNotCompileAnInvalidPattern)
{
    for (const char16_t* pattern : {u"[", u"foo(", u"*", u"a{2", u"(?<n", u"\\"}) {
        EXPECT_EQ(insensitive(QString::fromUtf16(pattern)), nullptr)
            << qPrintable(QString::fromUtf16(pattern));
    }
}

TEST(RegularExpression, DoesNotCompileAnEmptyPattern)
{
    EXPECT_EQ(insensitive(QString()), nullptr);
}

TEST(RegularExpression, KnowsUnicodeProperties)
{
    EXPECT_TRUE(insensitive(QStringLiteral("\\p{Han}{2}"))->hasMatch(u"le 日本"));
}

TEST(RegularExpressionBudget, IsNotTouchedByOrdinaryMatching)
{
    const auto expression = insensitive(QStringLiteral("\\bfoo\\w*"));
    const QString line = QStringLiteral("a line with a foobar in it").repeated(10);
    for (int i = 0; i < 20'000; ++i) {
        ASSERT_TRUE(expression->hasMatch(line));
    }
    EXPECT_FALSE(expression->isExhausted());
}

TEST(RegularExpressionBudget, EndsACatastrophicMatch)
{
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    EXPECT_FALSE(expression->hasMatch(QString(60, u'a') + u'b'));
    EXPECT_TRUE(expression->isExhausted());
}

TEST(RegularExpressionBudget, EndsAMatchThatNestsTooDeep)
{
    // One try takes some millions of steps, far fewer than there are; but it keeps them all.
    const auto expression = insensitive(QStringLiteral("^(?:a|b)*c"));
    EXPECT_FALSE(expression->hasMatch(QString(1'000'000, u'a')));
    EXPECT_TRUE(expression->isExhausted());
}

TEST(RegularExpressionBudget, OnceSpentLetsNothingMatch)
{
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    EXPECT_FALSE(expression->hasMatch(QString(60, u'a') + u'b'));
    EXPECT_FALSE(expression->hasMatch(u"a"));
    EXPECT_EQ(expression->firstMatch(u"a"), std::nullopt);
}

TEST(RegularExpressionBudget, OfAllMatchesIsEachTextsOwn)
{
    const auto expression = insensitive(QStringLiteral("x|(a+)+c"));
    const QString costly = u'x' + QString(60, u'a') + u'x';
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(expression->allMatches(costly), (std::vector<TextRange>{{0, 1}}));
        EXPECT_FALSE(expression->isExhausted());
    }
    EXPECT_EQ(expression->allMatches(u"xaacx"), (std::vector<TextRange>{{0, 1}, {1, 3}, {4, 1}}));
}

TEST(RegularExpressionBudget, OfAllMatchesLeavesThatOfFirstMatchesAlone)
{
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    static_cast<void>(expression->allMatches(QString(60, u'a') + u'b'));
    EXPECT_TRUE(expression->hasMatch(u"a"));
}

TEST(RegularExpressionBudget, EndsScanningThatTakesNoSteps)
{
    // Nearly a minute, were it let.
    const auto expression = insensitive(QStringLiteral("(?>.*)b"));
    const QString text(320'000, u'a');
    EXPECT_FALSE(expression->hasMatch(text));
    EXPECT_TRUE(expression->isExhausted());
    EXPECT_TRUE(expression->allMatches(text).empty());
}

TEST(RegularExpressionBudget, IsNotTouchedByALineThatIsLong)
{
    const auto expression = insensitive(QStringLiteral("\\w+\\d\\s+x"));
    EXPECT_FALSE(expression->hasMatch(QStringLiteral("some words, 17 and more ").repeated(80'000)));
    EXPECT_FALSE(expression->isExhausted());
}

TEST(RegularExpressionBudget, DoesNotLimitTheProgramsOwnPatterns)
{
    const QString pattern = QStringLiteral("x|(a+)+c");
    const QString costly = u'x' + QString(18, u'a') + u'x';
    const auto users = RegularExpression::compile(pattern, CaseSensitivity::Sensitive);
    EXPECT_EQ(users->allMatches(costly), (std::vector<TextRange>{{0, 1}}));
    const auto own =
        RegularExpression::compile(pattern, CaseSensitivity::Sensitive, PatternSource::Program);
    EXPECT_EQ(own->allMatches(costly), (std::vector<TextRange>{{0, 1}, {19, 1}}));
}

TEST(RegularExpressionBudget, IsSharedByAllFirstMatches)
{
    // Each match alone stays below the budget; all of them together do not.
    const auto expression = insensitive(QStringLiteral("(a+)+$"));
    const QString line = QString(20, u'a') + u'b';
    int lines = 0;
    while (!expression->isExhausted() && lines < 100'000) {
        EXPECT_FALSE(expression->hasMatch(line));
        ++lines;
    }
    EXPECT_TRUE(expression->isExhausted());
    EXPECT_GT(lines, 1);
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "tests/search/search_of_query.h"
#include "tests/support/printing.h"
#include "tests/support/search_comparison.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Ranges = std::vector<TextRange>;

TEST(SearchExpression, AnEmptyQuerySearchesForNothing)
{
    EXPECT_EQ(SearchExpression::make(QString()), nullptr);
}

TEST(SearchExpression, AQueryWithoutSlashesIsAnExpression)
{
    EXPECT_TRUE(search(u"a.c")->matches(QStringLiteral("xABCx")));
}

TEST(SearchExpression, TheSlashesOfAQueryAreTakenOff)
{
    EXPECT_EQ(marksOf(*search(u"/b+/"), QStringLiteral("abbc")), (Ranges{{1, 2}}));
}

TEST(SearchExpression, AnInvalidExpressionIsSearchedForAsItIs)
{
    const auto made = search(u"Foo(");
    EXPECT_TRUE(made->matches(QStringLiteral("call FOO(1)")));
    EXPECT_EQ(marksOf(*made, QStringLiteral("call FOO(1)")), (Ranges{{5, 4}}));
}

TEST(SearchExpression, AnInvalidExpressionBetweenSlashesKeepsItsSlashes)
{
    const auto made = search(u"/[/");
    EXPECT_TRUE(made->matches(QStringLiteral("a/[/b")));
    EXPECT_FALSE(made->matches(QStringLiteral("a[b")));
}

TEST(SearchExpression, ALiteralIsNoExpressionInAnyOfItsParts)
{
    const auto made = search(u"A.c(");
    EXPECT_TRUE(made->matches(QStringLiteral("xa.C(x")));
    EXPECT_FALSE(made->matches(QStringLiteral("abc(")));
}

TEST(SearchExpression, OccurrencesOfALiteralDoNotOverlap)
{
    EXPECT_EQ(marksOf(*search(u"(("), QStringLiteral("(((((")), (Ranges{{0, 2}, {2, 2}}));
}

TEST(SearchExpression, OccurrencesOfAPlainWordDoNotOverlap)
{
    EXPECT_EQ(marksOf(*search(u"aa"), QStringLiteral("aAaAa")), (Ranges{{0, 2}, {2, 2}}));
}

TEST(SearchExpression, EmptyMatchesAreLeftOut)
{
    EXPECT_TRUE(search(u"x*")->matches(QStringLiteral("abc")));
    EXPECT_TRUE(marksOf(*search(u"x*"), QStringLiteral("abc")).empty());
    EXPECT_EQ(marksOf(*search(u"x*"), QStringLiteral("axxb")), (Ranges{{1, 2}}));
}

TEST(SearchExpression, ALiteralBehindALengthenedCharacterKeepsItsLoweredPlace)
{
    // The lower-case form of U+0130 is one unit longer.
    const auto made = search(u"b(");
    EXPECT_EQ(marksOf(*made, QStringLiteral("\u0130a b( c")), (Ranges{{4, 2}}));
}

TEST(SearchExpression, ALiteralThatRunsPastTheRowIsClipped)
{
    EXPECT_EQ(marksOf(*search(u"b("), QStringLiteral("\u0130b(")), (Ranges{{2, 1}}));
}

TEST(SearchExpression, ALiteralThatLiesWhollyPastTheRowIsLeftOut)
{
    EXPECT_TRUE(marksOf(*search(u"("), QStringLiteral("\u0130(")).empty());
}

TEST(SearchExpression, ALiteralFoldsNeitherAccentsNorWidth)
{
    const auto made = search(u"(é");
    EXPECT_TRUE(made->matches(QStringLiteral("(É")));
    EXPECT_FALSE(made->matches(QStringLiteral("(e")));
}

TEST(SearchExpression, ALiteralFindsAFinalSigma)
{
    EXPECT_TRUE(search(u"[οδος")->matches(QStringLiteral("[ΟΔΟΣ")));
    EXPECT_TRUE(search(u"[ΟΔΟΣ")->matches(QStringLiteral("x [οδος y")));
    EXPECT_FALSE(search(u"[οδος")->matches(QStringLiteral("[ΟΔΟΣΑ")));
    EXPECT_EQ(marksOf(*search(u"[οδος"), QStringLiteral("a [ΟΔΟΣ")), (Ranges{{2, 5}}));
}

TEST(SearchExpression, ALiteralFindsTheCharactersWhoseLowerCaseItHas)
{
    EXPECT_TRUE(search(u"(k")->matches(QStringLiteral("(\u212A")));
    EXPECT_TRUE(search(u"(\u212A")->matches(QStringLiteral("(K")));
    EXPECT_FALSE(search(u"(ss")->matches(QStringLiteral("(ß")));
}

TEST(SearchExpression, APatternThatTakesTooLongToCompileIsALiteral)
{
    const QString letter = QStringLiteral("\\p{L}");
    EXPECT_TRUE(SearchExpression::make(letter)->matches(QStringLiteral("a")));
    const QString letters = letter.repeated(6'553);
    EXPECT_TRUE(SearchExpression::make(letters)->matches(QStringLiteral("see ") + letters));
    EXPECT_FALSE(SearchExpression::make(letters)->matches(QString(7'000, u'a')));
    const QString sets = QStringLiteral("[\\u0000-\\U0010FFFF]").repeated(1'000);
    EXPECT_FALSE(SearchExpression::make(sets)->matches(QString(7'000, u'a')));
}

TEST(SearchExpression, AWordFindsTheCharactersThatFoldToItsLetters)
{
    EXPECT_TRUE(search(u"strasse")->matches(QStringLiteral("Straße")));
    EXPECT_TRUE(search(u"k")->matches(QStringLiteral("\u212A")));
    EXPECT_FALSE(search(u"e")->matches(QStringLiteral("é")));
}

TEST(SearchExpression, ALineThatCostsTooMuchIsUndecidedAndNoOther)
{
    const auto made = search(u"(a+)+$");
    EXPECT_EQ(made->decide(QString(60, u'a') + u'b'), Verdict::Undecided);
    EXPECT_EQ(made->decide(QStringLiteral("a")), Verdict::Match);
    EXPECT_EQ(made->decide(QStringLiteral("b")), Verdict::NoMatch);
}

TEST(SearchExpression, ALineIsDecidedByTheExpressionWhereAShortcutCostsMore)
{
    // Without the wildcard, which finds the end of the line at once, each place before it is tried.
    const QString letters = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
    const auto made = search(u".*Fatal|(\\w+\\s*)+;");
    EXPECT_TRUE(made->matches(letters + letters + QStringLiteral(" Fatal")));
}

TEST(SearchExpression, AnExpressionIsNeverALiteralForBeingCostly)
{
    const auto made = search(u"(a+)+$");
    EXPECT_FALSE(made->matches(QStringLiteral("see (a+)+$ here")));
}

TEST(SearchExpression, ARowThatCostsTooMuchHasTheMatchesFoundByThen)
{
    const auto made = search(u"x|(a+)+c");
    EXPECT_EQ(marksOf(*made, u'x' + QString(60, u'a') + u'x'), (Ranges{{0, 1}}));
}

TEST(SearchExpression, WhatARowHasDoesNotDependOnWhoseTurnItWasBefore)
{
    const auto made = search(u"(a+)+c|a{4} ");
    const QString row = QStringLiteral("aaaa ") + QString(19, u'a');
    for (int i = 0; i < 40; ++i) {
        ASSERT_EQ(marksOf(*made, row), (Ranges{{0, 5}})) << i;
    }
}

} // namespace
} // namespace quillon

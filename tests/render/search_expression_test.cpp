// SPDX-License-Identifier: MIT
#include "render/search_expression.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Ranges = std::vector<TextRange>;

std::shared_ptr<const SearchExpression> search(const char16_t* query)
{
    return SearchExpression::make(QString::fromUtf16(query));
}

TEST(SearchExpression, AnEmptyQuerySearchesForNothing)
{
    EXPECT_EQ(SearchExpression::make(QString()), nullptr);
    EXPECT_EQ(SearchExpression::makeLiteral(QString()), nullptr);
}

TEST(SearchExpression, AQueryWithoutSlashesIsAnExpression)
{
    EXPECT_TRUE(search(u"a.c")->matches(QStringLiteral("xABCx")));
}

TEST(SearchExpression, TheSlashesOfAQueryAreTakenOff)
{
    EXPECT_EQ(search(u"/b+/")->rangesIn(QStringLiteral("abbc")), (Ranges{{1, 2}}));
}

TEST(SearchExpression, AnInvalidExpressionIsSearchedForAsItIs)
{
    const auto made = search(u"Foo(");
    EXPECT_TRUE(made->matches(QStringLiteral("call FOO(1)")));
    EXPECT_EQ(made->rangesIn(QStringLiteral("call FOO(1)")), (Ranges{{5, 4}}));
}

TEST(SearchExpression, AnInvalidExpressionBetweenSlashesKeepsItsSlashes)
{
    const auto made = search(u"/[/");
    EXPECT_TRUE(made->matches(QStringLiteral("a/[/b")));
    EXPECT_FALSE(made->matches(QStringLiteral("a[b")));
}

TEST(SearchExpression, ALiteralIsNoExpressionEvenIfItIsAValidOne)
{
    const auto made = SearchExpression::makeLiteral(QStringLiteral("A.c"));
    EXPECT_TRUE(made->matches(QStringLiteral("xa.Cx")));
    EXPECT_FALSE(made->matches(QStringLiteral("abc")));
}

TEST(SearchExpression, OccurrencesOfALiteralDoNotOverlap)
{
    EXPECT_EQ(
        SearchExpression::makeLiteral(QStringLiteral("aa"))->rangesIn(QStringLiteral("aaaaa")),
        (Ranges{{0, 2}, {2, 2}}));
}

TEST(SearchExpression, OccurrencesOfAPlainWordDoNotOverlap)
{
    EXPECT_EQ(search(u"aa")->rangesIn(QStringLiteral("aAaAa")), (Ranges{{0, 2}, {2, 2}}));
}

TEST(SearchExpression, EmptyMatchesAreLeftOut)
{
    EXPECT_TRUE(search(u"x*")->matches(QStringLiteral("abc")));
    EXPECT_TRUE(search(u"x*")->rangesIn(QStringLiteral("abc")).empty());
    EXPECT_EQ(search(u"x*")->rangesIn(QStringLiteral("axxb")), (Ranges{{1, 2}}));
}

TEST(SearchExpression, ALiteralBehindALengthenedCharacterKeepsItsLoweredPlace)
{
    // The lower-case form of U+0130 is one unit longer.
    const auto made = search(u"b(");
    EXPECT_EQ(made->rangesIn(QStringLiteral("\u0130a b( c")), (Ranges{{4, 2}}));
}

TEST(SearchExpression, ALiteralThatRunsPastTheRowIsClipped)
{
    EXPECT_EQ(search(u"b(")->rangesIn(QStringLiteral("\u0130b(")), (Ranges{{2, 1}}));
}

TEST(SearchExpression, ALiteralThatLiesWhollyPastTheRowIsLeftOut)
{
    EXPECT_TRUE(search(u"(")->rangesIn(QStringLiteral("\u0130(")).empty());
}

TEST(SearchExpression, ALiteralFoldsNeitherAccentsNorWidth)
{
    const auto made = search(u"(é");
    EXPECT_TRUE(made->matches(QStringLiteral("(É")));
    EXPECT_FALSE(made->matches(QStringLiteral("(e")));
}

TEST(SearchExpression, AWordFindsTheCharactersThatFoldToItsLetters)
{
    EXPECT_TRUE(search(u"strasse")->matches(QStringLiteral("Straße")));
    EXPECT_TRUE(search(u"k")->matches(QStringLiteral("\u212A")));
    EXPECT_FALSE(search(u"e")->matches(QStringLiteral("é")));
}

TEST(SearchExpression, AnExpressionThatCostsTooMuchSaysSo)
{
    const auto made = search(u"(a+)+$");
    EXPECT_FALSE(made->isExhausted());
    EXPECT_FALSE(made->matches(QString(60, u'a') + u'b'));
    EXPECT_TRUE(made->isExhausted());
}

TEST(SearchExpression, ARowThatCostsTooMuchHasTheMatchesFoundByThen)
{
    const auto made = search(u"x|(a+)+c");
    EXPECT_EQ(made->rangesIn(u'x' + QString(60, u'a') + u'x'), (Ranges{{0, 1}}));
    EXPECT_FALSE(made->isExhausted());
}

TEST(SearchExpression, WhatARowHasDoesNotDependOnWhoseTurnItWasBefore)
{
    const auto made = search(u"(a+)+c|a{4} ");
    const QString row = QStringLiteral("aaaa ") + QString(19, u'a');
    for (int i = 0; i < 40; ++i) {
        ASSERT_EQ(made->rangesIn(row), (Ranges{{0, 5}})) << i;
    }
}

TEST(SearchExpression, ALiteralIsNeverExhausted)
{
    const auto made = SearchExpression::makeLiteral(QStringLiteral("(a+)+$"));
    EXPECT_FALSE(made->matches(QString(60, u'a') + u'b'));
    EXPECT_FALSE(made->isExhausted());
}

} // namespace
} // namespace quillon

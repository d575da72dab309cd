// SPDX-License-Identifier: MIT
#include "search/required_word.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

QString wordOf(const char16_t* pattern)
{
    return requiredWordOf(QString::fromUtf16(pattern));
}

TEST(RequiredWord, IsTheLongestRunOfPlainCharacters)
{
    EXPECT_EQ(wordOf(u"undefined .* key"), QStringLiteral("undefined "));
    EXPECT_EQ(wordOf(u"^.*trace$"), QStringLiteral("trace"));
}

TEST(RequiredWord, LeavesOutWhatMayBeMissing)
{
    EXPECT_EQ(wordOf(u"warnings?: x"), QStringLiteral("warning"));
    EXPECT_EQ(wordOf(u"abcd*?e"), QStringLiteral("abc"));
    EXPECT_EQ(wordOf(u"abcd{0,2}efghi"), QStringLiteral("efghi"));
    EXPECT_EQ(wordOf(u"abc(defgh)?"), QStringLiteral("abc"));
    EXPECT_EQ(wordOf(u"abc(?:defgh)*"), QStringLiteral("abc"));
}

TEST(RequiredWord, KeepsWhatIsThereAtLeastOnce)
{
    EXPECT_EQ(wordOf(u"abc+d"), QStringLiteral("abc"));
    EXPECT_EQ(wordOf(u"x(abcd)+"), QStringLiteral("abcd"));
}

TEST(RequiredWord, LooksIntoGroupsAndAhead)
{
    EXPECT_EQ(wordOf(u"(.*)fatal(.*)"), QStringLiteral("fatal"));
    EXPECT_EQ(wordOf(u"(?=.*fatal)(?=.*array_x)"), QStringLiteral("array_x"));
    EXPECT_EQ(wordOf(u"(?>abc|defg)hij"), QStringLiteral("hij"));
}

TEST(RequiredWord, LeavesOutAlternatives)
{
    EXPECT_EQ(wordOf(u".*(cart|checkout)\\.php"), QStringLiteral(".php"));
    EXPECT_EQ(wordOf(u"abc|defg"), QString());
    EXPECT_EQ(wordOf(u"((abcdef)x|y)zzz"), QStringLiteral("zzz"));
}

TEST(RequiredWord, TakesEscapedMarksForThemselves)
{
    EXPECT_EQ(wordOf(u"cart\\.php\\?x"), QStringLiteral("cart.php?x"));
    EXPECT_EQ(wordOf(u"\\bcart\\b \\d+"), QStringLiteral("cart"));
}

TEST(RequiredWord, SkipsSimpleSets)
{
    EXPECT_EQ(wordOf(u"line [0-9]+ of"), QStringLiteral("line "));
    EXPECT_EQ(wordOf(u"abc[^(]def"), QStringLiteral("abc"));
}

TEST(RequiredWord, MayBeASingleCharacter)
{
    EXPECT_EQ(wordOf(u"ab.cd"), QStringLiteral("ab"));
    EXPECT_EQ(wordOf(u"(.*)*x"), QStringLiteral("x"));
    EXPECT_EQ(wordOf(u"(\\w+\\s?)+:$"), QStringLiteral(":"));
}

TEST(RequiredWord, IsNoneWhereThereIsNone)
{
    EXPECT_EQ(wordOf(u""), QString());
    EXPECT_EQ(wordOf(u".*\\d+"), QString());
}

TEST(RequiredWord, IsNotMistakenInsideALongerEscape)
{
    EXPECT_EQ(wordOf(u"a\\c|.*b"), QString());
    EXPECT_EQ(wordOf(u"\\u0041bcd"), QString());
}

TEST(RequiredWord, IsNoneWhereThePatternIsTooInvolved)
{
    for (const char16_t* pattern :
         {u"(?!abcd)", u"(?<!abcd)", u"(?<n>abcd)", u"(?i)abcd", u"(?x)ab cd", u"\\Qabcd\\E",
          u"\\x41bcd", u"abcd\\1", u"abcd[[a]b]", u"abcd[]a]", u"été abcd", u"abcd\\"}) {
        EXPECT_EQ(wordOf(pattern), QString()) << qPrintable(QString::fromUtf16(pattern));
    }
}

} // namespace
} // namespace quillon

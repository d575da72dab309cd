// SPDX-License-Identifier: MIT
#include "platform/utf16_block.h"
#include "search/ascii_search.h"

#include <QString>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(IsAscii, FindsACharacterBeyondAsciiAtEveryPositionOfTextsOfEveryLength)
{
    for (qsizetype length = 0; length <= 70; ++length) {
        const std::u16string ascii(static_cast<std::size_t>(length), u'\u007F');
        EXPECT_TRUE(isAscii(ascii.data(), length)) << length;
        for (qsizetype at = 0; at < length; ++at) {
            std::u16string text = ascii;
            text[static_cast<std::size_t>(at)] = u'\u0080';
            EXPECT_FALSE(isAscii(text.data(), length)) << length << ' ' << at;
        }
    }
}

TEST(AsciiSearch, FindsWithoutRegardToCase)
{
    EXPECT_EQ(AsciiSearch(QLatin1StringView("wOrD")).find(u"a WoRd"), 2);
}

TEST(AsciiSearch, FindsTheFirstOccurrenceFromAPositionOn)
{
    const AsciiSearch search(QLatin1StringView("ab"));
    EXPECT_EQ(search.find(u"ab ab", 1), 3);
    EXPECT_EQ(search.find(u"ab ab", 4), -1);
    EXPECT_EQ(search.find(u"ab ab", 5), -1);
}

TEST(AsciiSearch, FindsNothingInATextShorterThanTheWord)
{
    EXPECT_EQ(AsciiSearch(QLatin1StringView("word")).find(u"wor"), -1);
    EXPECT_EQ(AsciiSearch(QLatin1StringView("word")).find(QStringView()), -1);
}

TEST(AsciiSearch, FindsAWordAtEveryPositionOfTextsOfEveryLength)
{
    const AsciiSearch search(QLatin1StringView("Key"));
    for (qsizetype length = 3; length <= 100; ++length) {
        for (qsizetype at = 0; at + 3 <= length; ++at) {
            QString text(length, u'k');
            text.replace(at, 3, QStringLiteral("kEY"));
            ASSERT_EQ(search.find(text), at) << length;
        }
    }
}

TEST(AsciiSearch, DoesNotTakeNeighboursOfLettersForLetters)
{
    // "@" and "`", "[" and "{" differ by the bit that capitals and small letters differ by.
    EXPECT_EQ(AsciiSearch(QLatin1StringView("@")).find(u"`"), -1);
    EXPECT_EQ(AsciiSearch(QLatin1StringView("a~")).find(u"A\u005E"), -1);
    EXPECT_EQ(AsciiSearch(QLatin1StringView("x_y")).find(u"x\u007Fy"), -1);
}

TEST(AsciiSearch, DoesNotTakeOtherScriptsForLetters)
{
    EXPECT_EQ(AsciiSearch(QLatin1StringView("a")).find(u"\u0141\u0161\uFF41"), -1);
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "render/color_codec.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

Color bytes(int red, int green, int blue, int alpha = 255)
{
    return Color::rgb(red / 255.0, green / 255.0, blue / 255.0, alpha / 255.0);
}

TEST(ColorFromHex, CaseHashAndSpaceAroundDoNotMatter)
{
    const Color expected = bytes(0xFF, 0x3B, 0x30);
    for (const char16_t* text :
         {u"#FF3B30", u"#ff3b30", u"FF3B30", u"  #FF3B30\n", u"\t#fF3b30\r\n"}) {
        EXPECT_EQ(colorFromHex(QString::fromUtf16(text)), expected);
    }
}

TEST(ColorFromHex, EightDigitsGiveAlphaLast)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("#FF3B3080")), bytes(0xFF, 0x3B, 0x30, 0x80));
    EXPECT_EQ(colorFromHex(QStringLiteral("ff3b3000")), bytes(0xFF, 0x3B, 0x30, 0));
}

TEST(ColorFromHex, AnyOtherLengthGivesNone)
{
    for (const char16_t* text :
         {u"", u"#", u"#FFF", u"#FF3B3", u"#FF3B301", u"#FF3B30801", u"   ", u"blue"}) {
        EXPECT_EQ(colorFromHex(QString::fromUtf16(text)), std::nullopt);
    }
}

TEST(ColorFromHex, AHexadecimalPrefixIsAccepted)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("0xFFFF")), bytes(0, 0xFF, 0xFF));
    EXPECT_EQ(colorFromHex(QStringLiteral("#0X123456")), bytes(0, 0x12, 0x34, 0x56));
}

TEST(ColorFromHex, NoDigitAtTheStartGivesNone)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("#GGGGGG")), std::nullopt);
    EXPECT_EQ(colorFromHex(QStringLiteral("orange")), std::nullopt);
    EXPECT_EQ(colorFromHex(QStringLiteral("0xGGGG")), std::nullopt);
    EXPECT_EQ(colorFromHex(QStringLiteral("-FF3B3")), std::nullopt);
}

TEST(ColorFromHex, CharactersAfterTheLastDigitAreIgnored)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("12345G")), bytes(0x01, 0x23, 0x45));
    EXPECT_EQ(colorFromHex(QStringLiteral("F-----")), bytes(0, 0, 0x0F));
}

TEST(ColorFromHex, OnlyOneHashIsTakenOff)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("##FF0000")), std::nullopt);
    EXPECT_EQ(colorFromHex(QStringLiteral("##FF000")), std::nullopt);
}

TEST(ColorFromHex, DigitsOfOtherScriptsAreNoDigits)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("١٢٣٤٥٦")), std::nullopt);
}

TEST(HexFromColor, IsUpperCase)
{
    EXPECT_EQ(hexFromColor(bytes(0xFF, 0x3B, 0x0A)), QStringLiteral("#FF3B0A"));
}

TEST(HexFromColor, RoundsHalvesUpwards)
{
    EXPECT_EQ(hexFromColor(Color::rgb(1.0, 0.5, 0.0)), QStringLiteral("#FF8000"));
}

TEST(HexFromColor, DoesNotWriteAlpha)
{
    EXPECT_EQ(hexFromColor(bytes(1, 2, 3, 4)), QStringLiteral("#010203"));
}

TEST(HexFromColor, DoesNotClamp)
{
    EXPECT_EQ(hexFromColor(Color::rgb(2.0, 0.0, 0.0)), QStringLiteral("#1FE0000"));
}

TEST(HexFromColor, IsBlackForAColorThatTheDesktopDecides)
{
    EXPECT_EQ(hexFromColor(Color::system(SystemColor::Red)), QStringLiteral("#000000"));
}

TEST(HexFromColor, GivesBackEveryByteThatColorFromHexReads)
{
    for (int value = 0; value < 256; ++value) {
        const QString hex = QString::asprintf("#%02X%02X%02X", value, 255 - value, value / 2);
        EXPECT_EQ(hexFromColor(colorFromHex(hex).value()), hex);
    }
}

} // namespace
} // namespace quillon

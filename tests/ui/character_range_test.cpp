// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/random_text.h"
#include "ui/character_range.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(CharacterRange, AnEmptyTextIsAscii)
{
    EXPECT_EQ(characterRangeOf(QString()), CharacterRange::Ascii);
}

TEST(CharacterRange, ControlCharactersAndTabsAreOutsideEveryRange)
{
    for (const char16_t character : {u'\0', u'\t', u'\x1B', u'\x1F', u'\x7F', u'\x80', u'\xA0'}) {
        EXPECT_EQ(characterRangeOf(QString(QChar(character))), CharacterRange::Any)
            << static_cast<int>(character);
    }
}

TEST(CharacterRange, TheSoftHyphenIsNoLatinLetter)
{
    EXPECT_EQ(characterRangeOf(QStringLiteral("a\u00ADb")), CharacterRange::Any);
}

TEST(CharacterRange, FrenchTypographyIsTypographic)
{
    EXPECT_EQ(characterRangeOf(QStringLiteral("été")), CharacterRange::Latin);
    EXPECT_EQ(characterRangeOf(QStringLiteral("l’été… “a” — b • c")), CharacterRange::Typographic);
}

TEST(CharacterRange, OneCharacterDecidesWhereverItStands)
{
    for (qsizetype length = 1; length < 70; ++length) {
        for (qsizetype at = 0; at < length; ++at) {
            QString text(length, u'a');
            text[at] = u'é';
            ASSERT_EQ(characterRangeOf(text), CharacterRange::Latin) << length << ' ' << at;
            text[at] = u'\t';
            ASSERT_EQ(characterRangeOf(text), CharacterRange::Any) << length << ' ' << at;
        }
    }
}

TEST(CharacterRange, ATextIsInTheSmallestRangeThatHoldsAllItsCharacters)
{
    RandomText random(31);
    const QStringList pieces{QStringLiteral("abcdefgh"), QStringLiteral("~ "), QStringLiteral("é"),
                             QStringLiteral("ſ"),        QStringLiteral("…"),  QStringLiteral("’")};
    for (int i = 0; i < 2000; ++i) {
        const QString text = random.join(pieces, 12);
        CharacterRange expected = CharacterRange::Ascii;
        for (const QChar character : text) {
            while (!isInRange(character.unicode(), expected)) {
                expected = static_cast<CharacterRange>(static_cast<int>(expected) + 1);
            }
        }
        ASSERT_EQ(characterRangeOf(text), expected) << ::testing::PrintToString(text);
    }
}

} // namespace
} // namespace quillon

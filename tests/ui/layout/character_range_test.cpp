// SPDX-License-Identifier: MIT
#include "ui/layout/character_range.h"

#include <QString>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

CharacterRange plainRangeOf(char16_t character)
{
    if (character >= 0x20 && character <= 0x7E) {
        return CharacterRange::Ascii;
    }
    if (character >= 0xA1 && character <= 0x17F && character != 0xAD) {
        return CharacterRange::Latin;
    }
    if ((character >= 0x2012 && character <= 0x2022) || character == 0x2026) {
        return CharacterRange::Typographic;
    }
    return CharacterRange::Any;
}

TEST(CharacterRange, OfASingleCharacterIsTheSetThatItBelongsTo)
{
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const QChar character(unit);
        const CharacterRange expected = plainRangeOf(character.unicode());
        ASSERT_EQ(characterRangeOf(QStringView(&character, 1)), expected) << std::hex << unit;
        ASSERT_EQ(characterRangeOf(character), expected) << std::hex << unit;
    }
}

TEST(CharacterRange, OfATextIsThatOfItsRarestCharacterWhereverItStands)
{
    for (qsizetype length = 1; length <= 40; ++length) {
        for (qsizetype at = 0; at < length; ++at) {
            for (const char16_t rare : {u'é', u'’', u'\t', u'日', u'\u007F', u'\u0020'}) {
                QString text(length, u'~');
                text[at] = QChar(rare);
                ASSERT_EQ(characterRangeOf(text), plainRangeOf(rare)) << length << ' ' << at;
            }
        }
    }
}

TEST(CharacterRange, OfAnEmptyTextIsTheSmallest)
{
    EXPECT_EQ(characterRangeOf(QString()), CharacterRange::Ascii);
}

} // namespace
} // namespace quillon

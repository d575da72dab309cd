// SPDX-License-Identifier: MIT
#include "search/case_folding.h"
#include "tests/support/printing.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// What the whole character folds to, as the Unicode data behind ICU has it.
QString foldCase(char32_t character)
{
    QString text;
    text += QChar::fromUcs4(character);
    char16_t folded[16];
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        u_strFoldCase(folded, 16, reinterpret_cast<const char16_t*>(text.utf16()),
                      static_cast<int32_t>(text.size()), U_FOLD_CASE_DEFAULT, &status);
    EXPECT_TRUE(U_SUCCESS(status));
    return QString::fromUtf16(folded, length);
}

bool foldsToAscii(char32_t character)
{
    const QString folded = foldCase(character);
    return character >= 0x80 && std::any_of(folded.begin(), folded.end(),
                                            [](QChar unit) { return unit.unicode() < 0x80; });
}

TEST(CharacterFoldingToAscii, IsFoundExactlyWhereUnicodesFoldingSaysSo)
{
    for (char32_t character = 0; character <= 0xFFFF; ++character) {
        if (QChar::isSurrogate(character)) {
            continue;
        }
        const QChar unit(static_cast<char16_t>(character));
        ASSERT_EQ(hasCharacterFoldingToAscii(QStringView(&unit, 1)), foldsToAscii(character))
            << std::hex << uint32_t(character);
    }
}

TEST(CharacterFoldingToAscii, DoesNotExistOutsideTheBasicPlane)
{
    for (char32_t character = 0x10000; character <= 0x10FFFF; ++character) {
        ASSERT_FALSE(foldsToAscii(character)) << std::hex << uint32_t(character);
    }
}

TEST(CharacterFoldingToAscii, IsFoundAnywhereInALongText)
{
    for (qsizetype at = 0; at < 70; ++at) {
        QString text(70, u'x');
        EXPECT_FALSE(hasCharacterFoldingToAscii(text));
        text[at] = QChar(0x212A);
        EXPECT_TRUE(hasCharacterFoldingToAscii(text)) << at;
    }
}

} // namespace
} // namespace quillon

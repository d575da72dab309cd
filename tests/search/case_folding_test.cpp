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

bool isAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

TEST(WordsFoldedTo, AreThoseThatContainWhatAWholeCharacterFoldsTo)
{
    QStringList foldings;
    for (char32_t character = 0x80; character <= 0xFFFF; ++character) {
        // Byte order marks get lost on the way into a QString.
        const QString folding = QChar::isSurrogate(character) ? QString() : foldCase(character);
        if (!folding.isEmpty() && isAscii(folding)) {
            foldings.append(folding);
        }
    }
    ASSERT_TRUE(foldings.contains(QStringLiteral("ss")));
    const auto expectAsContained = [&](const QString& word) {
        const bool isExpected =
            std::any_of(foldings.begin(), foldings.end(),
                        [&](const QString& folding) { return word.toLower().contains(folding); });
        EXPECT_EQ(isFoldedTo(QLatin1StringView(word.toLatin1())), isExpected) << qPrintable(word);
    };
    for (char16_t first = 0x20; first < 0x7F; ++first) {
        for (char16_t second = 0x20; second < 0x7F; ++second) {
            for (char16_t third : {u'a', u'f', u'i', u'L', u'S'}) {
                const char16_t word[] = {first, second, third};
                expectAsContained(QString::fromUtf16(word, 3));
            }
        }
    }
}

} // namespace
} // namespace quillon

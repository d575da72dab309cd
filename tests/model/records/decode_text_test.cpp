// SPDX-License-Identifier: MIT
#include "model/records/decode_text.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr QChar kReplacement(0xFFFD);

QString replacements(qsizetype count)
{
    return QString(count, kReplacement);
}

TEST(DecodeText, GivesNoTextForNoBytes)
{
    EXPECT_EQ(decodeText(QByteArrayView()), QString());
}

TEST(DecodeText, ReadsEveryLengthOfSequence)
{
    EXPECT_EQ(decodeText("a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x8C\x9E"), QStringLiteral("aé日🌞"));
}

TEST(DecodeText, KeepsAByteOrderMark)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                         "a"),
              QStringLiteral("\uFEFFa"));
}

TEST(DecodeText, KeepsNul)
{
    EXPECT_EQ(decodeText(QByteArrayView("a\0b\0", 4)), QStringView(u"a\0b\0", 4).toString());
}

TEST(DecodeText, KeepsControlCharactersAndNoncharacters)
{
    EXPECT_EQ(decodeText("\x01\x1B\x7F\xEF\xBF\xBF"), QStringLiteral("\u0001\u001B\u007F\uFFFF"));
}

TEST(DecodeText, ReplacesEachLatin1Letter)
{
    EXPECT_EQ(decodeText("caf\xE9 \xE9t\xE9"), QStringLiteral("caf\uFFFD \uFFFDt\uFFFD"));
}

TEST(DecodeText, ReplacesATruncatedSequenceOnce)
{
    EXPECT_EQ(decodeText("\xC3"), replacements(1));
    EXPECT_EQ(decodeText("\xE6\x97"), replacements(1));
    EXPECT_EQ(decodeText("\xF0\x9F\x8C"), replacements(1));
    EXPECT_EQ(decodeText("\xF0\x9F\x8C\x41"), replacements(1) + u'A');
}

TEST(DecodeText, ReplacesEachStrayContinuationByte)
{
    EXPECT_EQ(decodeText("\x80\xBF\x9F"), replacements(3));
}

TEST(DecodeText, ReplacesEveryByteOfAnOverlongForm)
{
    EXPECT_EQ(decodeText("\xC0\x80"), replacements(2));
    EXPECT_EQ(decodeText("\xC1\xBF"), replacements(2));
    EXPECT_EQ(decodeText("\xE0\x80\x80"), replacements(3));
    EXPECT_EQ(decodeText("\xF0\x8F\xBF\xBF"), replacements(4));
}

TEST(DecodeText, ReplacesEveryByteOfASurrogate)
{
    EXPECT_EQ(decodeText("\xED\xA0\x80\xED\xBF\xBF"), replacements(6));
}

TEST(DecodeText, ReplacesWhatLiesAboveTheLastCharacter)
{
    EXPECT_EQ(decodeText("\xF4\x8F\xBF\xBF"), QString::fromUcs4(U"\x10FFFF", 1));
    EXPECT_EQ(decodeText("\xF4\x90\x80\x80"), replacements(4));
    EXPECT_EQ(decodeText("\xF5\xFE\xFF"), replacements(3));
}

TEST(DecodeText, ReadsOnAfterAnIllFormedSequence)
{
    EXPECT_EQ(decodeText("\xE6\xC3\xA9"), QStringLiteral("\uFFFDé"));
}

} // namespace
} // namespace quillon

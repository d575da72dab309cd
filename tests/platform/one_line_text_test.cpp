// SPDX-License-Identifier: MIT
#include "platform/one_line_text.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(OneLineText, OrdinaryNamesStayAsTheyAre)
{
    const QString name = QStringLiteral("/var/log/é ü 日本 😀 «x».log");
    EXPECT_EQ(oneLineText(name), name);
}

TEST(OneLineText, AsciiControlsBecomeTheirPictures)
{
    EXPECT_EQ(oneLineText(u"a\x1B[2J\t\a\x7F"), QStringLiteral("a␛[2J␉␇␡"));
}

TEST(OneLineText, EveryLineEndIsReplaced)
{
    EXPECT_EQ(oneLineText(u"a\nb\r\nc\u0085d\u2028e\u2029f"),
              QStringLiteral("a␊b␍␊c\uFFFDd\uFFFDe\uFFFDf"));
}

TEST(OneLineText, WhatTurnsTextRoundIsReplacedAndNothingBesideIt)
{
    for (char16_t character = 0x2020; character < 0x2080; ++character) {
        const bool turns = (character >= 0x202A && character <= 0x202E) ||
                           (character >= 0x2066 && character <= 0x2069);
        const bool endsLine = character == 0x2028 || character == 0x2029;
        const QString shown = oneLineText(QString(QChar(character)));
        EXPECT_EQ(shown.front().unicode(), turns || endsLine ? 0xFFFD : character)
            << int{character};
    }
}

TEST(OneLineText, Latin1ControlsOfWhichSomeDriveTerminalsAreReplaced)
{
    for (char16_t character = 0x80; character < 0xA0; ++character) {
        EXPECT_EQ(oneLineText(QString(QChar(character))), QString(QChar(0xFFFD))) << int{character};
    }
    EXPECT_EQ(oneLineText(u"\u00A0"), QString(QChar(0xA0)));
}

} // namespace quillon

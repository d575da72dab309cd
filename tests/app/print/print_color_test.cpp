// SPDX-License-Identifier: MIT
#include "app/print/ansi_palette.h"
#include "app/print/color_choice.h"
#include "app/print/terminal_color.h"
#include "tests/app/print/print_words.h"
#include "tests/app/print/pseudo_terminal.h"
#include "tests/app/print/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {

namespace {

const QString kAlways = QStringLiteral("--color=always");
const QuillonProcess::Environment kTrueColor{
    {QStringLiteral("COLORTERM"), QStringLiteral("truecolor")}};

QByteArray printedOnTerminal(const QStringList& arguments,
                             const QuillonProcess::Environment& environment = {})
{
    PseudoTerminal terminal;
    QuillonProcess quillon(QStringList{kPrint} + arguments, environment);
    quillon.process().setStandardOutputFile(terminal.name(), QIODevice::Append);
    EXPECT_EQ(quillon.run(), 0);
    return terminal.screen();
}

class PrintColor : public testing::Test {
protected:
    QByteArray printed(const QStringList& options, const QByteArray& log,
                       const QuillonProcess::Environment& environment = {})
    {
        QuillonProcess quillon(
            QStringList{kPrint} + options + QStringList{m_folder.write(kLog, log)}, environment);
        EXPECT_EQ(quillon.run(), 0);
        return quillon.output();
    }

    const TemporaryFolder m_folder;
};

} // namespace

TEST_F(PrintColor, APipeGetsNoColours)
{
    EXPECT_EQ(printed({}, "PHP Warning: x\n"), QByteArray("1\tPHP Warning: x\n"));
}

TEST_F(PrintColor, ATerminalGetsColours)
{
    EXPECT_EQ(printedOnTerminal({m_folder.write(kLog, "PHP Warning: x\n")}),
              QByteArray("\x1B[90m1\x1B[0;38;5;208m\tPHP Warning: x\x1B[0m\r\n"));
}

TEST_F(PrintColor, ATerminalGetsNoColoursWhereTheUserWantsNone)
{
    const QString path = m_folder.write(kLog, "PHP Warning: x\n");
    const QByteArray plain("1\tPHP Warning: x\r\n");
    EXPECT_EQ(printedOnTerminal({QStringLiteral("--color=never"), path}), plain);
    EXPECT_EQ(printedOnTerminal({path}, {{QStringLiteral("NO_COLOR"), QStringLiteral("1")}}),
              plain);
    EXPECT_EQ(printedOnTerminal({path}, {{QStringLiteral("TERM"), QStringLiteral("dumb")}}), plain);
}

TEST_F(PrintColor, AlwaysColoursAPipeToo)
{
    EXPECT_EQ(printed({kAlways}, "PHP Warning: x\n"),
              QByteArray("\x1B[90m1\x1B[0;38;5;208m\tPHP Warning: x\x1B[0m\n"));
}

TEST_F(PrintColor, ColoursAreExactWhereTheTerminalHasThemAll)
{
    EXPECT_EQ(printed({kAlways}, "PHP Warning: x\n", kTrueColor),
              QByteArray("\x1B[90m1\x1B[0;38;2;255;149;0m\tPHP Warning: x\x1B[0m\n"));
}

TEST_F(PrintColor, TheTimeOfDayIsBold)
{
    EXPECT_EQ(printed({kAlways}, "[05-Mar-2024 10:15:42 UTC] x\n", kTrueColor),
              QByteArray("\x1B[90m1\x1B[0m\t\x1B[38;2;10;132;255m[05-Mar-2024 "
                         "\x1B[0;1;38;2;10;132;255m10:15:42"
                         "\x1B[0;38;2;10;132;255m UTC]\x1B[0m x\n"));
}

TEST_F(PrintColor, ASearchMatchIsReversed)
{
    EXPECT_EQ(printed({kAlways, QStringLiteral("--query=b")}, "abc\n"),
              QByteArray("\x1B[90m1\x1B[0m\ta\x1B[7mb\x1B[0mc\n"));
}

TEST_F(PrintColor, ALineOfUnknownSeverityHasTheTerminalsOwnTextColour)
{
    EXPECT_EQ(printed({kAlways}, "x\n"), QByteArray("\x1B[90m1\x1B[0m\tx\n"));
}

TEST_F(PrintColor, ALogCannotDriveTheTerminal)
{
    const QString path = m_folder.write(kLog, bytesOf("a\tb\x1B[2J\0\a\x7F\xC2\x9B"
                                                      "31m\n"));
    EXPECT_EQ(printedOnTerminal({QStringLiteral("--color=never"), path}),
              QByteArray("1\ta\tb␛[2J␀␇␡\uFFFD31m\r\n"));
}

TEST_F(PrintColor, ALineCannotTurnRoundWhatIsShownAfterItOrBeforeIt)
{
    QByteArray log;
    QByteArray shown;
    for (const char* const control : {"\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066",
                                      "\u2067", "\u2068", "\u2069"}) {
        log += QByteArray("a") + control + "b";
        shown += "a\uFFFDb";
    }
    const QString path = m_folder.write(kLog, log);
    const QString never = QStringLiteral("--color=never");
    EXPECT_EQ(printedOnTerminal({never, path}), "1\t" + shown + "\r\n");
    EXPECT_TRUE(printedOnTerminal({kAlways, path}).contains("\t" + shown + "\r\n"));
    EXPECT_EQ(printed({}, log), "1\t" + log + '\n') << "a pipe gets bytes as they are";
    const QByteArray json = printed({QStringLiteral("--json"), QStringLiteral("--no-runs")}, log);
    EXPECT_TRUE(json.contains("\"a\\u202aba\\u202bb"));
    EXPECT_TRUE(json.contains("a\\u2069b\""));
    EXPECT_FALSE(json.contains('\xE2'));
}

TEST_F(PrintColor, ATerminalOfSixteenColoursGetsThose)
{
    const QString path = m_folder.write(kLog, "PHP Warning: x\n");
    EXPECT_EQ(printedOnTerminal({path}, {{QStringLiteral("TERM"), QStringLiteral("linux")}}),
              QByteArray("\x1B[90m1\x1B[0;33m\tPHP Warning: x\x1B[0m\r\n"));
}

TEST_F(PrintColor, ColoursCanBeForcedByTheEnvironment)
{
    EXPECT_EQ(
        printed({}, "PHP Warning: x\n", {{QStringLiteral("CLICOLOR_FORCE"), QStringLiteral("1")}}),
        QByteArray("\x1B[90m1\x1B[0;38;5;208m\tPHP Warning: x\x1B[0m\n"));
}

TEST_F(PrintColor, ATerminalGetsJsonThatCannotDriveIt)
{
    const QString path = m_folder.write(kLog, "\x1B[2J\n");
    const QByteArray screen = printedOnTerminal({QStringLiteral("--json"), path});
    EXPECT_TRUE(screen.contains("\\u001b[2J"));
    EXPECT_FALSE(screen.contains('\x1B'));
}

TEST(TerminalColor, TheNearestPaletteEntryIsFoundInCubeAndGrays)
{
    EXPECT_EQ(nearestPaletteEntry(255, 0, 0), 196);
    EXPECT_EQ(nearestPaletteEntry(0, 0, 0), 16);
    EXPECT_EQ(nearestPaletteEntry(255, 255, 255), 231);
    EXPECT_EQ(nearestPaletteEntry(0x8E, 0x8E, 0x93), 246);
    EXPECT_EQ(nearestPaletteEntry(8, 8, 8), 232);
    EXPECT_EQ(nearestPaletteEntry(238, 238, 238), 255);
}

TEST(TerminalColor, NoPaletteEntryIsNearerThanTheOneChosen)
{
    const auto entryColor = [](int entry) -> std::array<int, 3> {
        if (entry >= 232) {
            const int level = 8 + 10 * (entry - 232);
            return {level, level, level};
        }
        const auto step = [](int i) {
            return i == 0 ? 0 : 55 + 40 * i;
        };
        const int index = entry - 16;
        return {step(index / 36), step(index / 6 % 6), step(index % 6)};
    };
    for (int red = 0; red < 256; red += 15) {
        for (int green = 0; green < 256; green += 15) {
            for (int blue = 0; blue < 256; blue += 15) {
                const auto distance = [&](int entry) {
                    const auto color = entryColor(entry);
                    const int r = color[0] - red;
                    const int g = color[1] - green;
                    const int b = color[2] - blue;
                    return r * r + g * g + b * b;
                };
                int best = distance(16);
                for (int entry = 17; entry < 256; ++entry) {
                    best = std::min(best, distance(entry));
                }
                ASSERT_EQ(distance(nearestPaletteEntry(red, green, blue)), best);
            }
        }
    }
}

TEST(TerminalColor, TheTerminalsNameAndColortermTellHowManyColoursItHas)
{
    EXPECT_EQ(colorDepthOf("truecolor", "xterm"), ColorDepth::TrueColor);
    EXPECT_EQ(colorDepthOf("24bit", QByteArray()), ColorDepth::TrueColor);
    EXPECT_EQ(colorDepthOf(QByteArray(), "xterm-direct"), ColorDepth::TrueColor);
    EXPECT_EQ(colorDepthOf("yes", "tmux-256color"), ColorDepth::Indexed256);
    for (const char* const term : {"linux", "vt220", "xterm", "screen", ""}) {
        EXPECT_EQ(colorDepthOf(QByteArray(), term), ColorDepth::Ansi16) << term;
    }
}

TEST(TerminalColor, TheSixteenColoursAreChosenByHue)
{
    EXPECT_EQ(nearestAnsiForeground(0xFF, 0x3B, 0x30), 91); // red
    EXPECT_EQ(nearestAnsiForeground(0xFF, 0x95, 0x00), 33); // orange
    EXPECT_EQ(nearestAnsiForeground(0xFF, 0xD6, 0x0A), 93); // yellow
    EXPECT_EQ(nearestAnsiForeground(0x0A, 0x84, 0xFF), 94); // sky blue
    EXPECT_EQ(nearestAnsiForeground(0xBF, 0x5A, 0xF2), 35); // violet
    EXPECT_EQ(nearestAnsiForeground(0x8E, 0x8E, 0x93), 90); // gray
    EXPECT_EQ(nearestAnsiForeground(255, 0, 10), 91);       // just before the circle closes
    EXPECT_EQ(nearestAnsiForeground(0, 255, 0), 92);
    EXPECT_EQ(nearestAnsiForeground(0, 200, 210), 36);
    EXPECT_EQ(nearestAnsiForeground(0, 0, 0), 30);
    EXPECT_EQ(nearestAnsiForeground(255, 255, 255), 97);
}

TEST(ColorChoice, WhatTheCommandLineSaysCountsBeforeTheEnvironment)
{
    const ColorEnvironment none{.noColor = "1", .clicolorForce = {}, .colorTerm = {}, .term = {}};
    EXPECT_EQ(chooseColors(ColorWhen::Always, false, none), ColorDepth::Ansi16);
    const ColorEnvironment forced{
        .noColor = {}, .clicolorForce = "1", .colorTerm = {}, .term = "xterm-256color"};
    EXPECT_EQ(chooseColors(ColorWhen::Never, true, forced), std::nullopt);
}

TEST(ColorChoice, ColoursAreForcedIntoAPipe)
{
    ColorEnvironment environment{
        .noColor = {}, .clicolorForce = "1", .colorTerm = {}, .term = "xterm-256color"};
    EXPECT_EQ(chooseColors(ColorWhen::Auto, false, environment), ColorDepth::Indexed256);
    environment.clicolorForce = "0";
    EXPECT_EQ(chooseColors(ColorWhen::Auto, false, environment), std::nullopt);
    environment.clicolorForce = "1";
    environment.noColor = "1";
    EXPECT_EQ(chooseColors(ColorWhen::Auto, false, environment), std::nullopt);
}

TEST(ColorChoice, ATerminalHasColoursUnlessItIsDumbOrUnknown)
{
    ColorEnvironment environment{.noColor = {}, .clicolorForce = {}, .colorTerm = {}, .term = {}};
    EXPECT_EQ(chooseColors(ColorWhen::Auto, true, environment), std::nullopt);
    environment.term = "dumb";
    EXPECT_EQ(chooseColors(ColorWhen::Auto, true, environment), std::nullopt);
    environment.term = "linux";
    EXPECT_EQ(chooseColors(ColorWhen::Auto, true, environment), ColorDepth::Ansi16);
}

} // namespace quillon

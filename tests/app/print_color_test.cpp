// SPDX-License-Identifier: MIT
#include "app/terminal_color.h"
#include "tests/app/quillon_process.h"
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

namespace quillon {

namespace {

const QString kLog = QStringLiteral("debug.log");
const QString kPrint = QStringLiteral("--print");
const QString kAlways = QStringLiteral("--color=always");
const QuillonProcess::Environment kTrueColor{
    {QStringLiteral("COLORTERM"), QStringLiteral("truecolor")}};

// A terminal that somebody would sit at; what is written to it can be read.
class PseudoTerminal {
public:
    PseudoTerminal()
    {
        std::array<char, 128> name{};
        if (::openpty(&m_ours, &m_theirs, name.data(), nullptr, nullptr) != 0) {
            ADD_FAILURE() << "no pseudo-terminal";
            return;
        }
        m_name = QString::fromLocal8Bit(name.data());
        ::fcntl(m_ours, F_SETFL, O_NONBLOCK);
    }
    ~PseudoTerminal()
    {
        ::close(m_ours);
        ::close(m_theirs);
    }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    [[nodiscard]] const QString& name() const { return m_name; }
    // Everything written to it so far, with the line ends that a terminal makes.
    QByteArray screen()
    {
        std::array<char, 4096> bytes{};
        for (ssize_t count = 0; (count = ::read(m_ours, bytes.data(), bytes.size())) > 0;) {
            m_screen.append(bytes.data(), count);
        }
        return m_screen;
    }

private:
    int m_ours = -1;
    int m_theirs = -1;
    QString m_name;
    QByteArray m_screen;
};

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

TEST(TerminalColor, BothNamesForManyColoursAreKnown)
{
    EXPECT_EQ(colorDepthOf("truecolor"), ColorDepth::TrueColor);
    EXPECT_EQ(colorDepthOf("24bit"), ColorDepth::TrueColor);
    EXPECT_EQ(colorDepthOf("yes"), ColorDepth::Indexed256);
    EXPECT_EQ(colorDepthOf(QByteArray()), ColorDepth::Indexed256);
}

} // namespace quillon

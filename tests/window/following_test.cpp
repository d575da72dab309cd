// SPDX-License-Identifier: MIT
#include "tests/support/helper_process.h"
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

#include <chrono>

namespace quillon {
namespace {

using namespace std::chrono_literals;

// Long enough for three polls.
constexpr auto kSeveralPolls = 1600ms;

const QString kFollow = QStringLiteral("--follow");

class Following : public WindowTest {
protected:
    // Another process opens the log, writes to its end and closes it, as PHP does for each line.
    void writeFromOutside(const QString& line)
    {
        outputOf(QStringLiteral("/bin/sh"),
                 {QStringLiteral("-c"), QStringLiteral("printf '%s\\n' \"$1\" >>\"$2\""),
                  QStringLiteral("sh"), line, folder().path(kLog)},
                 desktop().environment());
    }
};

TEST_F(Following, RowsThatAnotherProcessWritesArriveInTheWindow)
{
    startWithLog("PHP Notice:  a\n", {kFollow});
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n"));
    writeFromOutside(QStringLiteral("PHP Warning:  b"));
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n2\tPHP Warning:  b\n"));
    writeFromOutside(QStringLiteral("PHP Fatal error:  c"));
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n2\tPHP Warning:  b\n3\tPHP Fatal error:  c\n"));
}

TEST_F(Following, RowsOfAWriterThatKeepsTheLogOpenArriveInTheWindow)
{
    startWithLog("a\n", {kFollow});
    awaitRows(QStringLiteral("1\ta\n"));
    HelperProcess writer(QStringLiteral("/bin/sh"),
                         {QStringLiteral("-c"), QStringLiteral("exec cat >>\"$1\""),
                          QStringLiteral("sh"), folder().path(kLog)},
                         desktop().environment());
    writer.writeLine("b");
    awaitRows(QStringLiteral("1\ta\n2\tb\n"));
    writer.writeLine("c");
    awaitRows(QStringLiteral("1\ta\n2\tb\n3\tc\n"));
}

TEST_F(Following, RowsThatArriveShowInTheWindowsPixels)
{
    QuillonProcess& quillon = startWithLog("first\n", {kFollow});
    quillon.writeSettings("[General]\nprefs.color.warning=#00C8FF\n");
    const auto bluePixels = [] {
        return pixelsOfColor(desktop().picture(desktop().windowTitled(kLogTitle)),
                             QColor(0, 0xC8, 0xFF));
    };
    awaitRows(QStringLiteral("1\tfirst\n"));
    EXPECT_EQ(bluePixels(), 0);
    writeFromOutside(QStringLiteral("PHP Warning:  lllllllllllll"));
    EXPECT_TRUE(spinUntil([&] { return bluePixels() > 10; }));
}

TEST_F(Following, ClosingTheLastWindowEndsTheProgram)
{
    QuillonProcess& quillon = startWithLog("a\n", {kFollow});
    closeByWindowManager(kLogTitle);
    EXPECT_EQ(quillon.wait(), 0);
}

TEST_F(Following, CtrlQEndsTheProgramWhateverIsOpen)
{
    QuillonProcess& quillon = startWithLog("a\n");
    desktop().press(QStringLiteral("F1"));
    awaitActive(kHelpTitle);
    bringForward(kLogTitle);
    desktop().press(QStringLiteral("ctrl+q"));
    EXPECT_EQ(quillon.wait(), 0);
}

TEST_F(Following, ClosingTheMainWindowStopsReadingAndLeavesTheFollowToggleOn)
{
    startWithLog("a\n", {kFollow});
    awaitRows(QStringLiteral("1\ta\n"));
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    bringForward(kLogTitle);
    closeByWindowManager(kLogTitle);
    awaitWindows({kPreferencesTitle});
    writeFromOutside(QStringLiteral("b"));
    spinFor(kSeveralPolls);

    QuillonProcess second({}, desktop().variables());
    EXPECT_EQ(second.run(), 0);
    awaitActive(kLogTitle);
    EXPECT_EQ(rows(), QStringLiteral("1\ta\n"));
    awaitToggle(QStringLiteral("Suivre en direct (tail)"), true);
}

} // namespace
} // namespace quillon

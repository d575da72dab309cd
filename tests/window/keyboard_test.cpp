// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

namespace quillon {
namespace {

class Keyboard : public WindowTest {
protected:
    // What the keys before it opened is on the screen before what this opens.
    void openHelp()
    {
        desktop().press(QStringLiteral("F1"));
        awaitActive(kHelpTitle);
    }
};

TEST_F(Keyboard, CtrlOOpensExactlyOneDialogPerPressAlsoWithoutALog)
{
    start({}, kEmptyTitle);
    for (int press = 0; press < 2; ++press) {
        desktop().press(QStringLiteral("ctrl+o"));
        awaitActive(kOpenTitle);
        awaitWindows({kEmptyTitle, kOpenTitle});
        desktop().press(QStringLiteral("Escape"));
        awaitActive(kEmptyTitle);
    }
    openHelp();
    awaitWindows({kEmptyTitle, kHelpTitle});
}

TEST_F(Keyboard, CtrlOOpensTheFileThatIsTypedIntoTheDialog)
{
    const QString path = folder().write(kLog, "PHP Notice:  a\n");
    start({}, kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    desktop().type(path);
    desktop().press(QStringLiteral("Return"));
    awaitActive(kLogTitle);
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n"));
}

TEST_F(Keyboard, CtrlNDoesNothing)
{
    start({}, kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+n"));
    openHelp();
    awaitWindows({kEmptyTitle, kHelpTitle});
}

TEST_F(Keyboard, F1AndCtrlQuestionMarkShowTheSameOneHelpWindow)
{
    start({}, kEmptyTitle);
    openHelp();
    const QString help = desktop().windowTitled(kHelpTitle);
    bringForward(kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+question"));
    awaitActive(kHelpTitle);
    awaitWindows({kEmptyTitle, kHelpTitle});
    EXPECT_EQ(desktop().windowTitled(kHelpTitle), help);
}

TEST_F(Keyboard, AHelpWindowThatWasClosedComesBackInTheSizeThatItHad)
{
    start({}, kEmptyTitle);
    openHelp();
    const QSize wanted(700, 600);
    desktop().resize(desktop().windowTitled(kHelpTitle), wanted);
    const auto hasWantedSize = [&wanted] {
        return desktop().size(desktop().windowTitled(kHelpTitle)) == wanted;
    };
    ASSERT_TRUE(spinUntil(hasWantedSize));
    desktop().press(QStringLiteral("Escape"));
    awaitWindows({kEmptyTitle});
    openHelp();
    EXPECT_TRUE(spinUntil(hasWantedSize));
}

TEST_F(Keyboard, ShortcutsOfTheMenuWorkInTheOtherWindows)
{
    startWithLog("a\n");
    openHelp();
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    desktop().press(QStringLiteral("Escape"));
    awaitActive(kLogTitle);
    bringForward(kHelpTitle);
    desktop().press(QStringLiteral("ctrl+f"));
    awaitActive(kLogTitle);
    EXPECT_TRUE(spinUntil([this] {
        return element(mainWindow(), QStringLiteral("text"), QStringLiteral("Recherche"))
            .is("focused");
    }));
}

TEST_F(Keyboard, ShortcutsOfTheMenuWorkInTheOtherWindowsWhileTheMainWindowIsClosed)
{
    QuillonProcess& quillon = startWithLog("a\n");
    openHelp();
    bringForward(kLogTitle);
    desktop().press(QStringLiteral("ctrl+w"));
    awaitWindows({kHelpTitle});
    awaitActive(kHelpTitle);
    desktop().press(QStringLiteral("ctrl+o"));
    awaitActive(kOpenTitle);
    awaitWindows({kLogTitle, kHelpTitle, kOpenTitle});
    desktop().press(QStringLiteral("Escape"));
    awaitActive(kLogTitle);
    bringForward(kHelpTitle);
    desktop().press(QStringLiteral("ctrl+q"));
    EXPECT_EQ(quillon.wait(), 0);
}

TEST_F(Keyboard, CtrlCommaOpensThePreferencesOnce)
{
    start({}, kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    bringForward(kEmptyTitle);
    desktop().press(QStringLiteral("ctrl+comma"));
    awaitActive(kPreferencesTitle);
    awaitWindows({kEmptyTitle, kPreferencesTitle});
}

TEST_F(Keyboard, CtrlFGoesToTheSearchFieldAndEscapeEmptiesIt)
{
    const QString all = QStringLiteral("1\tPHP Notice:  a\n2\tPHP Fatal error:  b\n");
    startWithLog("PHP Notice:  a\nPHP Fatal error:  b\n");
    awaitRows(all);
    desktop().press(QStringLiteral("ctrl+f"));
    desktop().type(QStringLiteral("fatal"));
    awaitRows(QStringLiteral("2\tPHP Fatal error:  b\n"));
    desktop().press(QStringLiteral("Escape"));
    awaitRows(all);
    EXPECT_EQ(element(mainWindow(), QStringLiteral("text"), QStringLiteral("Recherche")).text,
              QString());
}

TEST_F(Keyboard, CtrlASelectsTheLogAndCtrlCCopiesIt)
{
    startWithLog("PHP Notice:  a\n");
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n"));
    desktop().press(QStringLiteral("ctrl+a"));
    desktop().press(QStringLiteral("ctrl+c"));
    EXPECT_TRUE(
        spinUntil([] { return desktop().clipboard() == QStringLiteral("1\tPHP Notice:  a\n"); }));
}

TEST_F(Keyboard, SelectingTheLogMakesItWhatTheMiddleButtonPastes)
{
    startWithLog("PHP Notice:  a\n");
    awaitRows(QStringLiteral("1\tPHP Notice:  a\n"));
    desktop().press(QStringLiteral("ctrl+a"));
    EXPECT_TRUE(spinUntil(
        [] { return desktop().primarySelection() == QStringLiteral("1\tPHP Notice:  a\n"); }));
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "model/log_view_model.h"
#include "tests/support/spin_until.h"
#include "tests/support/temporary_defaults.h"
#include "ui/windows/main_window.h"
#include "ui/windows/window_state_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScreen>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class MainWindowTest : public testing::Test {
protected:
    // Shows a window that remembers, does something to it and closes it.
    void run(const std::function<void(MainWindow&)>& action)
    {
        MainWindow window(viewModel, temporary.center, stateFile);
        window.show();
        ASSERT_TRUE(spinUntil([&] { return window.isActiveWindow(); }));
        action(window);
        window.close();
    }

    TemporaryDefaults temporary;
    LogViewModel viewModel{temporary.defaults, temporary.center};
    const QString stateFile = temporary.folder.path(QStringLiteral("state/window"));
};

TEST_F(MainWindowTest, OpensWithinTheUsableAreaOfItsScreen)
{
    run([&](MainWindow& window) {
        const QSize usable = window.screen()->availableSize();
        EXPECT_LE(window.width(), usable.width());
        EXPECT_LE(window.height(), usable.height());
    });
}

TEST_F(MainWindowTest, OpensAgainInTheSizeAndAtThePlaceThatItWasClosedWith)
{
    constexpr int kHeight = 610;
    const QPoint place(0, 70);
    run([&](MainWindow& window) {
        window.resize(window.width(), kHeight);
        window.move(place);
    });
    run([&](MainWindow& window) {
        EXPECT_EQ(window.height(), kHeight);
        EXPECT_EQ(window.pos(), place);
    });
}

TEST_F(MainWindowTest, OpensMaximisedAgainAndThenKeepsItsSizeForAfterwards)
{
    constexpr int kHeight = 610;
    run([&](MainWindow& window) {
        window.resize(window.width(), kHeight);
        ASSERT_TRUE(spinUntil([&] { return window.height() == kHeight; }));
        QCoreApplication::processEvents();
        window.showMaximized();
        ASSERT_TRUE(spinUntil([&] { return window.isMaximized(); }));
    });
    run([&](MainWindow& window) {
        EXPECT_TRUE(window.isMaximized());
        EXPECT_GT(window.height(), kHeight);
    });
    const auto kept = readWindowState(stateFile);
    ASSERT_TRUE(kept.has_value());
    EXPECT_TRUE(kept->isMaximised);
    EXPECT_EQ(kept->size.height(), kHeight);
}

TEST_F(MainWindowTest, ARememberedSizeThatIsTooLargeIsCutToTheScreen)
{
    ASSERT_TRUE(writeWindowState(stateFile, {QPoint(-3000, 9000), QSize(9000, 8000), false}));
    run([&](MainWindow& window) {
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()));
    });
}

TEST_F(MainWindowTest, ADamagedMemoryIsNoError)
{
    temporary.folder.write(QStringLiteral("damaged"), "size=what");
    MainWindow window(viewModel, temporary.center,
                      temporary.folder.path(QStringLiteral("damaged")));
    window.show();
    EXPECT_GT(window.width(), 500);
}

TEST_F(MainWindowTest, WithoutAFileItRemembersNothing)
{
    MainWindow window(viewModel, temporary.center);
    window.show();
    window.close();
    EXPECT_FALSE(QFileInfo::exists(stateFile));
}

} // namespace
} // namespace quillon

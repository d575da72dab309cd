// SPDX-License-Identifier: MIT
#include "tests/support/printing.h"
#include "tests/support/spin_until.h"
#include "ui/windows/help_view.h"
#include "ui/windows/help_window.h"

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace quillon {
namespace {

class HelpWindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        HelpWindow::show();
        ASSERT_TRUE(spinUntil([] { return window().isActiveWindow(); }));
    }
    void TearDown() override { window().close(); }

    static QWidget& window() { return *HelpWindow::window(); }
    static QScrollBar& scrollBar() { return *window().findChild<HelpView*>()->verticalScrollBar(); }
};

int visibleHelpWindows()
{
    const auto windows = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(windows.begin(), windows.end(), [](QWidget* window) {
        return window->isVisible() && window->findChild<HelpView*>() != nullptr;
    }));
}

TEST_F(HelpWindowTest, ChoosingTheCommandTwiceOpensOneWindow)
{
    const QWidget* const first = HelpWindow::window();
    HelpWindow::show();
    EXPECT_EQ(HelpWindow::window(), first);
    EXPECT_EQ(visibleHelpWindows(), 1);
}

TEST_F(HelpWindowTest, TheSecondTimeTheWindowComesToTheFront)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(spinUntil([&other] { return other.isActiveWindow(); }));
    HelpWindow::show();
    EXPECT_TRUE(spinUntil([] { return window().isActiveWindow(); }));
}

TEST_F(HelpWindowTest, ClosingAndChoosingTheCommandAgainShowsTheSameWindow)
{
    const QWidget* const first = HelpWindow::window();
    window().close();
    EXPECT_FALSE(window().isVisible());
    HelpWindow::show();
    EXPECT_EQ(HelpWindow::window(), first);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(HelpWindowTest, ComesBackAtThePlaceAndSizeItHad)
{
    window().setGeometry(70, 60, 600, 450);
    QApplication::processEvents();
    const QRect before = window().geometry();
    window().close();
    HelpWindow::show();
    QApplication::processEvents();
    EXPECT_EQ(window().geometry(), before);
}

TEST_F(HelpWindowTest, ComesBackAtTheScrollPositionItHad)
{
    auto* const content = window().findChild<HelpView*>()->widget();
    const int natural = content->minimumHeight();
    content->setMinimumHeight(2000);
    ASSERT_TRUE(spinUntil([] { return scrollBar().maximum() > 300; }));
    scrollBar().setValue(250);
    window().close();
    HelpWindow::show();
    QApplication::processEvents();
    EXPECT_EQ(scrollBar().value(), 250);
    content->setMinimumHeight(natural);
}

TEST_F(HelpWindowTest, AMinimisedWindowComesBack)
{
    window().showMinimized();
    QApplication::processEvents();
    HelpWindow::show();
    EXPECT_FALSE(window().isMinimized());
    EXPECT_TRUE(window().isVisible());
}

TEST_F(HelpWindowTest, CannotShrinkBelow560By420Points)
{
    window().resize(100, 100);
    EXPECT_EQ(window().size(), QSize(560, 420));
    EXPECT_EQ(window().findChild<HelpView*>()->size(), QSize(560, 420));
}

TEST_F(HelpWindowTest, CanBeEnlarged)
{
    window().resize(900, 700);
    EXPECT_EQ(window().size(), QSize(900, 700));
    QApplication::processEvents();
    EXPECT_EQ(window().findChild<HelpView*>()->size(), QSize(900, 700));
}

TEST_F(HelpWindowTest, TheTitleHasNoDashWhileTheHeadingHas)
{
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Aide Quillon"));
    EXPECT_EQ(window().findChild<QLabel*>()->text(), QStringLiteral("Aide — Quillon"));
}

TEST_F(HelpWindowTest, EscapeClosesIt)
{
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(HelpWindowTest, ControlWClosesIt)
{
    QTest::keyClick(&window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().isVisible());
}

} // namespace
} // namespace quillon

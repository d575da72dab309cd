// SPDX-License-Identifier: MIT
#include "tests/support/spin_until.h"
#include "tests/window/window_fixture.h"

#include <chrono>
#include <cmath>

namespace quillon {
namespace {

const QString kStateFolder = QStringLiteral("XDG_STATE_HOME");

class Placement : public WindowTest {
protected:
    // Ends the program and starts it anew with the memory that it has left.
    void restart()
    {
        QuillonProcess& before = running();
        desktop().press(QStringLiteral("ctrl+q"));
        ASSERT_EQ(before.wait(), 0) << before.errors().toStdString();
        program({}, {{kStateFolder, before.configuration().path(QString())}}).start();
        awaitActive(kEmptyTitle);
    }
    [[nodiscard]] static QString mainWindowId() { return desktop().windowTitled(kEmptyTitle); }
    [[nodiscard]] static QRect place() { return desktop().geometry(mainWindowId()); }
    [[nodiscard]] static bool isMaximised() { return place().width() >= 1390; }
    // A double click is lost when it comes while the window manager moves the focus.
    [[nodiscard]] static bool toggleMaximised()
    {
        const bool before = isMaximised();
        const auto isToggled = [before] {
            return isMaximised() != before;
        };
        for (int attempt = 0; attempt < 10 && !isToggled(); ++attempt) {
            desktop().maximise(mainWindowId());
            static_cast<void>(spinUntil(isToggled, std::chrono::seconds(2)));
        }
        return isToggled();
    }
};

TEST_F(Placement, TheWindowComesBackInTheSizeAndAtThePlaceThatItWasClosedWith)
{
    start({}, kEmptyTitle);
    desktop().resize(mainWindowId(), QSize(900, 640));
    desktop().move(mainWindowId(), QPoint(310, 120));
    ASSERT_TRUE(
        spinUntil([] { return place().size() == QSize(900, 640) && place().topLeft().x() > 300; }));
    const QRect before = place();
    restart();
    EXPECT_TRUE(spinUntil([&before] { return place() == before; }));
}

TEST_F(Placement, AMaximisedWindowComesBackMaximised)
{
    start({}, kEmptyTitle);
    ASSERT_TRUE(toggleMaximised());
    restart();
    EXPECT_TRUE(spinUntil([] { return isMaximised(); }));
    ASSERT_TRUE(toggleMaximised());
    EXPECT_TRUE(spinUntil([] { return place().size().width() == 1080; }));
}

struct SmallScreen {
    const char* name;
    QSize pixels;
    const char* scale;
};

class PlacementOnASmallScreen : public testing::TestWithParam<SmallScreen> {};

INSTANTIATE_TEST_SUITE_P(Placement, PlacementOnASmallScreen,
                         testing::Values(SmallScreen{"OldLaptop", {1280, 800}, "1"},
                                         SmallScreen{"Netbook", {1024, 600}, "1"},
                                         SmallScreen{"FullHdAt150Percent", {1920, 1080}, "1.5"}),
                         [](const auto& instance) { return instance.param.name; });

TEST_P(PlacementOnASmallScreen, TheWindowFitsWithItsFrameAndKeepsItsContentsMinimum)
{
    const auto& [name, pixels, scale] = GetParam();
    const Desktop small(pixels);
    auto variables = small.variables();
    variables.append({QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(scale)});
    QuillonProcess quillon({}, variables);
    quillon.start();
    ASSERT_TRUE(spinUntil([&small] { return small.activeTitle() == kEmptyTitle; }));
    const QString id = small.windowTitled(kEmptyTitle);
    ASSERT_TRUE(spinUntil([&] { return !small.outerSize(id).isEmpty(); }));
    EXPECT_LE(small.outerSize(id).width(), pixels.width());
    EXPECT_LE(small.outerSize(id).height(), pixels.height());
    const double factor = QString::fromLatin1(scale).toDouble();
    EXPECT_GE(small.size(id).width(), std::lround(820 * factor));
    EXPECT_GE(small.size(id).height(), std::lround(540 * factor));
}

} // namespace
} // namespace quillon

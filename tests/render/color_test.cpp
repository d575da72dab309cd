// SPDX-License-Identifier: MIT
#include "render/color.h"
#include "tests/support/printing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(Color, AFixedColorHasComponentsAndIsNoSystemColor)
{
    const Color color = Color::rgb(0.25, 0.5, 0.75);
    ASSERT_NE(color.components(), nullptr);
    EXPECT_EQ(*color.components(), (RgbComponents{0.25, 0.5, 0.75}));
    EXPECT_EQ(color.systemColor(), nullptr);
    EXPECT_EQ(color.alpha(), 1.0);
}

TEST(Color, ASystemColorHasNoComponents)
{
    const Color color = Color::system(SystemColor::Red, 0.5);
    EXPECT_EQ(color.components(), nullptr);
    ASSERT_NE(color.systemColor(), nullptr);
    EXPECT_EQ(*color.systemColor(), SystemColor::Red);
    EXPECT_EQ(color.alpha(), 0.5);
}

TEST(Color, AnotherAlphaMakesAnotherColor)
{
    const Color color = Color::system(SystemColor::Text);
    EXPECT_EQ(color.withAlpha(0.35), Color::system(SystemColor::Text, 0.35));
    EXPECT_NE(color.withAlpha(0.35), color);
}

TEST(Color, EverySystemColorHasItsName)
{
    const std::vector<std::pair<SystemColor, const char*>> names{
        {SystemColor::Text, "textColor"},
        {SystemColor::SecondaryLabel, "secondaryLabelColor"},
        {SystemColor::Label, "labelColor"},
        {SystemColor::TextBackground, "textBackgroundColor"},
        {SystemColor::ControlBackground, "controlBackgroundColor"},
        {SystemColor::SelectedTextBackground, "selectedTextBackgroundColor"},
        {SystemColor::Red, "systemRedColor"},
        {SystemColor::Orange, "systemOrangeColor"},
        {SystemColor::Yellow, "systemYellowColor"},
        {SystemColor::Blue, "systemBlueColor"},
        {SystemColor::Purple, "systemPurpleColor"},
        {SystemColor::Gray, "systemGrayColor"},
    };
    for (const auto& [color, name] : names) {
        EXPECT_EQ(systemColorName(color), QLatin1StringView(name)) << name;
    }
}

} // namespace
} // namespace quillon

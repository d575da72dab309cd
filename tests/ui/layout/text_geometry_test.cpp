// SPDX-License-Identifier: MIT
#include "ui/layout/text_geometry.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(TextGeometry, WrappingWithoutAWidthGivesAContainerOfWidthOne)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 0.0);
    EXPECT_EQ(geometry.container().width, 1.0);
    EXPECT_EQ(geometry.frame().width, 1.0);
}

TEST(TextGeometry, ANegativeClipWidthCountsAsOne)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, -20.0);
    EXPECT_EQ(geometry.container().width, 1.0);
}

TEST(TextGeometry, WrappingTakesTheClipsWidthAndNoLimitInHeight)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 640.0);
    EXPECT_EQ(geometry.container().width, 640.0);
    EXPECT_EQ(geometry.container().height, kUnlimited);
    EXPECT_TRUE(geometry.container().widthTracksTextView);
    EXPECT_FALSE(geometry.isHorizontallyResizable());
    EXPECT_EQ(geometry.frame().width, 640.0);
}

TEST(TextGeometry, WithoutWrappingTheContainerIsUnlimitedInBothDirections)
{
    TextGeometry geometry;
    geometry.applyWrapping(false, 640.0);
    EXPECT_EQ(geometry.container().width, kUnlimited);
    EXPECT_EQ(geometry.container().height, kUnlimited);
    EXPECT_FALSE(geometry.container().widthTracksTextView);
    EXPECT_TRUE(geometry.isHorizontallyResizable());
}

TEST(TextGeometry, TurningWrappingOffLeavesTheFrameUntilTheTextIsLaidOut)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 640.0);
    geometry.applyWrapping(false, 300.0);
    EXPECT_EQ(geometry.frame().width, 640.0);
    geometry.setContentSize(5000.0, 70.0);
    EXPECT_EQ(geometry.frame().width, 5000.0);
    EXPECT_EQ(geometry.frame().height, 70.0);
}

TEST(TextGeometry, AFrameThatDiffersFromTheClipByExactlyHalfAPointIsNotResized)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 400.0);
    geometry.applyWrapping(true, 400.5);
    EXPECT_EQ(geometry.container().width, 400.5);
    EXPECT_EQ(geometry.frame().width, 400.0);
    geometry.applyWrapping(true, 399.5);
    EXPECT_EQ(geometry.frame().width, 400.0);
}

TEST(TextGeometry, AFrameThatDiffersFromTheClipByMoreThanHalfAPointIsResized)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 400.0);
    geometry.applyWrapping(true, 400.51);
    EXPECT_EQ(geometry.frame().width, 400.51);
    geometry.applyWrapping(true, 400.0);
    EXPECT_EQ(geometry.frame().width, 400.0);
}

TEST(TextGeometry, ResizingTheFrameKeepsItsHeight)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 400.0);
    geometry.setContentSize(0.0, 1234.0);
    geometry.applyWrapping(true, 500.0);
    EXPECT_EQ(geometry.frame().height, 1234.0);
}

TEST(TextGeometry, WrappedContentDoesNotWidenTheFrame)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 400.0);
    geometry.setContentSize(9999.0, 50.0);
    EXPECT_EQ(geometry.frame().width, 400.0);
}

TEST(TextGeometry, TheInsetIs8By10AndThePadding6)
{
    EXPECT_EQ(kTextInsetWidth, 8.0);
    EXPECT_EQ(kTextInsetHeight, 10.0);
    EXPECT_EQ(TextGeometry().container().lineFragmentPadding, 6.0);
}

TEST(TextGeometry, LinesKeepClearOfInsetsAndPadding)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 400.0);
    EXPECT_EQ(geometry.lineWidth(), 400.0 - 2 * 8 - 2 * 6);
}

TEST(TextGeometry, LinesAreNeverNarrowerThanOnePoint)
{
    TextGeometry geometry;
    geometry.applyWrapping(true, 10.0);
    EXPECT_EQ(geometry.lineWidth(), 1.0);
}

} // namespace
} // namespace quillon

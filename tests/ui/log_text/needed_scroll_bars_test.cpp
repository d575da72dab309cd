// SPDX-License-Identifier: MIT
#include "ui/log_text/needed_scroll_bars.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr ScrollRoom kRoom{QSizeF(100, 50), 10, 8};

struct NeededBars {
    const char* reason;
    QSizeF content;
    ScrollBars needed;
};

TEST(NeededScrollBars, AreThoseThatTheContentIsTooLargeFor)
{
    for (const NeededBars& expected :
         {NeededBars{"nothing to show", {0, 0}, {false, false}},
          NeededBars{"as large as the area", {100, 50}, {false, false}},
          NeededBars{"higher", {90, 50.5}, {true, false}},
          NeededBars{"wider", {100.5, 42}, {false, true}},
          NeededBars{"both", {200, 200}, {true, true}},
          NeededBars{"higher, and as wide as the area without its bar", {91, 51}, {true, true}},
          NeededBars{"wider, and as high as the area without its bar", {101, 43}, {true, true}}}) {
        EXPECT_EQ(neededScrollBars(expected.content, kRoom), expected.needed) << expected.reason;
    }
}

TEST(NeededScrollBars, LeaveWhatTheyDoNotCover)
{
    EXPECT_EQ(kRoom.clipBeside({false, false}), QSizeF(100, 50));
    EXPECT_EQ(kRoom.clipBeside({true, false}), QSizeF(90, 50));
    EXPECT_EQ(kRoom.clipBeside({false, true}), QSizeF(100, 42));
    EXPECT_EQ(kRoom.clipBeside({true, true}), QSizeF(90, 42));
}

TEST(NeededScrollBars, LeaveNothingOfAnAreaSmallerThanTheyAre)
{
    constexpr ScrollRoom kTiny{QSizeF(5, 4), 10, 8};
    EXPECT_EQ(kTiny.clipBeside({true, true}), QSizeF(0, 0));
}

// However large the content, no other answer is right: the bars that are there are needed beside
// each other, and those that are not are not.
TEST(NeededScrollBars, AreRightBesideEachOther)
{
    for (int width = 0; width <= 120; ++width) {
        for (int height = 0; height <= 60; ++height) {
            const QSizeF content(width, height);
            const ScrollBars bars = neededScrollBars(content, kRoom);
            const QSizeF clip = kRoom.clipBeside(bars);
            EXPECT_EQ(bars.isVertical, height > clip.height()) << width << ' ' << height;
            EXPECT_EQ(bars.isHorizontal, width > clip.width()) << width << ' ' << height;
        }
    }
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "ui/windows/window_placement.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr QSize kWanted(1080, 720);

TEST(WindowPlacement, IsNeverLargerThanTheScreenHasRoomFor)
{
    for (const QSize usable : {QSize(1280, 800), QSize(1280, 720), QSize(1024, 600),
                               QSize(1920, 1080), QSize(640, 480), QSize(1, 1)}) {
        const WindowPlacement fitted =
            fittedTo({QPoint(0, 0), kWanted, false}, QRect(QPoint(0, 0), usable));
        EXPECT_LE(fitted.size.width(), usable.width());
        EXPECT_LE(fitted.size.height(), usable.height());
        EXPECT_FALSE(fitted.size.isEmpty());
    }
}

TEST(WindowPlacement, LeavesRoomForATitleBar)
{
    EXPECT_LE(roomFor(QSize(1280, 720)).height(), 720 - 40);
    EXPECT_GE(roomFor(QSize(1024, 600)).height(), 550);
}

TEST(WindowPlacement, StaysAsItIsWhereItFits)
{
    const WindowPlacement placement{QPoint(300, 200), kWanted, true};
    EXPECT_EQ(fittedTo(placement, QRect(0, 0, 1920, 1080)), placement);
}

TEST(WindowPlacement, ComesBackFromBeyondEachEdge)
{
    const QRect usable(100, 50, 1400, 900);
    for (const QPoint far : {QPoint(-5000, 100), QPoint(5000, 100), QPoint(200, -5000),
                             QPoint(200, 5000), QPoint(-99999, 99999)}) {
        const WindowPlacement fitted = fittedTo({far, QSize(900, 600), false}, usable);
        ASSERT_TRUE(fitted.position.has_value());
        EXPECT_TRUE(usable.contains(QRect(*fitted.position, fitted.size)))
            << far.x() << ' ' << far.y();
    }
}

TEST(WindowPlacement, KeepsItsTitleInSightWhereTheScreenIsSmall)
{
    const QRect usable(0, 30, 1024, 570);
    const WindowPlacement fitted = fittedTo({QPoint(500, 400), kWanted, false}, usable);
    EXPECT_EQ(fitted.position, usable.topLeft());
}

TEST(WindowPlacement, WithoutAPlaceGetsNone)
{
    EXPECT_FALSE(fittedTo({std::nullopt, kWanted, false}, QRect(0, 0, 800, 600)).position);
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "ui/layout/row_measure.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(KnownLineCounts, KnowsNothingAtFirst)
{
    EXPECT_EQ(KnownLineCounts().at(0), std::nullopt);
    EXPECT_EQ(KnownLineCounts().at(80), std::nullopt);
}

TEST(KnownLineCounts, AnswersForTheWidthsItWasTold)
{
    KnownLineCounts counts;
    counts.add(70, 80, 3);
    EXPECT_EQ(counts.at(69), std::nullopt);
    EXPECT_EQ(counts.at(70), 3);
    EXPECT_EQ(counts.at(80), 3);
    EXPECT_EQ(counts.at(81), std::nullopt);
}

TEST(KnownLineCounts, WhatHoldsAtTwoWidthsHoldsBetweenThem)
{
    KnownLineCounts counts;
    counts.add(60, 62, 3);
    counts.add(80, 85, 3);
    EXPECT_EQ(counts.at(70), 3);
}

TEST(KnownLineCounts, KeepsTheTwoLatestCounts)
{
    KnownLineCounts counts;
    counts.add(40, 49, 4);
    counts.add(50, 79, 3);
    counts.add(80, 99, 2);
    EXPECT_EQ(counts.at(45), std::nullopt);
    EXPECT_EQ(counts.at(55), 3);
    EXPECT_EQ(counts.at(85), 2);
}

TEST(KnownLineCounts, AnEmptyRangeOfWidthsTellsNothing)
{
    KnownLineCounts counts;
    counts.add(50, 79, 3);
    counts.add(90, 79, 2);
    counts.add(90, 79, 4);
    EXPECT_EQ(counts.at(60), 3);
    EXPECT_EQ(counts.at(79), 3);
    EXPECT_EQ(counts.at(85), std::nullopt);
    EXPECT_EQ(counts.at(90), std::nullopt);
}

TEST(KnownLineCounts, DoesNotNoteWidthsThatItCannotHold)
{
    KnownLineCounts counts;
    counts.add(70'000, 80'000, 2);
    EXPECT_EQ(counts.at(70'000), std::nullopt);
    EXPECT_EQ(counts.at(70'000 - 65'536), std::nullopt);
    counts.add(100, 80'000, 2);
    EXPECT_EQ(counts.at(65'535), 2);
    EXPECT_EQ(counts.at(65'536), std::nullopt);
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "platform/time_slice.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

TEST(TimeSlice, IsOverAtOnceWhereItHasNoLength)
{
    EXPECT_TRUE(TimeSlice(0ns).isOver());
}

TEST(TimeSlice, IsNotOverBeforeItsLengthHasPassed)
{
    EXPECT_FALSE(TimeSlice(24h).isOver());
}

TEST(TimeSlice, IsOverAfterThatMuchWork)
{
    const TimeSlice slice(1ms);
    volatile unsigned work = 0;
    while (!slice.isOver()) {
        work = work + 1;
    }
    EXPECT_GT(work, 0U);
}

} // namespace
} // namespace quillon

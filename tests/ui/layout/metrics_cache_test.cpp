// SPDX-License-Identifier: MIT
#include "ui/layout/metrics_cache.h"
#include "ui/layout/monospace_metrics.h"

#include <gtest/gtest.h>
#include <memory>

namespace quillon {
namespace {

TEST(MetricsCache, GivesTheFontAtTheSizeAskedFor)
{
    MetricsCache cache;
    EXPECT_EQ(cache.atSize(13)->font(FontWeight::Regular).pixelSize(), 13);
    EXPECT_EQ(cache.atSize(20)->font(FontWeight::Bold).pixelSize(), 20);
    EXPECT_GT(cache.atSize(20)->columnAdvance(), cache.atSize(13)->columnAdvance());
}

TEST(MetricsCache, KeepsTheSizesLastUsed)
{
    MetricsCache cache;
    const auto first = cache.atSize(10);
    for (double size = 11; size <= 24; ++size) {
        EXPECT_NE(cache.atSize(size), first);
    }
    EXPECT_EQ(cache.atSize(10), first);
}

TEST(MetricsCache, ForgetsTheSizeThatWasNotUsedForLongest)
{
    MetricsCache cache;
    const auto used = cache.atSize(30);
    std::weak_ptr<const MonospaceMetrics> unused = cache.atSize(31);
    for (double size = 40; size < 56; ++size) {
        static_cast<void>(cache.atSize(size));
        EXPECT_EQ(cache.atSize(30), used);
    }
    EXPECT_TRUE(unused.expired());
}

} // namespace
} // namespace quillon

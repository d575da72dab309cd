// SPDX-License-Identifier: MIT
#include "platform/debouncer.h"
#include "tests/support/spin_until.h"

#include <QElapsedTimer>

#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {
namespace {

using namespace std::chrono_literals;

TEST(Debouncer, MakesNoCallWithoutATrigger)
{
    int calls = 0;
    const Debouncer debouncer(1ms, [&calls] { ++calls; });
    spinFor(20ms);
    EXPECT_EQ(calls, 0);
}

TEST(Debouncer, DoesNotCallBeforeTheEventLoopRuns)
{
    int calls = 0;
    Debouncer debouncer(0ms, [&calls] { ++calls; });
    debouncer.trigger();
    EXPECT_EQ(calls, 0);
}

TEST(Debouncer, MakesOneCallForABurst)
{
    int calls = 0;
    Debouncer debouncer(10ms, [&calls] { ++calls; });
    for (int i = 0; i < 5; ++i) {
        debouncer.trigger();
    }
    ASSERT_TRUE(spinUntil([&calls] { return calls > 0; }));
    spinFor(40ms);
    EXPECT_EQ(calls, 1);
}

TEST(Debouncer, CallsOnceAndAtOnceWhenFlushed)
{
    int calls = 0;
    Debouncer debouncer(1ms, [&calls] { ++calls; });
    debouncer.flush();
    EXPECT_EQ(calls, 0);
    debouncer.trigger();
    debouncer.flush();
    EXPECT_EQ(calls, 1);
    spinFor(20ms);
    EXPECT_EQ(calls, 1);
}

TEST(Debouncer, CallsAgainAfterANewTrigger)
{
    int calls = 0;
    Debouncer debouncer(1ms, [&calls] { ++calls; });
    debouncer.trigger();
    ASSERT_TRUE(spinUntil([&calls] { return calls == 1; }));
    debouncer.trigger();
    EXPECT_TRUE(spinUntil([&calls] { return calls == 2; }));
}

TEST(Debouncer, CallsOnlyOnceThePeriodHasPassedSinceTheLastTrigger)
{
    constexpr auto kPeriod = 200ms;
    QElapsedTimer sinceTrigger;
    std::vector<qint64> delays;
    Debouncer debouncer(kPeriod, [&] { delays.push_back(sinceTrigger.elapsed()); });
    for (int i = 0; i < 4; ++i) {
        debouncer.trigger();
        sinceTrigger.start();
        spinFor(kPeriod / 2);
    }
    ASSERT_TRUE(spinUntil([&delays] { return !delays.empty(); }));
    // Whole milliseconds, rounded down. A machine that stands still between two triggers makes a
    // call for each, late but never early.
    for (const qint64 delay : delays) {
        EXPECT_GE(delay, kPeriod.count() - 1);
    }
}

TEST(Debouncer, MayBeTriggeredFromItsOwnCall)
{
    int calls = 0;
    std::unique_ptr<Debouncer> debouncer;
    debouncer = std::make_unique<Debouncer>(1ms, [&] {
        if (++calls < 3) {
            debouncer->trigger();
        }
    });
    debouncer->trigger();
    EXPECT_TRUE(spinUntil([&calls] { return calls == 3; }));
}

TEST(Debouncer, MakesNoCallAfterItsEnd)
{
    int calls = 0;
    auto debouncer = std::make_unique<Debouncer>(1ms, [&calls] { ++calls; });
    debouncer->trigger();
    debouncer.reset();
    spinFor(20ms);
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace quillon

// SPDX-License-Identifier: MIT
#include "platform/published.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quillon {
namespace {

using Values = std::vector<int>;

TEST(Published, HasItsInitialValue)
{
    const Published<int> field(4);
    EXPECT_EQ(field.get(), 4);
}

TEST(Published, TellsOfAChangeBeforeItIsMade)
{
    Published<int> field(1);
    Values seen;
    const Subscription subscription = field.observeWillChange([&] { seen.push_back(field.get()); });
    field.set(2);
    EXPECT_EQ(seen, (Values{1}));
    EXPECT_EQ(field.get(), 2);
}

TEST(Published, TellsOfAChangeToAnEqualValue)
{
    Published<int> field(1);
    int calls = 0;
    const Subscription subscription = field.observeWillChange([&calls] { ++calls; });
    field.set(1);
    EXPECT_EQ(calls, 1);
}

TEST(Published, AStreamHearsTheCurrentValueFirst)
{
    const Published<int> field(7);
    Values seen;
    const Subscription subscription =
        field.subscribe([&seen](int value) { seen.push_back(value); });
    EXPECT_EQ(seen, (Values{7}));
}

TEST(Published, AStreamHearsEachNewValueOnceItIsInPlace)
{
    Published<int> field(1);
    Values seen;
    const Subscription subscription = field.subscribe([&](int value) {
        seen.push_back(value);
        seen.push_back(field.get());
    });
    field.set(2);
    field.set(2);
    EXPECT_EQ(seen, (Values{1, 1, 2, 2, 2, 2}));
}

TEST(Published, AChangeInPlaceIsOneChange)
{
    Published<Values> field(Values{1});
    std::vector<Values> seen;
    int announcements = 0;
    const Subscription stream =
        field.subscribe([&seen](const Values& value) { seen.push_back(value); });
    const Subscription observer = field.observeWillChange([&announcements] { ++announcements; });
    field.mutate([](Values& value) {
        value.push_back(2);
        value.push_back(3);
    });
    EXPECT_EQ(seen, (std::vector<Values>{{1}, {1, 2, 3}}));
    EXPECT_EQ(announcements, 1);
}

TEST(Published, MaySetAnotherFieldFromACallback)
{
    Published<int> source(1);
    Published<int> mirror(0);
    const Subscription subscription = source.subscribe([&mirror](int value) { mirror.set(value); });
    source.set(5);
    EXPECT_EQ(mirror.get(), 5);
}

TEST(Subscription, EndsWhenItIsLetGo)
{
    Published<int> field(1);
    Values seen;
    {
        const Subscription subscription =
            field.subscribe([&seen](int value) { seen.push_back(value); });
    }
    field.set(2);
    EXPECT_EQ(seen, (Values{1}));
}

TEST(Subscription, EndsWhenItIsCancelled)
{
    Published<int> field(1);
    int calls = 0;
    Subscription subscription = field.observeWillChange([&calls] { ++calls; });
    subscription.cancel();
    field.set(2);
    EXPECT_EQ(calls, 0);
}

TEST(Subscription, MayBeCancelledTwice)
{
    const Published<int> field(1);
    Subscription subscription = field.observeWillChange([] {});
    subscription.cancel();
    EXPECT_NO_FATAL_FAILURE(subscription.cancel());
}

TEST(Published, TellsOfDistinctValuesOnly)
{
    Published<int> field(1);
    std::vector<int> heard;
    const Subscription subscription =
        field.subscribeDistinct([&heard](int value) { heard.push_back(value); });
    field.set(1);
    field.set(2);
    field.set(2);
    field.set(1);
    EXPECT_EQ(heard, (std::vector{1, 2, 1}));
}

TEST(Subscription, MayEndFromInsideItsOwnCall)
{
    Published<int> field(1);
    int calls = 0;
    Subscription subscription;
    subscription = field.observeWillChange([&] {
        ++calls;
        subscription.cancel();
    });
    field.set(2);
    field.set(3);
    EXPECT_EQ(calls, 1);
}

TEST(Subscription, MadeInsideACallIsCalledFromTheNextChangeOn)
{
    Published<int> field(1);
    int calls = 0;
    std::vector<Subscription> inner;
    const Subscription outer = field.observeWillChange(
        [&] { inner.push_back(field.observeWillChange([&calls] { ++calls; })); });
    field.set(2);
    EXPECT_EQ(calls, 0);
    field.set(3);
    EXPECT_EQ(calls, 1);
}

TEST(Subscription, StaysAliveWhenItIsMoved)
{
    Published<int> field(1);
    int calls = 0;
    Subscription subscription = field.observeWillChange([&calls] { ++calls; });
    const Subscription moved = std::move(subscription);
    field.set(2);
    EXPECT_EQ(calls, 1);
}

TEST(Subscription, EndsTheOneItReplaces)
{
    Published<int> field(1);
    int first = 0;
    int second = 0;
    Subscription subscription = field.observeWillChange([&first] { ++first; });
    subscription = field.observeWillChange([&second] { ++second; });
    field.set(2);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Subscription, MayOutliveTheField)
{
    auto field = std::make_unique<Published<int>>(1);
    Subscription subscription = field->observeWillChange([] {});
    field.reset();
    EXPECT_NO_FATAL_FAILURE(subscription.cancel());
}

} // namespace
} // namespace quillon

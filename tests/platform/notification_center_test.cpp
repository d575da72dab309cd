// SPDX-License-Identifier: MIT
#include "platform/notification_center.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace quillon {
namespace {

constexpr QLatin1StringView kName{"Quillon.aName"};
constexpr QLatin1StringView kOtherName{"Quillon.anotherName"};

TEST(NotificationCenter, CallsAnObserverBeforePostReturns)
{
    NotificationCenter center;
    int calls = 0;
    const Subscription subscription = center.observe(kName, [&calls] { ++calls; });
    center.post(kName);
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, DoesNotCallAnObserverOfAnotherName)
{
    NotificationCenter center;
    int calls = 0;
    const Subscription subscription = center.observe(kOtherName, [&calls] { ++calls; });
    center.post(kName);
    EXPECT_EQ(calls, 0);
}

TEST(NotificationCenter, PostsANameThatNobodyObserves)
{
    const NotificationCenter center;
    EXPECT_NO_FATAL_FAILURE(center.post(kName));
}

TEST(NotificationCenter, CallsObserversInTheOrderOfObservation)
{
    NotificationCenter center;
    std::string calls;
    const Subscription first = center.observe(kName, [&calls] { calls += "first "; });
    const Subscription second = center.observe(kName, [&calls] { calls += "second "; });
    center.post(kName);
    EXPECT_EQ(calls, "first second ");
}

TEST(NotificationCenter, StopsCallingWhenTheSubscriptionEnds)
{
    NotificationCenter center;
    int calls = 0;
    {
        const Subscription subscription = center.observe(kName, [&calls] { ++calls; });
    }
    center.post(kName);
    EXPECT_EQ(calls, 0);
}

TEST(NotificationCenter, ASubscriptionMayOutliveTheCenter)
{
    std::optional<NotificationCenter> center(std::in_place);
    Subscription subscription = center->observe(kName, [] {});
    center.reset();
    EXPECT_NO_FATAL_FAILURE(subscription.cancel());
}

TEST(NotificationCenter, AnObserverMayObserveFurtherNamesWhileItIsCalled)
{
    NotificationCenter center;
    int calls = 0;
    Subscription inner;
    const Subscription outer =
        center.observe(kName, [&] { inner = center.observe(kOtherName, [&calls] { ++calls; }); });
    center.post(kName);
    center.post(kOtherName);
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, AnObserverThatAnEarlierOneCancelsIsNotCalled)
{
    NotificationCenter center;
    int calls = 0;
    Subscription second;
    const Subscription first = center.observe(kName, [&second] { second.cancel(); });
    second = center.observe(kName, [&calls] { ++calls; });
    center.post(kName);
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace quillon

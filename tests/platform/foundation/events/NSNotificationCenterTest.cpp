#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

TEST(NSNotificationCenter, TellsTheObserversOfANameInTheirOrder)
{
    NSNotificationCenter center;
    std::vector<std::string> order;
    const auto first
        = center.addObserver("saved", nullptr, [&](const NSNotification&) { order.emplace_back("first"); });
    const auto second
        = center.addObserver("saved", nullptr, [&](const NSNotification&) { order.emplace_back("second"); });
    const auto other
        = center.addObserver("opened", nullptr, [&](const NSNotification&) { order.emplace_back("other"); });
    center.postNotification("saved", nullptr);
    center.postNotification("unheard", nullptr);
    EXPECT_THAT(order, ElementsAre("first", "second"));
}

TEST(NSNotificationCenter, FiltersBySender)
{
    NSNotificationCenter center;
    const int mine = 0;
    const int theirs = 0;
    int heard = 0;
    const auto subscription = center.addObserver("saved", &mine, [&](const NSNotification&) { ++heard; });
    center.postNotification("saved", &theirs);
    center.postNotification("saved", nullptr);
    EXPECT_EQ(heard, 0);
    center.postNotification("saved", &mine);
    EXPECT_EQ(heard, 1);
}

TEST(NSNotificationCenter, HandsOverWhatComesAlong)
{
    NSNotificationCenter center;
    const int sender = 0;
    std::string seen;
    const auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification& notification) {
        EXPECT_EQ(notification.name, "saved");
        EXPECT_EQ(notification.object, &sender);
        EXPECT_EQ(notification.userInfoAs<int>(), nullptr);
        seen = *notification.userInfoAs<std::string>();
    });
    center.postNotification("saved", &sender, std::string("three notes"));
    EXPECT_EQ(seen, "three notes");
}

TEST(NSNotificationCenter, StopsWithTheLifeOfTheSubscription)
{
    NSNotificationCenter center;
    int heard = 0;
    {
        auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) { ++heard; });
        auto moved = std::move(subscription);
        EXPECT_TRUE(moved.isActive());
        EXPECT_FALSE(subscription.isActive()); // NOLINT(bugprone-use-after-move): the state after a move is promised
        center.postNotification("saved", nullptr);
    }
    center.postNotification("saved", nullptr);
    EXPECT_EQ(heard, 1);
}

TEST(NSNotificationCenter, EndsTheOldSubscriptionWhenAnotherIsAssigned)
{
    NSNotificationCenter center;
    std::vector<int> heard;
    auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) { heard.push_back(1); });
    subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) { heard.push_back(2); });
    center.postNotification("saved", nullptr);
    EXPECT_THAT(heard, ElementsAre(2));
}

TEST(NSNotificationCenter, LetsAnObserverRemoveItselfAndOthersWhilePosting)
{
    NSNotificationCenter center;
    std::vector<int> heard;
    NSNotificationSubscription first;
    NSNotificationSubscription second;
    NSNotificationSubscription third;
    first = center.addObserver("saved", nullptr, [&](const NSNotification&) {
        heard.push_back(1);
        first.cancel();
        second.cancel();
    });
    second = center.addObserver("saved", nullptr, [&](const NSNotification&) { heard.push_back(2); });
    third = center.addObserver("saved", nullptr, [&](const NSNotification&) { heard.push_back(3); });
    center.postNotification("saved", nullptr);
    center.postNotification("saved", nullptr);
    EXPECT_THAT(heard, ElementsAre(1, 3, 3));
}

TEST(NSNotificationCenter, KeepsWhatAnObserverUsesUntilItsCallEnds)
{
    NSNotificationCenter center;
    NSNotificationSubscription subscription;
    std::string seen;
    subscription = center.addObserver(
        "saved", nullptr, [&, text = std::string("longer than any small string buffer")](const NSNotification&) {
            subscription.cancel();
            seen = text;
        });
    center.postNotification("saved", nullptr);
    EXPECT_EQ(seen, "longer than any small string buffer");
}

TEST(NSNotificationCenter, CallsNewObserversFromTheNextPostOn)
{
    NSNotificationCenter center;
    int heard = 0;
    std::vector<NSNotificationSubscription> added;
    const auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) {
        added.push_back(center.addObserver("saved", nullptr, [&](const NSNotification&) { ++heard; }));
    });
    center.postNotification("saved", nullptr);
    EXPECT_EQ(heard, 0);
    center.postNotification("saved", nullptr);
    EXPECT_EQ(heard, 1);
}

TEST(NSNotificationCenter, MayBePostedToFromAnObserver)
{
    NSNotificationCenter center;
    int depth = 0;
    const auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) {
        if (++depth < 5)
            center.postNotification("saved", nullptr);
    });
    center.postNotification("saved", nullptr);
    EXPECT_EQ(depth, 5);
}

TEST(NSNotificationCenter, CallsAllObserversAndThrowsTheFirstException)
{
    NSNotificationCenter center;
    int heard = 0;
    const auto first = center.addObserver(
        "saved", nullptr, [](const NSNotification&) -> void { throw std::runtime_error("first"); });
    const auto second
        = center.addObserver("saved", nullptr, [](const NSNotification&) -> void { throw std::logic_error("second"); });
    const auto third = center.addObserver("saved", nullptr, [&](const NSNotification&) { ++heard; });
    EXPECT_THROW(center.postNotification("saved", nullptr), std::runtime_error);
    EXPECT_EQ(heard, 1);
}

TEST(NSNotificationCenter, OutlivesItsSubscriptionsAndTheyIt)
{
    std::optional<NSNotificationCenter> center(std::in_place);
    auto subscription = center->addObserver("saved", nullptr, [](const NSNotification&) {});
    center.reset();
    subscription.cancel();
    EXPECT_FALSE(subscription.isActive());
}

TEST(NSNotificationCenter, WaitsForACallOnAnotherThreadBeforeARemovalReturns)
{
    NSNotificationCenter center;
    std::promise<void> entered;
    std::atomic<bool> ended = false;
    auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) {
        entered.set_value();
        std::this_thread::sleep_for(20ms);
        ended = true;
    });
    std::thread poster([&] { center.postNotification("saved", nullptr); });
    entered.get_future().wait();
    subscription.cancel();
    EXPECT_TRUE(ended);
    poster.join();
}

TEST(NSNotificationCenter, ServesTheMainQueueWhileARemovalWaits)
{
    NSNotificationCenter center;
    MainQueue main;
    std::promise<void> entered;
    bool hopRan = false;
    auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) {
        entered.set_value();
        main.sync([&] { hopRan = true; });
    });
    std::thread poster([&] { center.postNotification("saved", nullptr); });
    entered.get_future().wait();
    subscription.cancel(); // the call under way waits for this very thread
    EXPECT_TRUE(hopRan);
    poster.join();
}

TEST(NSNotificationCenter, IsSafeOnSeveralThreads)
{
    NSNotificationCenter center;
    std::atomic<bool> stop = false;
    std::atomic<int> afterRemoval = 0;
    std::vector<std::thread> posters;
    for (int thread = 0; thread < 2; ++thread) {
        posters.emplace_back([&] {
            while (!stop)
                center.postNotification("saved", nullptr);
        });
    }
    for (int round = 0; round < 2'000; ++round) {
        std::atomic<bool> removed = false;
        {
            const auto subscription = center.addObserver("saved", nullptr, [&](const NSNotification&) {
                if (removed)
                    ++afterRemoval;
            });
        }
        removed = true;
    }
    stop = true;
    for (std::thread& poster : posters)
        poster.join();
    EXPECT_EQ(afterRemoval, 0);
}

TEST(NSNotificationCenter, HasOneForTheProcess)
{
    EXPECT_EQ(&NSNotificationCenter::defaultCenter(), &NSNotificationCenter::defaultCenter());
}

} // namespace

#include "tests/platform/foundation/events/QueueTestSupport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

using namespace tarn;
using namespace std::chrono_literals;

namespace {

TEST(GlobalQueue, RunsTasksSideBySide)
{
    std::promise<void> first;
    std::promise<void> second;
    std::atomic<int> ended = 0;
    GlobalQueue::shared().async([&] {
        first.set_value();
        second.get_future().wait_for(kLongEnough);
        ++ended;
    });
    GlobalQueue::shared().async([&] {
        first.get_future().wait_for(kLongEnough);
        second.set_value();
        ++ended;
    });
    const auto deadline = std::chrono::steady_clock::now() + kLongEnough;
    while (ended < 2 && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(ended, 2);
}

TEST(GlobalQueue, RunsTheLastTaskOfAKey)
{
    // More tasks than the pool can ever have threads stand in front, so that the keyed ones wait.
    constexpr int kBlockers = 200;
    MainQueue main;
    std::promise<void> release;
    const auto released = release.get_future().share();
    for (int blocker = 0; blocker < kBlockers; ++blocker)
        GlobalQueue::shared().async([released] { released.wait(); });
    std::atomic<int> value = 0;
    std::atomic<bool> cancelled = false;
    GlobalQueue::shared().runAtEndOfPass(&value, [&] { value = 1; });
    GlobalQueue::shared().runAtEndOfPass(&value, [&] { value = 2; });
    GlobalQueue::shared().runAtEndOfPass(&cancelled, [&] { cancelled = true; });
    GlobalQueue::shared().cancelAtEndOfPass(&cancelled);
    release.set_value();
    EXPECT_TRUE(main.runUntil([&] { return value != 0; }, kLongEnough));
    EXPECT_EQ(value, 2);
    EXPECT_FALSE(cancelled);
}

} // namespace

#include "tests/platform/foundation/events/QueueTestSupport.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

TEST(SerialQueue, RunsOneTaskAfterTheOther)
{
    const auto queue = SerialQueue::make("work");
    std::vector<int> order;
    std::atomic<int> running = 0;
    std::atomic<bool> overlapped = false;
    for (int task = 0; task < 2'000; ++task) {
        queue->async([&, task] {
            overlapped = overlapped || ++running > 1;
            order.push_back(task);
            --running;
        });
    }
    waitForIdle(*queue);
    EXPECT_FALSE(overlapped);
    ASSERT_EQ(order.size(), 2'000U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(SerialQueue, RunsASyncTaskInlineWhenItIsCurrent)
{
    const auto queue = SerialQueue::make("work");
    bool inner = false;
    std::thread::id outside;
    std::thread::id inside;
    queue->sync([&] {
        EXPECT_TRUE(queue->isCurrent());
        EXPECT_EQ(Queue::current(), queue.get());
        outside = std::this_thread::get_id();
        queue->sync([&] {
            inner = true;
            inside = std::this_thread::get_id();
        });
    });
    EXPECT_FALSE(queue->isCurrent());
    EXPECT_TRUE(inner);
    EXPECT_EQ(outside, inside);
}

TEST(SerialQueue, PassesExceptionsOfASyncTaskToTheCaller)
{
    const auto queue = SerialQueue::make("work");
    EXPECT_THROW(queue->sync([] { throw NSException(NSRangeException, "far"); }), NSException);
    EXPECT_THROW(queue->sync([&] { queue->sync([] { throw std::runtime_error("inner"); }); }), std::runtime_error);
}

TEST(SerialQueue, StaysAliveWhileItHasWork)
{
    std::promise<void> ran;
    SerialQueue::make("short")->async([&] { ran.set_value(); });
    EXPECT_EQ(ran.get_future().wait_for(kLongEnough), std::future_status::ready);
}

TEST(SerialQueue, EndsAPassWithEachTask)
{
    const auto queue = SerialQueue::make("work");
    std::vector<std::string> order;
    queue->async([&] {
        queue->runAtEndOfPass(&order, [&] { order.emplace_back("replaced"); });
        queue->runAtEndOfPass(&order, [&] { order.emplace_back("end"); });
        order.emplace_back("first");
    });
    queue->async([&] { order.emplace_back("second"); });
    waitForIdle(*queue);
    EXPECT_THAT(order, ElementsAre("first", "end", "second"));
}

TEST(SerialQueue, RunsTheEndOfAPassAlsoWhenItWasIdle)
{
    const auto queue = SerialQueue::make("work");
    std::promise<void> ran;
    queue->runAtEndOfPass(&ran, [&] { ran.set_value(); });
    EXPECT_EQ(ran.get_future().wait_for(kLongEnough), std::future_status::ready);
    bool cancelledRan = false;
    queue->sync([&] {
        queue->runAtEndOfPass(&ran, [&] { cancelledRan = true; });
        queue->cancelAtEndOfPass(&ran);
    });
    waitForIdle(*queue);
    EXPECT_FALSE(cancelledRan);
}

TEST(SerialQueue, LogsATaskThatThrowsAndGoesOn)
{
    const LogRecorder log;
    const auto queue = SerialQueue::make("cellar");
    queue->async([] { throw std::runtime_error("dark"); });
    waitForIdle(*queue);
    EXPECT_THAT(log.lines(), ElementsAre("A task of the queue \"cellar\" threw: dark"));
}

TEST(SerialQueue, IsFreeWhenWhatATaskHeldGoesWithIt)
{
    const auto queue = SerialQueue::make("holding");
    std::promise<void> gone;
    queue->runAtEndOfPass(&gone, [last = std::shared_ptr<int>(nullptr, [&](int*) {
        queue->cancelAtEndOfPass(&queue);
        gone.set_value();
    })] {});
    ASSERT_EQ(gone.get_future().wait_for(kLongEnough), std::future_status::ready);
}

} // namespace

#include "tests/platform/foundation/events/QueueTestSupport.h"

#include "tarnmodel/platform/foundation/events/QueueInternal.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

TEST(QueueSync, ServesTheMainQueueWhileItsThreadWaits)
{
    MainQueue main;
    const auto queue = SerialQueue::make("private");
    bool queuedRan = false;
    bool hopRan = false;
    main.async([&] { queuedRan = true; });
    queue->sync([&] {
        main.sync([&] {
            EXPECT_TRUE(main.isCurrent());
            EXPECT_EQ(Queue::current(), &main);
            hopRan = true;
            EXPECT_FALSE(queuedRan); // tasks that nobody waits for stay where they are
        });
    });
    EXPECT_TRUE(hopRan);
    main.drain();
    EXPECT_TRUE(queuedRan);
}

TEST(QueueSync, ServesTheMainQueueThroughSeveralWaits)
{
    MainQueue main;
    const auto outer = SerialQueue::make("outer");
    const auto inner = SerialQueue::make("inner");
    std::vector<std::string> order;
    outer->sync([&] {
        main.sync([&] {
            inner->sync([&] { main.sync([&] { order.emplace_back("innermost"); }); });
            order.emplace_back("back on main");
        });
        order.emplace_back("outer");
    });
    EXPECT_THAT(order, ElementsAre("innermost", "back on main", "outer"));
}

TEST(QueueSync, FromAnotherThreadIsServedByADrain)
{
    MainQueue main;
    bool ran = false;
    std::atomic<bool> returned = false;
    std::thread thread([&] {
        main.sync([&] { ran = true; });
        returned = true;
    });
    EXPECT_TRUE(main.runUntil([&] { return returned.load(); }, kLongEnough));
    thread.join();
    EXPECT_TRUE(ran);
}

TEST(QueueSync, FindsThreadsHoweverManyOfThemWait)
{
    // Each task waits for the next queue of the chain: far more waits than the pool has threads.
    std::vector<std::shared_ptr<SerialQueue>> chain;
    for (int link = 0; link < 40; ++link)
        chain.push_back(SerialQueue::make("link"));
    std::function<int(std::size_t)> depth = [&](std::size_t link) {
        int result = 1;
        if (link < chain.size())
            chain[link]->sync([&] { result += depth(link + 1); });
        return result;
    };
    EXPECT_EQ(depth(0), 41);
}

TEST(QueueSync, ThrowsWhenTheQueueEndsFirst)
{
    auto queue = std::make_unique<MainQueue>("gone");
    std::string reason;
    std::thread thread([&, raw = queue.get()] {
        try {
            raw->sync([] {});
        } catch (const NSException& exception) {
            reason = exception.reason();
        }
    });
    while (!queue->hasWork())
        std::this_thread::yield();
    queue.reset();
    thread.join();
    EXPECT_EQ(reason, "The queue \"gone\" ended before it ran a task.");
}

TEST(QueueSync, SaysWhoWaitsForWhomWhenItTakesLong)
{
    const LogRecorder log;
    setSyncWarningDelay(20ms);
    const auto slow = SerialQueue::make("slow");
    const auto waiting = SerialQueue::make("waiting");
    std::promise<void> release;
    slow->async([&] { release.get_future().wait_for(kLongEnough); });
    waiting->async([&] { slow->sync([] {}); });
    MainQueue main;
    EXPECT_TRUE(main.runUntil([&] { return !log.lines().empty(); }, kLongEnough));
    setSyncWarningDelay(5s); // the wait below is not what is looked at
    release.set_value();
    waitForIdle(*waiting);
    EXPECT_THAT(log.lines(), ElementsAre("The queue \"waiting\" is still waiting for the queue \"slow\"."));
}

TEST(QueueSync, HopsBothWaysManyTimes)
{
    MainQueue main;
    std::vector<std::shared_ptr<SerialQueue>> queues;
    for (int index = 0; index < 4; ++index)
        queues.push_back(SerialQueue::make("worker"));
    std::atomic<int> left = 4 * 250;
    int served = 0; // on the main thread only
    for (const auto& queue : queues) {
        for (int round = 0; round < 250; ++round) {
            queue->async([&] {
                main.sync([&] { ++served; });
                --left;
            });
        }
    }
    while (left > 0) {
        queues[0]->sync([] {});
        main.drain();
    }
    EXPECT_EQ(served, 1'000);
}

TEST(Queue, KnowsTheCurrentOne)
{
    // On a thread of its own: the one that runs the tests may own the process's main queue.
    std::thread([] {
        EXPECT_EQ(Queue::current(), nullptr);
        MainQueue main("mine");
        EXPECT_EQ(Queue::current(), &main);
        Queue* inGlobal = nullptr;
        GlobalQueue::shared().sync([&] { inGlobal = Queue::current(); });
        EXPECT_EQ(inGlobal, &GlobalQueue::shared());
        EXPECT_EQ(Queue::current(), &main);
    }).join();
}

TEST(Queue, HasOneMainQueueForTheProcess)
{
    MainQueue& queue = MainQueue::main();
    EXPECT_EQ(&queue, &MainQueue::main());
    EXPECT_EQ(queue.label(), "main");
    EXPECT_TRUE(queue.isCurrent()); // the tests run on the thread that asks first
}

} // namespace

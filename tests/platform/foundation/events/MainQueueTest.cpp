#include "tests/platform/foundation/events/QueueTestSupport.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <poll.h>

#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

bool isReadable(int descriptor)
{
    pollfd entry{descriptor, POLLIN, 0};
    return ::poll(&entry, 1, 0) == 1;
}

TEST(MainQueue, RunsTasksInTheOrderOfTheirArrivalAndNeverAtOnce)
{
    MainQueue queue;
    std::vector<int> order;
    queue.async([&] { order.push_back(1); });
    queue.async([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    EXPECT_EQ(queue.drain(), 2U);
    EXPECT_THAT(order, ElementsAre(1, 2));
    EXPECT_EQ(queue.drain(), 0U);
}

TEST(MainQueue, LeavesWhatATaskQueuesForTheNextPass)
{
    MainQueue queue;
    std::vector<int> order;
    queue.async([&] {
        order.push_back(1);
        queue.async([&] { order.push_back(2); });
    });
    queue.drain();
    EXPECT_THAT(order, ElementsAre(1));
    EXPECT_TRUE(queue.hasWork());
    queue.drain();
    EXPECT_THAT(order, ElementsAre(1, 2));
    EXPECT_FALSE(queue.hasWork());
}

TEST(MainQueue, RunsTheEndOfAPassLastAndWithTheLastTaskGiven)
{
    MainQueue queue;
    std::vector<std::string> order;
    queue.async([&] {
        queue.runAtEndOfPass(&queue, [&] { order.emplace_back("replaced"); });
        queue.runAtEndOfPass(&queue, [&] { order.emplace_back("end"); });
    });
    queue.async([&] { order.emplace_back("task"); });
    queue.drain();
    EXPECT_THAT(order, ElementsAre("task", "end"));
}

TEST(MainQueue, RunsWhatIsAskedForAtTheEndOfAPassAtTheEndOfTheNext)
{
    MainQueue queue;
    int runs = 0;
    queue.runAtEndOfPass(&queue, [&] {
        ++runs;
        queue.runAtEndOfPass(&queue, [&] { ++runs; });
    });
    queue.drain();
    EXPECT_EQ(runs, 1);
    queue.drain();
    EXPECT_EQ(runs, 2);
    EXPECT_FALSE(queue.hasWork());
}

TEST(MainQueue, RunsATaskInEachPassWithoutBeingKeptAwakeByIt)
{
    MainQueue queue;
    std::vector<std::string> order;
    queue.runInEachPass(&order, [&] { order.emplace_back("each"); });
    EXPECT_FALSE(queue.hasWork());
    EXPECT_FALSE(isReadable(queue.fileDescriptor()));
    queue.async([&] {
        queue.runAtEndOfPass(&queue, [&] { order.emplace_back("end"); });
        order.emplace_back("task");
    });
    EXPECT_EQ(queue.drain(), 2U);
    EXPECT_EQ(queue.drain(), 0U);
    EXPECT_THAT(order, ElementsAre("task", "each", "end", "each"));
    EXPECT_FALSE(queue.hasWork());

    queue.runInEachPass(&queue, [&] { order.emplace_back("never"); });
    queue.runInEachPass(&order, [&] {
        order.emplace_back("last");
        queue.cancelInEachPass(&queue);
        queue.cancelInEachPass(&order);
    });
    order.clear();
    queue.async([&] { queue.cancelInEachPass(&queue); });
    queue.drain();
    queue.drain();
    EXPECT_THAT(order, ElementsAre("last"));
}

TEST(MainQueue, ForgetsTheEndOfAPassThatIsCancelled)
{
    MainQueue queue;
    bool ran = false;
    queue.runAtEndOfPass(&queue, [&] { ran = true; });
    queue.async([&] { queue.cancelAtEndOfPass(&queue); });
    queue.drain();
    EXPECT_FALSE(ran);
}

TEST(MainQueue, LogsATaskThatThrowsAndGoesOn)
{
    const LogRecorder log;
    MainQueue queue("kitchen");
    bool ran = false;
    queue.async([] { throw std::runtime_error("burnt"); });
    queue.async([] { throw 7; });
    queue.async([&] { ran = true; });
    EXPECT_EQ(queue.drain(), 3U);
    EXPECT_TRUE(ran);
    EXPECT_THAT(log.lines(),
        ElementsAre("A task of the queue \"kitchen\" threw: burnt",
            "A task of the queue \"kitchen\" threw something that is no exception."));
}

TEST(MainQueue, BelongsToTheThreadThatMadeIt)
{
    MainQueue queue;
    EXPECT_TRUE(queue.isCurrent());
    bool isCurrentElsewhere = true;
    bool drainRefused = false;
    std::thread([&] {
        isCurrentElsewhere = queue.isCurrent();
        try {
            queue.drain();
        } catch (const NSException& exception) {
            drainRefused = exception.name() == NSInternalInconsistencyException;
        }
    }).join();
    EXPECT_FALSE(isCurrentElsewhere);
    EXPECT_TRUE(drainRefused);
}

TEST(MainQueue, WakesTheHostOncePerChangeFromIdleToBusy)
{
    MainQueue queue;
    int wakes = 0;
    queue.setWake([&] { ++wakes; });
    queue.async([] {});
    queue.async([] {});
    EXPECT_EQ(wakes, 1);
    queue.drain();
    EXPECT_EQ(wakes, 1);
    queue.async([&] { queue.async([] {}); });
    EXPECT_EQ(wakes, 2);
    queue.drain(); // leaves one task
    EXPECT_EQ(wakes, 3);
    queue.async([] {});
    EXPECT_EQ(wakes, 3);
}

TEST(MainQueue, WakesAHostThatComesWhenThereIsWorkAlready)
{
    MainQueue queue;
    queue.async([] {});
    int wakes = 0;
    queue.setWake([&] { ++wakes; });
    EXPECT_EQ(wakes, 1);
}

TEST(MainQueue, HasADescriptorThatIsReadableWhileThereIsWork)
{
    MainQueue queue;
    const int descriptor = queue.fileDescriptor();
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(queue.fileDescriptor(), descriptor);
    EXPECT_FALSE(isReadable(descriptor));
    std::thread([&] { queue.async([&] { queue.async([] {}); }); }).join();
    EXPECT_TRUE(isReadable(descriptor));
    queue.drain();
    EXPECT_TRUE(isReadable(descriptor)); // one task is left
    queue.drain();
    EXPECT_FALSE(isReadable(descriptor));
}

TEST(MainQueue, MakesItsDescriptorReadableForWorkThatWasThereBefore)
{
    MainQueue queue;
    queue.async([] {});
    EXPECT_TRUE(isReadable(queue.fileDescriptor()));
}

TEST(MainQueue, RunsUntilTheAnswerOfAnotherThreadIsThere)
{
    MainQueue queue;
    bool done = false;
    GlobalQueue::shared().async([&] { queue.async([&] { done = true; }); });
    EXPECT_TRUE(queue.runUntil([&] { return done; }, kLongEnough));
}

TEST(MainQueue, MayEndBeforeTheThreadThatGaveItTheLastTaskIsBack)
{
    constexpr int runs = 200;
    int tasks = 0;
    for (int run = 0; run < runs; ++run) {
        std::thread other;
        {
            MainQueue queue;
            bool done = false;
            other = std::thread([&] {
                queue.async([&] {
                    done = true;
                    ++tasks;
                });
            });
            while (!done) // without sleeping, so that the task is taken as soon as it is there
                queue.drain();
        }
        other.join();
    }
    EXPECT_EQ(tasks, runs);
}

TEST(MainQueue, StopsWaitingWhenTheTimeIsOver)
{
    MainQueue queue;
    std::function<void()> again = [&] { queue.async(again); }; // it is never idle
    again();
    EXPECT_FALSE(queue.runUntil([] { return false; }, 5ms));
}

TEST(MainQueue, TakesTasksFromManyThreads)
{
    MainQueue queue;
    constexpr int kThreads = 4;
    constexpr int kTasks = 5'000;
    int count = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&] {
            for (int task = 0; task < kTasks; ++task)
                queue.async([&] { ++count; });
        });
    }
    EXPECT_TRUE(queue.runUntil([&] { return count == kThreads * kTasks; }, kLongEnough));
    for (std::thread& thread : threads)
        thread.join();
}

TEST(MainQueue, MayEndInItsOwnTask)
{
    auto queue = std::make_unique<MainQueue>();
    bool ranAfterTheEnd = false;
    queue->async([&] { queue.reset(); });
    queue->async([&] { ranAfterTheEnd = true; });
    MainQueue* const raw = queue.get();
    raw->drain();
    EXPECT_FALSE(ranAfterTheEnd);
}

// Timers --------------------------------------------------------------------------------------------------------------

TEST(MainQueue, IsFreeWhenWhatATaskHeldGoesWithIt)
{
    MainQueue queue;
    const auto callingTheQueue = [&queue](int*) {
        queue.cancelAtEndOfPass(&queue);
        queue.async([] {});
    };
    queue.async([last = std::shared_ptr<int>(nullptr, callingTheQueue)] {});
    queue.runAtEndOfPass(&callingTheQueue, [last = std::shared_ptr<int>(nullptr, callingTheQueue)] {});

    EXPECT_EQ(queue.drain(), 2U);
    EXPECT_EQ(queue.drain(), 2U);
}

TEST(Timer, FiresAtTheStartOfTheNextPass)
{
    MainQueue queue;
    std::vector<std::string> order;
    Timer timer;
    queue.async([&] {
        timer = Timer::scheduleAfterPass(queue, [&] { order.emplace_back("timer"); });
        order.emplace_back("first pass");
        queue.async([&] { order.emplace_back("second pass"); });
    });
    queue.drain();
    EXPECT_THAT(order, ElementsAre("first pass"));
    EXPECT_TRUE(timer.isValid());
    queue.drain();
    EXPECT_THAT(order, ElementsAre("first pass", "timer", "second pass"));
    EXPECT_FALSE(timer.isValid());
}

TEST(Timer, FiresAlsoWhenNobodyKeepsTheHandle)
{
    MainQueue queue;
    bool fired = false;
    Timer::scheduleAfterPass(queue, [&] { fired = true; });
    queue.drain();
    EXPECT_TRUE(fired);
}

TEST(Timer, DoesNotFireOnceInvalidated)
{
    MainQueue queue;
    bool fired = false;
    Timer timer = Timer::scheduleAfterPass(queue, [&] { fired = true; });
    timer.invalidate();
    EXPECT_FALSE(timer.isValid());
    EXPECT_FALSE(queue.hasWork());
    queue.drain();
    EXPECT_FALSE(fired);
}

TEST(Timer, MayBeInvalidatedByAnotherTimerOfTheSamePass)
{
    MainQueue queue;
    bool fired = false;
    Timer second;
    Timer::scheduleAfterPass(queue, [&] { second.invalidate(); });
    second = Timer::scheduleAfterPass(queue, [&] { fired = true; });
    queue.drain();
    EXPECT_FALSE(fired);
}

TEST(Timer, ScheduledByATimerFiresOnePassLater)
{
    MainQueue queue;
    int fired = 0;
    Timer::scheduleAfterPass(queue, [&] {
        ++fired;
        Timer::scheduleAfterPass(queue, [&] { ++fired; });
    });
    queue.drain();
    EXPECT_EQ(fired, 1);
    queue.drain();
    EXPECT_EQ(fired, 2);
}

TEST(Timer, OutlivesItsQueue)
{
    Timer timer;
    {
        MainQueue queue;
        timer = Timer::scheduleAfterPass(queue, [] {});
    }
    EXPECT_FALSE(timer.isValid());
    timer.invalidate();
    EXPECT_FALSE(Timer().isValid());
}

} // namespace

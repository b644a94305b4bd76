#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <poll.h>

#include <atomic>
#include <future>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

constexpr auto kLongEnough = 10s; // never waited for when all is well

/// Collects what is logged while it lives.
class LogRecorder {
public:
    LogRecorder()
        : previous_(setLogSink([this](std::string_view line) {
              const std::lock_guard lock(mutex_);
              lines_.emplace_back(line);
          }))
    { }
    ~LogRecorder() { setLogSink(previous_); }

    std::vector<std::string> lines() const
    {
        const std::lock_guard lock(mutex_);
        return lines_;
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
    LogSink previous_;
};

bool isReadable(int descriptor)
{
    pollfd entry{descriptor, POLLIN, 0};
    return ::poll(&entry, 1, 0) == 1;
}

/// A serial queue that is done with what was queued before.
void waitForIdle(SerialQueue& queue)
{
    queue.sync([] {});
}

// Main queue ----------------------------------------------------------------------------------------------------------

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

TEST(MainQueue, RunsOneCoalescedTaskForEachKeyAfterTheOthers)
{
    MainQueue queue;
    std::vector<int> order;
    const int first = 0;
    const int second = 0;
    EXPECT_TRUE(queue.postCoalesced(&first, [&] { order.push_back(10); }));
    EXPECT_FALSE(queue.postCoalesced(&first, [&] { order.push_back(11); }));
    EXPECT_TRUE(queue.postCoalesced(&second, [&] { order.push_back(20); }));
    queue.async([&] { order.push_back(1); });
    EXPECT_EQ(queue.drain(), 3U);
    EXPECT_THAT(order, ElementsAre(1, 10, 20));
    EXPECT_TRUE(queue.postCoalesced(&first, [&] { order.push_back(12); }));
    queue.cancelCoalesced(&first);
    EXPECT_FALSE(queue.hasWork());
}

TEST(MainQueue, RunsWhatIsCoalescedDuringAPassAtItsEnd)
{
    MainQueue queue;
    std::vector<int> order;
    queue.async([&] { queue.postCoalesced(&queue, [&] { order.push_back(2); }); });
    queue.async([&] { order.push_back(1); });
    queue.drain();
    EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(MainQueue, RunsTheEndOfAPassLastAndWithTheLastTaskGiven)
{
    MainQueue queue;
    std::vector<std::string> order;
    queue.async([&] {
        queue.runAtEndOfPass(&queue, [&] { order.emplace_back("replaced"); });
        queue.runAtEndOfPass(&queue, [&] { order.emplace_back("end"); });
        queue.postCoalesced(&queue, [&] { order.emplace_back("coalesced"); });
    });
    queue.drain();
    EXPECT_THAT(order, ElementsAre("coalesced", "end"));
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
    for (int run = 0; run < 200; ++run) {
        std::thread other;
        {
            MainQueue queue;
            bool done = false;
            other = std::thread([&queue, &done] { queue.async([&done] { done = true; }); });
            while (!done) // without sleeping, so that the task is taken as soon as it is there
                queue.drain();
        }
        other.join();
    }
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
    queue.postCoalesced(&queue, [last = std::shared_ptr<int>(nullptr, callingTheQueue)] {});
    queue.runAtEndOfPass(&callingTheQueue, [last = std::shared_ptr<int>(nullptr, callingTheQueue)] {});

    EXPECT_EQ(queue.drain(), 3U);
    EXPECT_EQ(queue.drain(), 3U);
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

// Serial queues -------------------------------------------------------------------------------------------------------

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

// Waiting -------------------------------------------------------------------------------------------------------------

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
    Queue::setSyncWarningDelay(20ms);
    const auto slow = SerialQueue::make("slow");
    const auto waiting = SerialQueue::make("waiting");
    std::promise<void> release;
    slow->async([&] { release.get_future().wait_for(kLongEnough); });
    waiting->async([&] { slow->sync([] {}); });
    MainQueue main;
    EXPECT_TRUE(main.runUntil([&] { return !log.lines().empty(); }, kLongEnough));
    Queue::setSyncWarningDelay(5s); // the wait below is not what is looked at
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

#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <future>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

using namespace tarn;
using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 10s; // never waited for when all is well
constexpr auto kSooner = 4s;    // than the warning, at which who waits looks anyway

/// Each case runs in a process of its own, whose pool has made no thread yet and gets this many.
class ThreadShortage : public testing::TestWithParam<int> {
protected:
    ThreadShortage() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    static void giveThreads(int most)
    {
        ::alarm(60); // a hang is a failure too
        MainQueue::main();
        setLogSink([](std::string_view) {});
        GlobalPool::shared().setThreadStarter([left = std::make_shared<int>(most)](Task work) {
            if (--*left < 0)
                throw std::system_error(EAGAIN, std::generic_category());
            return std::thread(std::move(work));
        });
    }
    /// Ends the process as the work says.
    template <typename Work> static void runWith(int threads, const Work& work)
    {
        giveThreads(threads);
        std::exit(work() ? 0 : 1);
    }
};

#define EXPECT_HOLDS(...) EXPECT_EXIT(runWith(GetParam(), __VA_ARGS__), testing::ExitedWithCode(0), "")

TEST_P(ThreadShortage, LetsWhoWaitsDoTheWork)
{
    EXPECT_HOLDS([] {
        const auto queue = SerialQueue::make("work");
        std::vector<int> order;
        queue->async([&] { order.push_back(1); });
        queue->async([&] { order.push_back(2); });
        bool isCurrent = false;
        queue->sync([&] {
            isCurrent = queue->isCurrent() && Queue::current() == queue.get();
            order.push_back(3);
        });
        int global = 0;
        GlobalQueue::shared().sync([&] { global = GlobalQueue::shared().isCurrent() ? 1 : 2; });
        return isCurrent && order == std::vector{1, 2, 3} && global == 1 && !queue->isCurrent();
    });
}

TEST_P(ThreadShortage, PassesOnWhatATaskThrows)
{
    EXPECT_HOLDS([] {
        try {
            SerialQueue::make("work")->sync([] { throw NSException(NSRangeException, "far"); });
        } catch (const NSException& exception) {
            return exception.reason() == "far";
        }
        return false;
    });
}

TEST_P(ThreadShortage, LeavesTheRestToTheMainQueue)
{
    EXPECT_HOLDS([] {
        const auto queue = SerialQueue::make("work");
        std::atomic<int> ran = 0;
        for (int task = 0; task < 100; ++task) {
            queue->async([&] { ++ran; });
            GlobalQueue::shared().async([&] { ++ran; });
        }
        return MainQueue::main().runUntil([&] { return ran == 200; }, kPatience);
    });
}

TEST_P(ThreadShortage, HopsBothWays)
{
    EXPECT_HOLDS([] {
        MainQueue& main = MainQueue::main();
        std::vector<std::shared_ptr<SerialQueue>> queues{SerialQueue::make("one"), SerialQueue::make("two")};
        std::atomic<int> left = 200;
        int served = 0; // on the main thread only
        for (int round = 0; round < 100; ++round) {
            for (const auto& queue : queues) {
                queue->async([&] {
                    main.sync([&] { ++served; });
                    --left;
                });
            }
        }
        queues[0]->sync([] {});
        return main.runUntil([&] { return left == 0; }, kPatience) && served == 200;
    });
}

TEST_P(ThreadShortage, GoesThroughLongChainsOfWaits)
{
    EXPECT_HOLDS([] {
        std::vector<std::shared_ptr<SerialQueue>> chain;
        for (int link = 0; link < 20; ++link)
            chain.push_back(SerialQueue::make("link"));
        std::function<int(std::size_t)> depth = [&](std::size_t link) {
            int result = 1;
            if (link < chain.size())
                chain[link]->sync([&] { result += depth(link + 1); });
            return result;
        };
        std::atomic<int> global = 0;
        GlobalQueue::shared().async([&] { global = depth(0); });
        return depth(0) == 21 && MainQueue::main().runUntil([&] { return global == 21; }, kPatience);
    });
}

TEST_P(ThreadShortage, ServesForeignThreadsThatWait)
{
    EXPECT_HOLDS([] {
        const auto queue = SerialQueue::make("shared");
        std::atomic<int> running = 0;
        std::atomic<bool> overlapped = false;
        std::atomic<int> ended = 0;
        const auto task = [&] {
            overlapped = overlapped || ++running > 1;
            std::this_thread::yield();
            --running;
        };
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&] {
                for (int round = 0; round < 200; ++round) {
                    queue->async(task);
                    queue->sync(task);
                }
                ++ended;
            });
        }
        const bool ok = MainQueue::main().runUntil([&] { return ended == 4; }, kPatience);
        for (std::thread& thread : threads)
            thread.join();
        return ok && !overlapped;
    });
}

TEST_P(ThreadShortage, WakesWhoWaitedWhenThereWasAThread)
{
    EXPECT_HOLDS([] {
        const auto first = SerialQueue::make("first");
        const auto second = SerialQueue::make("second");
        const auto third = SerialQueue::make("third");
        std::atomic<bool> isWaiting = false;
        std::promise<void> thirdRan;
        std::atomic<bool> hasEnded = false;
        bool ran = false;
        first->async([&] {
            while (!isWaiting)
                std::this_thread::yield();
            std::this_thread::sleep_for(50ms); // asleep by now; if not, the test sees less
            // From here on the last thread waits, for something that waits for the third queue.
            second->sync([&] { ran = thirdRan.get_future().wait_for(kSooner) == std::future_status::ready; });
            hasEnded = true;
        });
        std::thread foreign([&] {
            isWaiting = true;
            third->sync([&] { thirdRan.set_value(); });
        });
        foreign.join(); // meanwhile nobody drains the main queue
        return MainQueue::main().runUntil([&] { return hasEnded.load(); }, kPatience) && ran;
    });
}

TEST_P(ThreadShortage, LosesNothingWhenTheProcessEnds)
{
    static int left = 0;
    EXPECT_EXIT(
        {
            // Of the static objects the pool goes first, so this one sees what it left.
            static const struct Judge {
                ~Judge() { std::_Exit(left == 0 ? 0 : 1); }
            } judge;
            giveThreads(GetParam());
            const auto queue = SerialQueue::make("work");
            left = 30;
            for (int task = 0; task < 30; ++task)
                queue->async([] { --left; });
            std::exit(2);
        },
        testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(
    Threads, ThreadShortage, testing::Values(0, 1, 2, 3), [](const auto& info) { return std::to_string(info.param); });

TEST_F(ThreadShortage, IsLoggedOnce)
{
    EXPECT_EXIT(
        {
            giveThreads(0);
            std::vector<std::string> lines;
            setLogSink([&](std::string_view line) { lines.emplace_back(line); });
            for (int task = 0; task < 10; ++task)
                SerialQueue::make("work")->sync([] {});
            std::_Exit(
                lines == std::vector<std::string>{"A thread for the queues could not be made; they go on with fewer."}
                    ? 0
                    : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ThreadShortage, MakesNoThreadWithoutWork)
{
    EXPECT_EXIT(
        {
            std::atomic<int> made = 0;
            GlobalPool::shared().setThreadStarter([&](Task work) {
                ++made;
                return std::thread(std::move(work));
            });
            MainQueue::main().async([] {});
            MainQueue::main().drain();
            const auto queue = SerialQueue::make("work");
            const int before = made;
            for (int round = 0; round < 100; ++round)
                queue->sync([] {});
            const int forOne = made;
            std::_Exit(before == 0 && (forOne == 1 || forOne == 2) ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace

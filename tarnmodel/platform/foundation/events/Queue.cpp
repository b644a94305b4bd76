#include "tarnmodel/platform/foundation/events/Queue.h"

#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/platform/foundation/events/MainQueueInternal.h"
#include "tarnmodel/platform/foundation/events/QueueInternal.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

namespace tarn {

namespace {

thread_local Queue* queueOfThisThread = nullptr;

thread_local ThreadParking* parkingOfThisThread = nullptr;

std::atomic<std::int64_t> syncWarningMilliseconds = 5'000;

constexpr std::chrono::milliseconds kPatienceWithoutMemory(10);

/// One `sync` under way: what to run, and who waits for it.
class AwaitedCall {
public:
    AwaitedCall(const Task& task, std::string_view label) : task_(task), label_(label) { }
    /// The queue ended before the task could run.
    void abandon()
    {
        if (isBegun_.exchange(true))
            return;
        failure_ = std::make_exception_ptr(NSException(
            NSInternalInconsistencyException, fmt::format("The queue \"{}\" ended before it ran a task.", label_)));
        finish();
    }
    void run()
    {
        if (isBegun_.exchange(true))
            return; // who waits for it ran it
        try {
            task_();
        } catch (...) {
            failure_ = std::current_exception();
        }
        finish();
    }
    /// `workOff` does of it what this thread can.
    void wait(const std::function<bool()>& workOff)
    {
        auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(syncWarningMilliseconds);
        bool warned = false;
        while (!isDone()) {
            const std::uint64_t seen = parking_->pokes();
            if (helped(workOff))
                continue;
            if (warned)
                parking_->sleep(seen);
            else if (!parking_->sleepUntil(deadline, seen))
                warned = warn();
        }
        if (failure_)
            std::rethrow_exception(failure_);
    }

private:
    /// Does what others wait for, and what this call waits for; whether to look again at once. Nothing may end the wait
    /// before the task has run, since the task is the caller's.
    bool helped(const std::function<bool()>& workOff) const noexcept
    {
        try {
            serveAwaitedTasksOfThisThread();
            return isDone() || workOff();
        } catch (...) {
            std::this_thread::sleep_for(kPatienceWithoutMemory);
            return true;
        }
    }
    bool isDone() const noexcept { return done_.load(std::memory_order_acquire); }
    void finish()
    {
        const auto parking = parking_; // the waiting thread may leave as soon as it sees `done_`
        done_.store(true, std::memory_order_release);
        parking->poke();
    }
    bool warn() const noexcept
    {
        try {
            const Queue* waiting = Queue::current();
            logMessage(fmt::format("The queue \"{}\" is still waiting for the queue \"{}\".",
                waiting ? waiting->label() : std::string("(a thread of its own)"), label_));
        } catch (...) {
            logFailure("A queue is still waiting for another one.");
        }
        return true;
    }

    const Task& task_; ///< of the caller, who waits
    const std::string label_;
    const std::shared_ptr<ThreadParking> parking_ = ThreadParking::ofThisThread();
    std::exception_ptr failure_;
    std::atomic<bool> isBegun_ = false;
    std::atomic<bool> done_ = false;
};

/// Ends the wait however the task ends: run, or dropped with its queue.
class AwaitedCallHolder {
public:
    explicit AwaitedCallHolder(std::shared_ptr<AwaitedCall> call) : call_(std::move(call)) { }
    ~AwaitedCallHolder() { call_->abandon(); }
    AwaitedCallHolder(const AwaitedCallHolder&) = delete;
    AwaitedCallHolder& operator=(const AwaitedCallHolder&) = delete;

    AwaitedCall& call() const noexcept { return *call_; }

private:
    std::shared_ptr<AwaitedCall> call_;
};

} // namespace

Queue::Queue(std::string_view label) : label_(label) { }

Queue::~Queue() = default;

Queue* Queue::current() noexcept
{
    if (queueOfThisThread)
        return queueOfThisThread;
    const ThreadParking* const parking = ThreadParking::existing();
    return parking ? parking->firstMainQueue() : nullptr;
}

void setSyncWarningDelay(std::chrono::milliseconds delay) noexcept
{
    syncWarningMilliseconds = delay.count();
}

void Queue::sync(const Task& task)
{
    if (isCurrent()) {
        task();
        return;
    }
    const auto call = std::make_shared<AwaitedCall>(task, label_);
    const Task run = [call] { call->run(); };
    const std::function<bool()> help = [this, &run] { return workOff(run); };
    // From the moment when it is queued, nothing may throw before it is done.
    const GlobalPool::WaitScope waiting(ThreadParking::ofThisThread());
    enqueueAwaited([holder = std::make_shared<AwaitedCallHolder>(call)] { holder->call().run(); });
    call->wait(help);
}

bool Queue::workOff(const Task& /*awaited*/)
{
    return false;
}

const std::shared_ptr<ThreadParking>& ThreadParking::ofThisThread()
{
    thread_local const auto parking = std::make_shared<ThreadParking>();
    return parking;
}

ThreadParking::ThreadParking()
{
    parkingOfThisThread = this;
}

ThreadParking::~ThreadParking()
{
    if (parkingOfThisThread == this)
        parkingOfThisThread = nullptr;
}

ThreadParking* ThreadParking::existing() noexcept
{
    return parkingOfThisThread;
}

void ThreadParking::poke()
{
    {
        const std::lock_guard lock(mutex_);
        ++pokes_;
    }
    poked_.notify_all();
}

std::uint64_t ThreadParking::pokes() const
{
    const std::lock_guard lock(mutex_);
    return pokes_;
}

bool ThreadParking::sleepUntil(TimePoint deadline, std::uint64_t seen)
{
    std::unique_lock lock(mutex_);
    return poked_.wait_until(lock, deadline, [&] { return pokes_ != seen; });
}

void ThreadParking::sleep(std::uint64_t seen)
{
    std::unique_lock lock(mutex_);
    poked_.wait(lock, [&] { return pokes_ != seen; });
}

void ThreadParking::addMainQueue(std::weak_ptr<MainQueueState> queue)
{
    const std::lock_guard lock(mutex_);
    std::erase_if(mainQueues_, [](const auto& entry) { return entry.expired(); });
    mainQueues_.push_back(std::move(queue));
}

std::vector<std::shared_ptr<MainQueueState>> ThreadParking::mainQueues() const
{
    const std::lock_guard lock(mutex_);
    std::vector<std::shared_ptr<MainQueueState>> living;
    for (const auto& entry : mainQueues_) {
        if (auto queue = entry.lock())
            living.push_back(std::move(queue));
    }
    return living;
}

MainQueue* ThreadParking::firstMainQueue() const noexcept
{
    const std::lock_guard lock(mutex_);
    for (const auto& entry : mainQueues_) {
        const auto state = entry.lock();
        if (MainQueue* const queue = state ? state->queue() : nullptr)
            return queue;
    }
    return nullptr;
}

void serveAwaitedTasksOfThisThread()
{
    for (const auto& queue : ThreadParking::ofThisThread()->mainQueues()) {
        while (queue->runAwaited()) { }
    }
}

CurrentQueueScope::CurrentQueueScope(Queue* queue) noexcept : previous_(std::exchange(queueOfThisThread, queue)) { }

CurrentQueueScope::~CurrentQueueScope()
{
    queueOfThisThread = previous_;
}

Queue* CurrentQueueScope::queue() noexcept
{
    return queueOfThisThread;
}

void logThrown(const Queue& queue, std::string_view lead, std::string_view what) noexcept
{
    try {
        logMessage(fmt::format("A task of the queue \"{}\" threw{}{}", queue.label(), lead, what));
    } catch (...) {
        logFailure("A task of a queue threw for want of memory.");
    }
}

void runTask(Queue& queue, const Task& task)
{
    const CurrentQueueScope scope(&queue);
    try {
        task();
    } catch (const std::exception& exception) {
        logThrown(queue, ": ", exception.what());
    } catch (...) {
        logThrown(queue, " something that is no exception", ".");
    }
}

void logFailure(std::string_view message) noexcept
{
    try {
        logMessage(message);
    } catch (...) { // the log itself has no memory
    }
}

bool KeyedTasks::set(const void* key, Task task)
{
    for (Entry& entry : entries_) {
        if (entry.key == key) {
            entry.task = std::move(task);
            return false;
        }
    }
    entries_.push_back({key, ++lastNumber_, std::move(task)});
    return true;
}

bool KeyedTasks::remove(const void* key)
{
    return std::erase_if(entries_, [key](const Entry& entry) { return entry.key == key; }) > 0;
}

std::optional<Task> KeyedTasks::takeFirst(std::uint64_t lastNumber)
{
    if (entries_.empty() || entries_.front().number > lastNumber)
        return std::nullopt;
    Task task = std::move(entries_.front().task);
    entries_.erase(entries_.begin());
    return task;
}

} // namespace tarn

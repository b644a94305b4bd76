#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/events/QueueInternal.h"

#include <deque>
#include <mutex>
#include <utility>

namespace tarn {

namespace {

/// After so many tasks another queue has its turn.
constexpr int kTasksOfATurn = 64;

} // namespace

struct SerialQueue::State {
    std::mutex mutex;
    std::deque<Task> tasks;
    bool isRunning = false;   ///< a thread is in a pass
    bool isScheduled = false; ///< a turn waits in the pool
    KeyedTasks endOfPass;
};

SerialQueue::SerialQueue(std::string_view label) : Queue(label), state_(std::make_unique<State>()) { }

SerialQueue::~SerialQueue() = default;

std::shared_ptr<SerialQueue> SerialQueue::make(std::string_view label)
{
    return std::shared_ptr<SerialQueue>(new SerialQueue(label));
}

void SerialQueue::async(Task task)
{
    Task dropped; // outside of the lock: what goes with a task may call this queue
    {
        const std::lock_guard lock(state_->mutex);
        state_->tasks.push_back(std::move(task));
        const auto takeBack = [&] {
            dropped = std::move(state_->tasks.back());
            state_->tasks.pop_back();
        };
        try {
            if (!schedule())
                takeBack();
        } catch (...) {
            takeBack();
            throw;
        }
    }
    GlobalPool::shared().passOnShortage();
}

/// Under the lock: asks for a turn, unless one is under way or asked for. False when there are no turns any more.
bool SerialQueue::schedule()
{
    if (!state_->tasks.empty() && !state_->isRunning && !state_->isScheduled)
        state_->isScheduled = GlobalPool::shared().post([self = shared_from_this()] { self->runTurn(); });
    return state_->tasks.empty() || state_->isRunning || state_->isScheduled;
}

void SerialQueue::runTurn()
{
    {
        const std::lock_guard lock(state_->mutex);
        state_->isScheduled = false;
    }
    runSome(kTasksOfATurn);
}

/// Runs what is queued, as far as the turn goes; false when another thread is at it, or there is nothing.
bool SerialQueue::runSome(int most)
{
    {
        std::unique_lock lock(state_->mutex);
        if (state_->isRunning || state_->tasks.empty())
            return false;
        state_->isRunning = true;
        for (; most > 0 && !state_->tasks.empty(); --most) {
            Task task = std::move(state_->tasks.front());
            state_->tasks.pop_front();
            lock.unlock();
            runPass(std::exchange(task, nullptr));
            lock.lock();
        }
        state_->isRunning = false;
        schedule();
    }
    GlobalPool::shared().passOnShortage();
    return true;
}

bool SerialQueue::workOff(const Task& /*awaited*/)
{
    return !GlobalPool::shared().hasThread() && runSome(1);
}

void SerialQueue::runPass(const Task& task)
{
    runTask(*this, task);
    std::unique_lock lock(state_->mutex);
    const std::uint64_t lastNumber = state_->endOfPass.lastNumber();
    while (auto atEnd = state_->endOfPass.takeFirst(lastNumber)) {
        lock.unlock();
        runTask(*this, *atEnd);
        atEnd.reset(); // what goes with it may call this queue
        lock.lock();
    }
}

void SerialQueue::enqueueAwaited(Task task)
{
    async(std::move(task));
}

bool SerialQueue::isCurrent() const noexcept
{
    return CurrentQueueScope::queue() == this;
}

void SerialQueue::runAtEndOfPass(const void* key, Task task)
{
    bool isNew = false;
    {
        const std::lock_guard lock(state_->mutex);
        isNew = state_->endOfPass.set(key, std::move(task));
    }
    // An empty pass makes sure that there is an end, also when the one under way is at its end already.
    if (isNew)
        async([] {});
}

void SerialQueue::cancelAtEndOfPass(const void* key)
{
    const std::lock_guard lock(state_->mutex);
    state_->endOfPass.remove(key);
}

} // namespace tarn

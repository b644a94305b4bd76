#include "tarnmodel/platform/foundation/events/MainQueueInternal.h"

#include <algorithm>
#include <utility>

namespace tarn {

/// One pass: what comes to the queue on its own thread meanwhile is announced at the end, if it is still there.
class MainQueueState::Pass {
public:
    explicit Pass(MainQueueState& state) : state_(state)
    {
        const std::lock_guard lock(state_.mutex_);
        ++state_.passDepth_;
        state_.isAnnounced_ = false;
        state_.descriptor_.makeUnreadable();
    }
    ~Pass()
    {
        std::unique_lock lock(state_.mutex_);
        --state_.passDepth_;
        if (!state_.hasWorkLocked())
            state_.forgetAnnouncementWithoutWork();
        else if (state_.passDepth_ == 0)
            state_.announceWork(std::move(lock));
    }
    Pass(const Pass&) = delete;
    Pass& operator=(const Pass&) = delete;

private:
    MainQueueState& state_;
};

MainQueueState::MainQueueState(MainQueue& queue) : queue_(&queue) { }

MainQueue* MainQueueState::queue() const
{
    const std::lock_guard lock(mutex_);
    return queue_;
}

bool MainQueueState::hasWorkLocked() const noexcept
{
    return !items_.empty() || !timers_.empty() || !endOfPass_.isEmpty();
}

bool MainQueueState::hasWork() const
{
    const std::lock_guard lock(mutex_);
    return hasWorkLocked();
}

/// Tells the host once; the owning thread itself needs no telling while it is in a pass.
void MainQueueState::announceWork(std::unique_lock<std::mutex> lock)
{
    Task wake;
    const bool isInPass = passDepth_ > 0 && isOwnedByThisThread();
    if (!isAnnounced_ && !isInPass) {
        isAnnounced_ = true;
        descriptor_.makeReadable();
        wake = wake_;
    }
    lock.unlock();
    parking_->poke();
    if (wake)
        wake();
}

void MainQueueState::forgetAnnouncementWithoutWork()
{
    isAnnounced_ = false;
    descriptor_.makeUnreadable();
}

void MainQueueState::enqueue(Task task, bool isAwaited)
{
    std::unique_lock lock(mutex_);
    if (!queue_)
        return;
    items_.push_back({++lastNumber_, isAwaited, std::move(task)});
    announceWork(std::move(lock));
}

void MainQueueState::setAtEndOfPass(const void* key, Task task)
{
    std::unique_lock lock(mutex_);
    if (!queue_)
        return;
    endOfPass_.set(key, std::move(task));
    announceWork(std::move(lock));
}

void MainQueueState::removeAtEndOfPass(const void* key)
{
    const std::lock_guard lock(mutex_);
    endOfPass_.remove(key);
}

void MainQueueState::setInEachPass(const void* key, Task task)
{
    auto shared = std::make_shared<const Task>(std::move(task));
    const std::lock_guard lock(mutex_);
    std::erase_if(inEachPass_, [key](const auto& entry) { return entry.first == key; });
    if (queue_)
        inEachPass_.emplace_back(key, std::move(shared));
}

void MainQueueState::removeInEachPass(const void* key)
{
    const std::lock_guard lock(mutex_);
    std::erase_if(inEachPass_, [key](const auto& entry) { return entry.first == key; });
}

Timer MainQueueState::scheduleTimer(Task task)
{
    Timer timer;
    timer.state_ = std::make_shared<Timer::State>(Timer::State{weak_from_this(), std::move(task)});
    std::unique_lock lock(mutex_);
    timer.state_->isPending = queue_ != nullptr;
    if (!queue_)
        return timer;
    timers_.push_back(timer.state_);
    announceWork(std::move(lock));
    return timer;
}

void MainQueueState::invalidate(Timer& timer)
{
    const auto queue = timer.state_ ? timer.state_->queue.lock() : nullptr;
    if (!queue)
        return;
    const std::lock_guard lock(queue->mutex_);
    timer.state_->isPending = false;
    std::erase(queue->timers_, timer.state_);
}

bool MainQueueState::isPending(const Timer& timer)
{
    const auto queue = timer.state_ ? timer.state_->queue.lock() : nullptr;
    if (!queue)
        return false;
    const std::lock_guard lock(queue->mutex_);
    return timer.state_->isPending;
}

void MainQueueState::setWake(Task wake)
{
    std::unique_lock lock(mutex_);
    wake_ = std::move(wake);
    isAnnounced_ = false;
    if (hasWorkLocked())
        announceWork(std::move(lock));
}

int MainQueueState::fileDescriptor()
{
    const std::lock_guard lock(mutex_);
    const int descriptor = descriptor_.open();
    if (hasWorkLocked())
        descriptor_.makeReadable();
    return descriptor;
}

void MainQueueState::close()
{
    // Destroyed outside of the lock: what goes with a task may call this queue.
    std::deque<Item> items;
    KeyedTasks endOfPass;
    decltype(inEachPass_) inEachPass;
    std::vector<std::shared_ptr<Timer::State>> timers;
    const std::lock_guard lock(mutex_);
    queue_ = nullptr;
    for (const auto& timer : timers_)
        timer->isPending = false;
    items.swap(items_);
    timers.swap(timers_);
    std::swap(endOfPass, endOfPass_);
    inEachPass.swap(inEachPass_);
    wake_ = nullptr;
}

std::size_t MainQueueState::runPass(MainQueue& queue)
{
    const auto self = shared_from_this(); // a task may end the queue
    const Pass pass(*this);
    std::size_t count = runTimers(queue);
    count += runQueued(queue);
    runTasksOfEachPass(queue);
    count += runKeyed(queue, endOfPass_);
    return count;
}

std::size_t MainQueueState::runTimers(MainQueue& queue)
{
    std::vector<std::shared_ptr<Timer::State>> due;
    {
        const std::lock_guard lock(mutex_);
        due.swap(timers_);
    }
    std::size_t count = 0;
    for (const auto& timer : due) {
        {
            const std::lock_guard lock(mutex_);
            if (!std::exchange(timer->isPending, false) || !queue_)
                continue; // an earlier timer of this pass called it off, or ended the queue
        }
        const Task task = std::move(timer->task);
        runTask(queue, task);
        ++count;
    }
    return count;
}

std::size_t MainQueueState::runQueued(MainQueue& queue)
{
    std::size_t count = 0;
    std::unique_lock lock(mutex_);
    const std::uint64_t lastAtEntry = lastNumber_;
    while (!items_.empty() && items_.front().number <= lastAtEntry) {
        Task task = std::move(items_.front().task);
        items_.pop_front();
        lock.unlock();
        runTask(queue, task);
        task = nullptr; // what goes with it may call this queue
        ++count;
        lock.lock();
    }
    return count;
}

std::size_t MainQueueState::runKeyed(MainQueue& queue, KeyedTasks& tasks)
{
    std::size_t count = 0;
    std::unique_lock lock(mutex_);
    const std::uint64_t lastAtEntry = tasks.lastNumber();
    while (auto task = tasks.takeFirst(lastAtEntry)) {
        lock.unlock();
        runTask(queue, *task);
        task.reset(); // what goes with it may call this queue
        ++count;
        lock.lock();
    }
    return count;
}

void MainQueueState::runTasksOfEachPass(MainQueue& queue)
{
    std::unique_lock lock(mutex_);
    const auto tasks = inEachPass_;
    for (const auto& [key, task] : tasks) {
        const bool isWanted = std::any_of(inEachPass_.begin(), inEachPass_.end(),
            [&wanted = task](const auto& entry) { return entry.second == wanted; });
        if (!isWanted)
            continue; // an earlier one has taken it back
        lock.unlock();
        runTask(queue, *task);
        lock.lock();
    }
}

bool MainQueueState::runAwaited()
{
    std::unique_lock lock(mutex_);
    const auto found = std::find_if(items_.begin(), items_.end(), [](const Item& item) { return item.isAwaited; });
    if (found == items_.end() || !queue_)
        return false;
    MainQueue& queue = *queue_;
    const Task task = std::move(found->task);
    items_.erase(found);
    if (!hasWorkLocked())
        forgetAnnouncementWithoutWork();
    lock.unlock();
    runTask(queue, task);
    return true;
}

} // namespace tarn

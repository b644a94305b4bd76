#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"
#include "tarnmodel/platform/foundation/events/MainQueueInternal.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// How often `runUntil` looks at its predicate when nothing wakes it.
constexpr std::chrono::milliseconds kPredicateInterval(20);

void requireOwner(const MainQueue& queue, std::string_view operation)
{
    if (!queue.isCurrent())
        throw NSException(NSInternalInconsistencyException,
            fmt::format(
                "{} of the queue \"{}\" was called on a thread that does not own it.", operation, queue.label()));
}

} // namespace

MainQueue::MainQueue(std::string_view label) : Queue(label), state_(std::make_shared<MainQueueState>(*this))
{
    state_->parking().addMainQueue(state_);
}

MainQueue::~MainQueue()
{
    state_->close();
}

MainQueue& MainQueue::main()
{
    // Never destroyed, only closed when the process ends: threads may still ask for it then.
    static auto* const queue = [] {
        auto* const made = new MainQueue("main");
        GlobalPool::shared().setMainQueue(made->state_);
        return made;
    }();
    return *queue;
}

// What other threads call holds the state: the task that it hands over may end the queue's life before it returns.

void MainQueue::async(Task task)
{
    const auto state = state_;
    state->enqueue(std::move(task), false);
}

void MainQueue::enqueueAwaited(Task task)
{
    const auto state = state_;
    state->enqueue(std::move(task), true);
}

bool MainQueue::isCurrent() const noexcept
{
    return state_->isOwnedByThisThread();
}

void MainQueue::runAtEndOfPass(const void* key, Task task)
{
    state_->setAtEndOfPass(key, std::move(task));
}

void MainQueue::cancelAtEndOfPass(const void* key)
{
    state_->removeAtEndOfPass(key);
}

void MainQueue::runInEachPass(const void* key, Task task)
{
    state_->setInEachPass(key, std::move(task));
}

void MainQueue::cancelInEachPass(const void* key)
{
    state_->removeInEachPass(key);
}

std::size_t MainQueue::drain()
{
    requireOwner(*this, "drain");
    return state_->runPass(*this);
}

bool MainQueue::hasWork() const
{
    return state_->hasWork();
}

void MainQueue::runUntil(const std::function<bool()>& done)
{
    while (!runUntil(done, std::chrono::hours(1))) { }
}

bool MainQueue::runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit)
{
    requireOwner(*this, "runUntil");
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!done()) {
        const std::uint64_t seen = state_->parking().pokes();
        const auto now = std::chrono::steady_clock::now();
        if (now >= deadline)
            return false;
        if (hasWork())
            drain();
        else
            state_->parking().sleepUntil(std::min(deadline, now + kPredicateInterval), seen);
    }
    return true;
}

void MainQueue::setWake(Task wake)
{
    state_->setWake(std::move(wake));
}

int MainQueue::fileDescriptor()
{
    return state_->fileDescriptor();
}

Timer Timer::scheduleAfterPass(MainQueue& queue, Task task)
{
    return queue.state_->scheduleTimer(std::move(task));
}

void Timer::invalidate()
{
    MainQueueState::invalidate(*this);
}

bool Timer::isValid() const noexcept
{
    return MainQueueState::isPending(*this);
}

} // namespace tarn

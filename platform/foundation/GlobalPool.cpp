#include "platform/foundation/GlobalPoolInternal.h"

#include "platform/foundation/MainQueueInternal.h"

#include <algorithm>

namespace tarn {

namespace {

/// Chains of waiting threads longer than this are a dead-lock in the making, not work.
constexpr std::size_t kMostExtraThreads = 128;

thread_local int depthOfWorkOnThisThread = 0;

} // namespace

GlobalPool::GlobalPool() : wantedThreads_(std::max(2U, std::thread::hardware_concurrency())), pool_(wantedThreads_) { }

GlobalPool& GlobalPool::shared()
{
    static auto* const pool = new GlobalPool;
    // Its destructor runs before those of the static objects that were there before the first task.
    struct ProcessEnd {
        ~ProcessEnd() { pool->finish(); }
    };
    static const ProcessEnd processEnd;
    return *pool;
}

void GlobalPool::closeWhenProcessEnds(std::weak_ptr<MainQueueState> queue)
{
    const std::lock_guard lock(mutex_);
    mainQueue_ = std::move(queue);
}

bool GlobalPool::isClosed() const
{
    const std::lock_guard lock(mutex_);
    return isClosed_;
}

void GlobalPool::finish()
{
    std::shared_ptr<MainQueueState> mainQueue;
    {
        const std::lock_guard lock(mutex_);
        mainQueue = mainQueue_.lock();
    }
    if (mainQueue)
        mainQueue->close();
    if (depthOfWorkOnThisThread > 0)
        return; // a task ended the process; it cannot wait for itself
    pool_.join();
    std::vector<std::thread> extraThreads;
    {
        const std::lock_guard lock(mutex_);
        isClosed_ = true;
        extraThreads.swap(extraThreads_);
    }
    for (std::thread& thread : extraThreads)
        thread.join();
}

void GlobalPool::threadBlocks()
{
    const std::lock_guard lock(mutex_);
    ++blockedThreads_;
    const std::size_t threads = wantedThreads_ + extraThreads_.size();
    if (threads - blockedThreads_ < wantedThreads_ && extraThreads_.size() < kMostExtraThreads)
        extraThreads_.emplace_back([this] { pool_.attach(); });
}

void GlobalPool::threadGoesOn()
{
    const std::lock_guard lock(mutex_);
    --blockedThreads_;
}

GlobalPool::WorkingThreadScope::WorkingThreadScope() noexcept
{
    ++depthOfWorkOnThisThread;
}

GlobalPool::WorkingThreadScope::~WorkingThreadScope()
{
    --depthOfWorkOnThisThread;
}

GlobalPool::BlockedThreadScope::BlockedThreadScope() : isWorkingThread_(depthOfWorkOnThisThread > 0)
{
    if (isWorkingThread_)
        shared().threadBlocks();
}

GlobalPool::BlockedThreadScope::~BlockedThreadScope()
{
    if (isWorkingThread_)
        shared().threadGoesOn();
}

} // namespace tarn

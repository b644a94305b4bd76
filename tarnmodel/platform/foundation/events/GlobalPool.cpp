#include "tarnmodel/platform/foundation/events/GlobalPoolInternal.h"

#include "tarnmodel/platform/foundation/events/MainQueueInternal.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// Chains of waiting threads longer than this are a dead-lock in the making, not work.
constexpr std::size_t kMostExtraThreads = 128;

thread_local bool isThreadOfPool = false;
thread_local bool isThreadBlocked = false;

} // namespace

GlobalPool::GlobalPool()
    : wantedThreads_(std::max(2U, std::thread::hardware_concurrency())),
      startThread_([](Task work) { return std::thread(std::move(work)); })
{ }

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

void GlobalPool::setMainQueue(std::weak_ptr<MainQueueState> queue)
{
    {
        const Lock lock(mutex_);
        mainQueue_ = std::move(queue);
    }
    passOnShortage();
}

void GlobalPool::setThreadStarter(ThreadStarter starter)
{
    const Lock lock(mutex_);
    startThread_ = std::move(starter);
}

// Threads -------------------------------------------------------------------------------------------------------------

bool GlobalPool::post(Task task)
{
    const Lock lock(mutex_);
    if (isClosed_)
        return false;
    tasks_.push_back(std::move(task));
    makeThreadIfWanted();
    workCame_.notify_one();
    return true;
}

bool GlobalPool::wantsThread() const noexcept
{
    return tasks_.size() > idleThreads_ && freeThreads() < wantedThreads_
        && livingThreads_ < wantedThreads_ + kMostExtraThreads;
}

void GlobalPool::makeThreadIfWanted() noexcept
{
    if (!wantsThread())
        return;
    try {
        threads_.reserve(threads_.size() + 1); // a thread that has no place would end the process
        threads_.push_back(startThread_([this] { work(); }));
        ++livingThreads_;
    } catch (const std::exception&) { // no memory, or the system's limit
        hasFailed_ = true;
    }
}

bool GlobalPool::hasThread()
{
    const Lock lock(mutex_);
    makeThreadIfWanted();
    return freeThreads() > 0;
}

void GlobalPool::work()
{
    isThreadOfPool = true;
    Lock lock(mutex_);
    for (;;) {
        ++idleThreads_;
        workCame_.wait(lock, [this] { return !tasks_.empty() || isEnding_; });
        --idleThreads_;
        if (tasks_.empty())
            break;
        runOldest(lock);
    }
    --livingThreads_;
}

void GlobalPool::runOldest(Lock& lock)
{
    Task task = std::move(tasks_.front());
    tasks_.pop_front();
    lock.unlock();
    try {
        task();
    } catch (...) {
        logFailure("Work of the queues was given up for want of memory.");
    }
    task = nullptr; // what goes with it may call the queues
    lock.lock();
}

// Without threads -----------------------------------------------------------------------------------------------------

void GlobalPool::passOnShortage() noexcept
{
    std::shared_ptr<MainQueueState> mainQueue;
    Lock lock(mutex_);
    const bool isNews = hasFailed_ && !std::exchange(isFailureLogged_, hasFailed_);
    if (isShort()) {
        for (const auto& parking : waiting_)
            parking->poke();
        if (!isMainQueueAsked_)
            mainQueue = mainQueue_.lock();
        isMainQueueAsked_ = isMainQueueAsked_ || mainQueue;
    }
    lock.unlock();
    if (isNews)
        logFailure("A thread for the queues could not be made; they go on with fewer.");
    try {
        if (mainQueue)
            mainQueue->enqueue([this] { runOnMainQueue(); }, false);
    } catch (...) {
        lock.lock();
        isMainQueueAsked_ = false; // the next task asks again
    }
}

void GlobalPool::runOnMainQueue()
{
    {
        Lock lock(mutex_);
        isMainQueueAsked_ = false;
        makeThreadIfWanted();
        if (isShort())
            runOldest(lock);
    }
    passOnShortage();
}

GlobalPool::WaitScope::WaitScope(std::shared_ptr<ThreadParking> parking)
    : parking_(std::move(parking)), blocksThread_(isThreadOfPool && !isThreadBlocked)
{
    GlobalPool& pool = shared();
    {
        const Lock lock(pool.mutex_);
        pool.waiting_.push_back(parking_);
        if (blocksThread_)
            ++pool.blockedThreads_;
        pool.makeThreadIfWanted();
    }
    isThreadBlocked = isThreadBlocked || blocksThread_;
    pool.passOnShortage();
}

GlobalPool::WaitScope::~WaitScope()
{
    GlobalPool& pool = shared();
    const Lock lock(pool.mutex_);
    pool.waiting_.erase(std::ranges::find(pool.waiting_, parking_));
    if (!blocksThread_)
        return;
    isThreadBlocked = false;
    --pool.blockedThreads_;
}

void GlobalPool::finish()
{
    std::shared_ptr<MainQueueState> mainQueue;
    {
        const Lock lock(mutex_);
        mainQueue = mainQueue_.lock();
    }
    if (mainQueue)
        mainQueue->close();
    if (isThreadOfPool)
        return; // a task ended the process; it cannot wait for itself
    Lock lock(mutex_);
    isEnding_ = true;
    workCame_.notify_all();
    for (std::size_t joined = 0; joined < threads_.size() || !tasks_.empty();) {
        if (joined == threads_.size()) {
            runOldest(lock);
            continue;
        }
        std::thread thread = std::move(threads_[joined++]);
        lock.unlock();
        thread.join();
        lock.lock();
    }
    isClosed_ = true;
}

} // namespace tarn

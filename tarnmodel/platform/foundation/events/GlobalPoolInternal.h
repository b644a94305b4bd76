#pragma once

#include "tarnmodel/platform/foundation/events/QueueInternal.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tarn {

/// The threads under the global queue and all serial queues.
///
/// A thread is made when there is work for it. One that waits in a `sync` is made up for by another, so that what it
/// waits for finds a thread. Where the system gives no thread at all, who waits does what it waits for itself, and the
/// main queue does the rest in its passes: less at once, but all of it.
class GlobalPool {
public:
    /// Never destroyed; when the process ends it works off what is queued and takes nothing more.
    static GlobalPool& shared();

    /// Queues the task for a thread; it should not throw. False, and it is dropped, once the pool is closed. What the
    /// call throws was not queued. Follow it by `passOnShortage`, holding no lock.
    bool post(Task task);
    /// Turns to those who wait, and to the main queue, when there is work and no thread for it. Logs the first time
    /// that one could not be made.
    void passOnShortage() noexcept;
    /// Whether a thread is there for what is queued, if need be one made now.
    bool hasThread();

    /// This main queue takes over when there is no thread. It is closed before the last tasks of the process run, since
    /// nobody drains it then.
    void setMainQueue(std::weak_ptr<MainQueueState> queue);

    /// Starts a thread that does this work, or throws.
    using ThreadStarter = std::function<std::thread(Task work)>;
    /// For tests; before the first task.
    void setThreadStarter(ThreadStarter starter);

    /// Says that the calling thread waits, and that it wants to hear of it when there is no thread.
    class WaitScope {
    public:
        explicit WaitScope(std::shared_ptr<ThreadParking> parking);
        ~WaitScope();
        WaitScope(const WaitScope&) = delete;
        WaitScope& operator=(const WaitScope&) = delete;

    private:
        const std::shared_ptr<ThreadParking> parking_;
        const bool blocksThread_;
    };

private:
    using Lock = std::unique_lock<std::mutex>;

    GlobalPool();
    std::size_t freeThreads() const noexcept { return livingThreads_ - blockedThreads_; }
    bool isShort() const noexcept { return !tasks_.empty() && freeThreads() == 0; }
    bool wantsThread() const noexcept;
    void makeThreadIfWanted() noexcept;
    void work();
    void runOldest(Lock& lock);
    void runOnMainQueue();
    void finish();

    const std::size_t wantedThreads_;
    mutable std::mutex mutex_;
    std::condition_variable workCame_;
    std::deque<Task> tasks_;
    std::vector<std::thread> threads_;
    std::size_t livingThreads_ = 0; ///< those that have not left `work`
    std::size_t idleThreads_ = 0;
    std::size_t blockedThreads_ = 0;
    std::vector<std::shared_ptr<ThreadParking>> waiting_;
    std::weak_ptr<MainQueueState> mainQueue_;
    ThreadStarter startThread_;
    bool isMainQueueAsked_ = false;
    bool hasFailed_ = false; ///< a thread was wanted and could not be made
    bool isFailureLogged_ = false;
    bool isEnding_ = false;
    bool isClosed_ = false;
};

} // namespace tarn
